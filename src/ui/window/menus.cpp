#include "ui/window/menus.h"

#include "game/check_state.h"
#include "game/search.h"
#include "input/menu_table.h"
#include "paint/text.h"
#include "ui/window/menu_bar.h"

#include <QMenu>
#include <QVariant>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr std::string_view ClockMenu = "mnuTime";

// One entry as the toolkit knows it: the row and the number that it stands for.
struct Entry {
    const MenuRow *Row;
    std::int32_t Number;
};

Entry EntryOf(const QAction &action)
{
    const QList<QVariant> data = action.data().toList();
    return {&MenuTable[data[0].toULongLong()], data[1].toInt()};
}

// F12 alone is a true accelerator; all other shortcuts are text, and the board's keys do the work.
bool IsAccelerator(std::string_view shortcut)
{
    return shortcut == "F12";
}

void SetCaption(QAction &action)
{
    const auto [row, number] = EntryOf(action);
    QString caption = Text(MenuCaption(*row, number));
    if (!row->Shortcut.empty() && !IsAccelerator(row->Shortcut)) {
        caption += u'\t' + Text(WithNumber(row->Shortcut, number));
    }
    action.setText(caption);
}

void UpdateState(QAction &action)
{
    if (!action.data().isValid()) {
        return;
    }
    const auto [row, number] = EntryOf(action);
    if (row->Enabled != nullptr) {
        action.setEnabled(row->Enabled(number));
    }
    if (row->Checked != nullptr) {
        action.setChecked(row->Checked(number));
    }
}

void UpdateStates(const QMenu &menu)
{
    for (QAction *action : menu.actions()) {
        if (action->menu() != nullptr) {
            UpdateStates(*action->menu());
        }
        UpdateState(*action);
    }
}

// A top-level menu is about to open. While a search runs it has nothing to offer.
void OpenMenu(QMenu *menu)
{
    if (!ReadyForCommand()) {
        QMetaObject::invokeMethod(menu, "hide", Qt::QueuedConnection);
        return;
    }
    UpdateStates(*menu);
}

// Lets an action run a command when the player may give one.
void LetRun(QAction *action, const MenuRow &row, std::int32_t number)
{
    QObject::connect(action, &QAction::triggered, action, [run = row.Run, number] {
        if (ReadyForCommand()) {
            run(number);
            AssertStateIsSound();
        }
    });
}

void AddEntry(QMenu *menu, std::size_t rowIndex, std::int32_t number)
{
    const MenuRow &row = MenuTable[rowIndex];
    if (row.Caption == SeparatorCaption) {
        menu->addSeparator();
        return;
    }
    QAction *action = menu->addAction(QString());
    action->setObjectName(Text(row.Name));
    action->setData(QList<QVariant>{QVariant::fromValue<qulonglong>(rowIndex), number});
    action->setCheckable(row.Checked != nullptr);
    SetCaption(*action);
    UpdateState(*action);
    if (IsAccelerator(row.Shortcut)) {
        action->setShortcut(QKeySequence(Text(row.Shortcut)));
        action->setShortcutContext(Qt::ApplicationShortcut);
    }
    LetRun(action, row, number);
}

// An entry of the bar itself, which acts at once.
void AddBarEntry(QMenuBar *bar, const MenuRow &row)
{
    QAction *action = bar->addAction(Text(row.Caption));
    action->setObjectName(Text(row.Name));
    LetRun(action, row, 0);
}

QMenu *AddMenu(MenuBar *bar, const MenuRow &row)
{
    QMenu *menu = bar->AddMenu(Text(row.Name), Text(row.Caption));
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] { OpenMenu(menu); });
    return menu;
}

} // namespace

void BuildMenus(MenuBar *bar)
{
    QMenu *top = nullptr;
    QMenu *sub = nullptr;
    for (std::size_t k = 0; k < MenuTable.size(); ++k) {
        const MenuRow &row = MenuTable[k];
        if (row.Level == 1) {
            if (row.Name == ClockMenu) {
                bar->BeginFarEnd();
            }
            if (row.Run != nullptr) {
                AddBarEntry(bar, row);
            } else {
                top = AddMenu(bar, row);
            }
        } else if (row.Run == nullptr && row.Caption != SeparatorCaption) {
            sub = top->addMenu(Text(row.Caption));
            sub->setObjectName(Text(row.Name));
        } else {
            for (std::int32_t number = row.First; number <= row.Last; ++number) {
                AddEntry(row.Level == 2 ? top : sub, k, number);
            }
        }
    }
}

void UpdateMenus(QMenuBar *bar)
{
    auto *clock = bar->findChild<QMenu *>(Text(ClockMenu), Qt::FindDirectChildrenOnly);
    const auto *row = std::ranges::find(MenuTable, ClockMenu, &MenuRow::Name).base();
    clock->setTitle(Text(MenuCaption(*row, 0)));
    for (QAction *action : clock->actions()) {
        SetCaption(*action);
    }
}

void UpdateMenuStates(const QMenuBar &bar)
{
    for (const QAction *action : bar.actions()) {
        if (action->menu() != nullptr) {
            UpdateStates(*action->menu());
        }
    }
}

} // namespace kelvarine
