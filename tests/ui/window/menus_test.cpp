#include "board/look.h"
#include "commands/screen_commands.h"
#include "files/text_format.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "generator/game_number.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/menu_table.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_events.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QtTest>
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>
#include <sstream>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

// ---- The table and the menus side by side --------------------------------------------------

// An entry of the table, a row of numbers spread out, and the toolkit's action for it.
struct Entry {
    const MenuRow *Row = nullptr;
    std::int32_t Number = 0;
    int Level = 0; // where the action stands
    QAction *Action = nullptr;
    QMenu *Menu = nullptr; // that holds the action; null in a bar
    QMenu *Top = nullptr;  // the top-level menu above it

    [[nodiscard]] std::string Name() const
    {
        return std::string(Row->Name) + " " + std::to_string(Number);
    }

    // What an action named so and of that number is expected to say.
    [[nodiscard]] std::string Text() const
    {
        const std::string shortcut = WithNumber(Row->Shortcut, Number);
        const bool shown = !shortcut.empty() && shortcut != "F12";
        return MenuCaption(*Row, Number) + (shown ? "\t" + shortcut : "");
    }
};

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

// The entries in the order of the screen; row and number of each from the order of the table.
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

Entry EntryNamed(const MainWindow &window, std::string_view name, std::int32_t number = 0)
{
    for (const Entry &entry : EntriesOf(window)) {
        if (entry.Row->Name == name && entry.Number == number) {
            return entry;
        }
    }
    ADD_FAILURE() << "no entry " << name;
    return {};
}

std::string NameOf(const QAction &action)
{
    const QObject *named = action.menu() != nullptr ? static_cast<QObject *>(action.menu())
                                                    : const_cast<QAction *>(&action);
    return named->objectName().toStdString();
}

class MenuBar : public ::testing::Test {
protected:
    MenuBar()
    {
        program = std::make_unique<Program>();
    }

    void SetUp() override
    {
        Activate();
    }

    // A program as at the start.
    void Renew()
    {
        program.reset();
        program = std::make_unique<Program>();
        Activate();
    }

    void Activate()
    {
        program->Main->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(program->Main.get(), Patience));
    }

    [[nodiscard]] MainWindow &Main() const
    {
        return *program->Main;
    }

    std::unique_ptr<Program> program;
};

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

// Opens the menus above an entry and clicks on it, as a player does.
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

TEST_F(MenuBar, ShowsTheTableInItsOrder)
{
    for (const Entry &entry : EntriesOf(Main())) {
        EXPECT_EQ(entry.Level, entry.Row->Level) << entry.Name();
        if (entry.Row->Caption == "-") {
            EXPECT_TRUE(entry.Action->isSeparator()) << entry.Name();
            continue;
        }
        EXPECT_EQ(NameOf(*entry.Action), entry.Row->Name);
        if (entry.Row->Name != "mnuTime") { // its caption is the clock
            EXPECT_EQ(entry.Action->text().toStdString(), entry.Text());
        }
        EXPECT_EQ(entry.Action->menu() == nullptr, entry.Row->Run != nullptr) << entry.Name();
        EXPECT_EQ(entry.Action->isCheckable(), entry.Row->Checked != nullptr) << entry.Name();
    }
}

TEST_F(MenuBar, PauseAloneHasATrueAccelerator)
{
    int accelerators = 0;
    for (const Entry &entry : EntriesOf(Main())) {
        const bool pause = entry.Row->Name == "mnuPauseTime";
        EXPECT_EQ(entry.Action->shortcut(), pause ? QKeySequence(Qt::Key_F12) : QKeySequence())
            << entry.Name();
        accelerators += pause ? 1 : 0;
    }
    EXPECT_EQ(accelerators, 1);
}

// ---- What the entries do -------------------------------------------------------------------

// A saved game in its middle: cells selected, levels to undo and redo, a snapshot, alerts, links
// that none of the entries names, and so many numbers in view.
void SetScene(CellWord filter = CandidateMask)
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

// Everything that an entry may change and the windows that are open, as text.
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

void CloseOtherWindows(const MainWindow &main)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window != &main) {
            window->close();
        }
    }
}

struct KeyPress {
    int Key = 0;
    Qt::KeyboardModifiers Modifiers;
};

// The key that a shortcut text promises.
std::optional<KeyPress> KeyOf(std::string shortcut)
{
    KeyPress key;
    const auto take = [&](const std::string &prefix, Qt::KeyboardModifier modifier) {
        if (shortcut.starts_with(prefix)) {
            shortcut.erase(0, prefix.size());
            key.Modifiers |= modifier;
        }
    };
    take("Ctrl+", Qt::ControlModifier);
    take("Shift+", Qt::ShiftModifier);
    const std::map<std::string, int> named{{"Insert", Qt::Key_Insert},
                                           {"Del", Qt::Key_Delete},
                                           {"F12", Qt::Key_F12},
                                           {" -", Qt::Key_Minus}};
    if (const auto found = named.find(shortcut); found != named.end()) {
        key.Key = found->second;
    } else if (shortcut.size() == 1) {
        key.Key = static_cast<unsigned char>(shortcut.front());
    } else {
        return std::nullopt;
    }
    return key;
}

using Act = std::function<void(const Entry &)>;

class EntryOfMenu : public MenuBar {
protected:
    // The state after an act on the k-th entry of a fresh program, and the windows that came.
    std::string After(std::size_t k, CellWord filter, const Act &act)
    {
        Renew();
        SetScene(filter);
        const Entry entry = EntriesOf(Main())[k];
        std::string state;
        const Texts windows = CloseModals([&] {
            act(entry);
            QCoreApplication::processEvents();
            state = StateNow();
        });
        CloseOtherWindows(Main());
        for (const std::string &window : windows) {
            state += "\nmodal " + window;
        }
        return state;
    }

    void PressKey(const KeyPress &key)
    {
        QTest::keyClick(Main().Client->Board, static_cast<Qt::Key>(key.Key), key.Modifiers);
    }

    // Compares the three ways to an entry; true when the entry did something.
    bool CompareWays(std::size_t k, CellWord filter)
    {
        const Entry entry = EntriesOf(Main())[k];
        const std::string byMenu = After(k, filter, Choose);
        EXPECT_EQ(byMenu, After(k, filter, [](const Entry &same) { same.Row->Run(same.Number); }))
            << entry.Name();
        if (const auto key = KeyOf(WithNumber(entry.Row->Shortcut, entry.Number))) {
            EXPECT_EQ(byMenu, After(k, filter, [&](const Entry &) { PressKey(*key); }))
                << entry.Name();
            ++keysCompared;
        }
        return byMenu != After(k, filter, [](const Entry &) {});
    }

    int keysCompared = 0;
};

TEST_F(EntryOfMenu, DoesWhatItsRowAndItsKeyDo)
{
    const std::size_t count = EntriesOf(Main()).size();
    for (std::size_t k = 0; k < count; ++k) {
        const Entry entry = EntriesOf(Main())[k];
        if (entry.Row->Run == nullptr) {
            continue;
        }
        const bool acts = CompareWays(k, CandidateMask);
        const bool actsOnThree = CompareWays(k, BitTable[3]);
        EXPECT_TRUE(acts || actsOnThree) << entry.Name() << " does nothing";
    }
    EXPECT_GE(keysCompared, 100);
}

// ---- States when a menu opens --------------------------------------------------------------

void ExpectStatesAsTold(const MainWindow &main)
{
    for (const Entry &entry : EntriesOf(main)) {
        if (entry.Menu == nullptr || entry.Action->menu() != nullptr) {
            continue;
        }
        Open(entry.Top);
        const bool enabled = entry.Row->Enabled == nullptr || entry.Row->Enabled(entry.Number);
        EXPECT_TRUE(entry.Action->isSeparator() || entry.Action->isEnabled() == enabled)
            << entry.Name();
        EXPECT_EQ(entry.Action->isChecked(),
                  entry.Row->Checked != nullptr && entry.Row->Checked(entry.Number))
            << entry.Name();
        CloseMenus();
    }
}

TEST_F(MenuBar, EntriesAreUpToDateWhenTheirMenuOpens)
{
    ExpectStatesAsTold(Main());
    SetScene();
    ExpectStatesAsTold(Main());
    NumberFilter = BitTable[3];
    StrongLinkMode = 2;
    ToolbarVisible = False;
    ToolTipsVisible = False;
    CoordinatesVisible = False;
    ExpectStatesAsTold(Main());
}

TEST_F(MenuBar, EntriesHaveTheirStateBeforeTheirMenuWasEverOpened)
{
    for (const char *name : {"mnuViewToolBar", "mnuViewToolTips", "mnuViewCoordinates"}) {
        EXPECT_TRUE(EntryNamed(Main(), name).Action->isChecked()) << name;
    }
    EXPECT_FALSE(EntryNamed(Main(), "mnuUseSnapshot").Action->isEnabled());
    EXPECT_FALSE(EntryNamed(Main(), "mnuUndo").Action->isEnabled());
    EXPECT_TRUE(EntryNamed(Main(), "mnuStrongLinks", 1).Action->isChecked());
}

TEST_F(MenuBar, UndoAndRedoFollowTheHistory)
{
    const auto states = [&] {
        Open(EntryNamed(Main(), "mnuUndo").Top);
        const std::pair enabled(EntryNamed(Main(), "mnuUndo").Action->isEnabled(),
                                EntryNamed(Main(), "mnuReDo").Action->isEnabled());
        CloseMenus();
        return enabled;
    };
    EXPECT_EQ(states(), std::pair(false, false));
    PushUndoState();
    EXPECT_EQ(states(), std::pair(true, false));
    Choose(EntryNamed(Main(), "mnuUndo"));
    EXPECT_EQ(states(), std::pair(false, true));
    Choose(EntryNamed(Main(), "mnuReDo"));
    EXPECT_EQ(states(), std::pair(true, false));
}

TEST_F(MenuBar, NumbersInViewAndLinksAreChecked)
{
    const auto checks = [&](std::string_view name, std::int32_t last) {
        Open(EntryNamed(Main(), "mnuIsolatedNumbers").Top);
        std::string line;
        for (std::int32_t number = 0; number <= last; ++number) {
            line += EntryNamed(Main(), name, number).Action->isChecked() ? 'x' : '.';
        }
        CloseMenus();
        return line;
    };
    EXPECT_EQ(checks("mnuGridView", 9), ".xxxxxxxxx") << "All never is";
    EXPECT_EQ(checks("mnuStrongLinks", 2), ".x.");
    Choose(EntryNamed(Main(), "mnuGridView", 7));
    EXPECT_EQ(checks("mnuGridView", 9), ".......x..");
    Choose(EntryNamed(Main(), "mnuGridView", 7)); // again, which leaves it checked
    EXPECT_EQ(checks("mnuGridView", 9), ".......x..");
    Choose(EntryNamed(Main(), "mnuStrongLinks", 2));
    EXPECT_EQ(checks("mnuStrongLinks", 2), "..x");
}

TEST_F(MenuBar, TipsCannotBeChosenWithoutAToolbar)
{
    const Entry tips = EntryNamed(Main(), "mnuViewToolTips");
    Choose(EntryNamed(Main(), "mnuViewToolBar"));
    Choose(tips);
    EXPECT_NE(ToolTipsVisible, False);
    Choose(EntryNamed(Main(), "mnuViewToolBar"));
    Choose(tips);
    EXPECT_EQ(ToolTipsVisible, False);
    EXPECT_EQ(ToolButtonOf(Main(), 0)->toolTip(), "");
}

// ---- Opening -------------------------------------------------------------------------------

TEST_F(MenuBar, ClickOpensAMenu)
{
    QMenuBar *bar = Main().menuBar();
    QAction *view = EntryNamed(Main(), "mnuView").Action;
    SendMouse(bar, QEvent::MouseButtonPress, bar->actionGeometry(view).center(), Qt::LeftButton,
              Qt::LeftButton);
    EXPECT_EQ(QApplication::activePopupWidget(), view->menu());
    CloseMenus();
}

TEST_F(MenuBar, OpeningAMenuEndsTheWinDisplay)
{
    for (const Entry &entry : EntriesOf(Main())) {
        if (entry.Level == 1 && entry.Action->menu() != nullptr) {
            StartWinDisplay();
            Open(entry.Action->menu());
            EXPECT_EQ(WinDisplayRunning, False) << entry.Name();
            EXPECT_TRUE(entry.Action->menu()->isVisible());
            CloseMenus();
        }
    }
}

class MenuDuringASearch : public MenuBar {
protected:
    void SetUp() override
    {
        MenuBar::SetUp();
        SearchActive = True;
    }

    void TearDown() override
    {
        SearchActive = False;
        SearchKind = 0;
    }
};

TEST_F(MenuDuringASearch, AsksAndHasNothingToOffer)
{
    const Texts question{"Kelvarine: Would you like to stop searching?"};
    for (const Entry &entry : EntriesOf(Main())) {
        if (entry.Level != 1 || entry.Action->menu() == nullptr) {
            continue;
        }
        for (const std::int32_t kind : {0, 1, 4}) {
            SearchKind = kind;
            const Texts boxes = CloseModals([&] {
                Open(entry.Action->menu());
                QCoreApplication::processEvents();
            });
            EXPECT_EQ(boxes, kind == 1 ? question : Texts{}) << entry.Name();
            EXPECT_FALSE(entry.Action->menu()->isVisible()) << entry.Name();
            CloseMenus();
        }
    }
}

TEST_F(MenuDuringASearch, YesStopsTheSearchAndStillOffersNothing)
{
    SearchKind = 1;
    QMenu *menu = EntryNamed(Main(), "mnuAction").Action->menu();
    AnswerBoxes(
        [&] {
            Open(menu);
            QCoreApplication::processEvents();
        },
        {QMessageBox::Yes});
    EXPECT_EQ(SearchActive, False);
    EXPECT_FALSE(menu->isVisible());
    CloseMenus();
}

TEST_F(MenuDuringASearch, EntriesOnlyAsk)
{
    SearchActive = False;
    SetScene();
    SearchActive = True;
    for (const Entry &entry : EntriesOf(Main())) {
        if (entry.Row->Run == nullptr) {
            continue;
        }
        for (const std::int32_t kind : {1, 4}) {
            SearchKind = kind;
            entry.Action->setEnabled(true);
            const std::string before = StateNow();
            const Texts boxes = CloseModals([&] { entry.Action->trigger(); });
            EXPECT_EQ(boxes.size(), kind == 1 ? 1U : 0U) << entry.Name();
            EXPECT_EQ(StateNow(), before) << entry.Name();
        }
    }
}

// ---- The clock's menu ----------------------------------------------------------------------

TEST_F(MenuBar, PauseKeyWorksFromTheBoardAndFromAButton)
{
    const QAction *pause = EntryNamed(Main(), "mnuPauseTime").Action;
    ResetSolveTime();
    QTest::keyClick(Main().Client->Board, Qt::Key_F12);
    EXPECT_TRUE(IsPaused());
    EXPECT_EQ(pause->text(), "Resume");
    EXPECT_TRUE(Main().menuBar()->actions().back()->text().startsWith("Paused at "));
    QWidget *button = ToolButtonOf(Main(), 14);
    button->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button, Qt::Key_F12);
    EXPECT_FALSE(IsPaused());
    EXPECT_EQ(pause->text(), "Pause");
    EXPECT_EQ(ToolMode, 0) << "the button has not seen the key";
}

TEST_F(MenuBar, PauseKeyWorksFromEveryOtherScreen)
{
    ResetSolveTime();
    mnuStatistics();
    mnuShowSolution();
    mnuConfigure();
    bool paused = false;
    for (const char *name : {"frmStatistics", "frmSolutions", "frmConfigure"}) {
        auto *screen = Main().findChild<QWidget *>(name);
        ASSERT_NE(screen, nullptr) << name;
        screen->activateWindow();
        QTest::keyClick(screen, Qt::Key_F12);
        paused = !paused;
        EXPECT_EQ(IsPaused(), paused) << name;
    }
}

TEST_F(MenuBar, PausedBoardHidesItsNumbers)
{
    SetGame(EasyGame);
    StartGame(NewGame);
    const auto picture = [&] {
        return Main()
            .Client->Board->grab(QRect(CentreOf(1, 1) - QPoint(15, 15), QSize(30, 30)))
            .toImage();
    };
    QTest::keyClick(Main().Client->Board, Qt::Key_F12);
    QTest::keyClick(Main().Client->Board, Qt::Key_F12);
    const QImage shown = picture();
    QTest::keyClick(Main().Client->Board, Qt::Key_F12);
    const QImage hidden = picture();
    EXPECT_NE(shown, hidden);
    EXPECT_EQ(hidden.pixel(15, 15), hidden.pixel(2, 2)) << "one plain colour";
}

} // namespace
} // namespace kelvarine::testing
