#include "support/widget_menus.h"

#include "board/look.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "generator/game_number.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/toolbar.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_events.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>

#include <set>
#include <sstream>

namespace kelvarine::testing {

namespace {

void Walk(const QList<QAction *> &actions, const Entry &above, std::vector<Entry> &found)
{
    for (QAction *action : actions) {
        Entry entry = above;
        ++entry.Level;
        entry.Action = action;
        found.push_back(entry);
        if (QMenu *menu = action->menu()) {
            entry.Menu = menu;
            entry.Top = entry.Top == nullptr ? menu : entry.Top;
            Walk(menu->actions(), entry, found);
        }
    }
}

} // namespace

std::vector<Entry> EntriesOf(const MainWindow &window)
{
    std::vector<Entry> entries;
    QList<QAction *> tops = window.menuBar()->actions();
    tops.removeIf([](const QAction *action) { return action->isSeparator(); });
    Walk(tops, {}, entries);
    std::size_t k = 0;
    for (const MenuRow &row : MenuTable) {
        for (std::int32_t number = row.First; number <= row.Last && k < entries.size(); ++number) {
            entries[k].Row = &row;
            entries[k].Number = number;
            ++k;
        }
    }
    EXPECT_EQ(k, entries.size());
    return entries;
}

Entry EntryNamed(const MainWindow &window, std::string_view name, std::int32_t number)
{
    for (const Entry &entry : EntriesOf(window)) {
        if (entry.Row->Name == name && entry.Number == number) {
            return entry;
        }
    }
    ADD_FAILURE() << "no entry " << name;
    return {};
}

void Open(QMenu *menu)
{
    menu->popup(QPoint(50, 50));
    QCoreApplication::processEvents();
}

void CloseMenus()
{
    while (QWidget *menu = QApplication::activePopupWidget()) {
        menu->close();
    }
    QCoreApplication::processEvents();
}

void Choose(const Entry &entry)
{
    if (entry.Menu == nullptr) {
        entry.Action->trigger(); // an entry of the bar itself
        return;
    }
    Open(entry.Top);
    if (entry.Menu != entry.Top) {
        Open(entry.Menu);
    }
    Click(entry.Menu, entry.Menu->actionGeometry(entry.Action).center());
    CloseMenus();
}

void SetScene(CellWord filter)
{
    init_genrand(1);
    SetGame(EasyGame);
    StartGame(NewGame);
    AlertMask = 0x6;
    mnuTakeSnapshot();
    for (const CellWord candidates : {0x01EU, 0x2AAU, 0x0AAU}) {
        Grid[3][1] = candidates | SelectedBit;
        Grid[4][1] = (CandidateMask & ~candidates) | SelectedBit;
        Grid[5][2] |= SelectedBit; // a given
        PushUndoState();
    }
    Undo();
    StrongLinkMode = 7;
    SolveSeconds = 90;
    NumberFilter = filter;
    GameModified = False;
    QGuiApplication::clipboard()->setText("a text");
}

std::string StateNow()
{
    std::ostringstream text;
    text << "history " << HistoryPosition << " of " << HistoryCount << "\nrating " << GameRating
         << " givens " << GivenCount << "\nfilter " << NumberFilter << " links " << StrongLinkMode
         << "\ntoolbar " << ToolbarVisible << ToolTipsVisible << ToolMode << ToolSign << "\nmargin "
         << CoordinatesVisible << MarginThickness << "\nclock " << ClockRunning << PauseCaption
         << (SolveSeconds >= 60) << "\nmodified " << GameModified << " snapshot "
         << SnapshotAvailable << " number " << GameNumber << " win " << WinDisplayRunning
         << "\nclipboard " << QGuiApplication::clipboard()->text().toStdString();
    std::set<std::string> titles; // the toolkit lists the windows in no order
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            titles.insert(window->windowTitle().toStdString());
        }
    }
    for (const std::string &title : titles) {
        text << "\nwindow " << title;
    }
    text << '\n';
    for (const Cell cell : Cells) {
        text << WordAt(cell) << ' ' << History[SnapshotSlot][cell.Column][cell.Row] << ' ';
    }
    return text.str();
}

} // namespace kelvarine::testing
