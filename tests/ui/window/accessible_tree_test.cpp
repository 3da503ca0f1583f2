#include "files/file_dialog.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "outside/help.h"
#include "outside/screens.h"
#include "support/widget_modal.h"
#include "support/widget_program.h"
#include "ui/screens/file_dialog_qt.h"

#include <QAccessible>
#include <QApplication>
#include <QtTest>
#include <gtest/gtest.h>

#include <set>

namespace kelvarine::testing {
namespace {

std::string NameOf(QAccessibleInterface *item)
{
    return item->text(QAccessible::Name).toStdString();
}

// Containers and the parts of a control are found through what holds them; whatever the player can
// reach or set must say what it is.
bool NeedsName(const QAccessibleInterface &item)
{
    const QAccessible::State state = item.state();
    return !state.invisible && !state.disabled && (state.focusable || state.checkable);
}

struct Walk {
    int Items = 0;
    std::set<QAccessible::Role> Roles;
};

void WalkTree(QAccessibleInterface *item, Walk &walk, const std::string &path, int depth = 0)
{
    ASSERT_NE(item, nullptr) << path;
    ASSERT_LT(depth, 40) << path;
    if (!item->isValid()) {
        return;
    }
    const QObject *object = item->object();
    const std::string here = path + "/" +
                             (object != nullptr ? std::string(object->metaObject()->className()) +
                                                      " " + object->objectName().toStdString()
                                                : std::string("part"));
    ++walk.Items;
    walk.Roles.insert(item->role());
    EXPECT_NE(item->role(), QAccessible::NoRole) << here;
    // The toolkit's own parts of a control, such as the rows of a list, have no object.
    const auto *widget = qobject_cast<const QWidget *>(object);
    const bool ownControl = widget != nullptr && widget->focusPolicy() != Qt::NoFocus;
    if (ownControl && NeedsName(*item)) {
        EXPECT_FALSE(NameOf(item).empty()) << here;
    }
    for (int child = 0; child < item->childCount(); ++child) {
        if (QAccessibleInterface *part = item->child(child)) {
            WalkTree(part, walk, here, depth + 1);
        }
    }
}

Walk WalkWindow(QWidget *window)
{
    QCoreApplication::processEvents();
    Walk walk;
    WalkTree(QAccessible::queryAccessibleInterface(window), walk, "");
    return walk;
}

QWidget *WindowTitled(const QString &title)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowTitle() == title) {
            return window;
        }
    }
    return nullptr;
}

TEST(AccessibleTree, MainWindowNamesItsMenusToolbarAndBoard)
{
    const Program program;
    const Walk walk = WalkWindow(program.Main.get());
    EXPECT_GT(walk.Items, 81 + 15);
    EXPECT_TRUE(walk.Roles.contains(QAccessible::MenuBar));
    EXPECT_TRUE(walk.Roles.contains(QAccessible::Cell));
    EXPECT_TRUE(walk.Roles.contains(QAccessible::Button));
}

TEST(AccessibleTree, EveryTabOfTheConfigurationScreenNamesItsControls)
{
    const Program program;
    for (CurrentTab = NewGamesTab; CurrentTab <= CoordinatesTab; ++CurrentTab) {
        ShowConfigureScreen();
        QWidget *screen = WindowTitled("Configure");
        ASSERT_NE(screen, nullptr);
        EXPECT_GT(WalkWindow(screen).Items, 20) << CurrentTab;
    }
}

TEST(AccessibleTree, SolutionsAndStatisticsNameTheirControls)
{
    const Program program;
    mnuShowSolution();
    mnuStatistics();
    for (const char *title : {"Solutions", "Statistics"}) {
        QWidget *screen = WindowTitled(title);
        ASSERT_NE(screen, nullptr) << title;
        EXPECT_GT(WalkWindow(screen).Items, 4) << title;
    }
}

TEST(AccessibleTree, FileDialogNamesItsControls)
{
    const Program program;
    DialogCaption = OpenGameCaption;
    SelectFileType(SudokuFiles);
    FileDialog dialog(program.Main.get(), SudokuFiles);
    dialog.open();
    EXPECT_GT(WalkWindow(&dialog).Items, 8);
}

TEST(AccessibleTree, HelpNamesItsControls)
{
    const Program program;
    ShowHelpTopic(0);
    QWidget *help = nullptr;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowTitle().contains("Help")) {
            help = window;
        }
    }
    ASSERT_NE(help, nullptr);
    EXPECT_GT(WalkWindow(help).Items, 10);
    help->close();
}

TEST(AccessibleTree, AboutNamesItsControls)
{
    const Program program;
    const int looks = WhileModal<QDialog>(ShowAboutScreen, [](QDialog &screen) {
        EXPECT_GT(WalkWindow(&screen).Items, 2);
        screen.close();
    });
    EXPECT_EQ(looks, 1);
}

} // namespace
} // namespace kelvarine::testing
