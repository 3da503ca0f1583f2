#include "board/look.h"
#include "game/clock.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/keys.h"
#include "input/menu_table.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/scenario.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr CellWord AllInView = 0x3FE;
constexpr CellWord OnlyThree = 0x8;

class Menus : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

struct Entry {
    const MenuRow *Row;
    std::int32_t Number;
    std::string Shortcut;
};

// The entries as they stand on the screen, a row of numbers spread out.
std::vector<Entry> Entries()
{
    std::vector<Entry> entries;
    for (const MenuRow &row : MenuTable) {
        for (std::int32_t number = row.First; number <= row.Last; ++number) {
            entries.push_back({&row, number, WithNumber(row.Shortcut, number)});
        }
    }
    return entries;
}

// "level name | caption | shortcut" of an entry.
std::string Line(const Entry &entry)
{
    return std::to_string(entry.Row->Level) + " " + std::string(entry.Row->Name) + " | " +
           WithNumber(entry.Row->Caption, entry.Number) + " | " + entry.Shortcut;
}

Entry EntryNamed(std::string_view name, std::int32_t number = 0)
{
    for (const Entry &entry : Entries()) {
        if (entry.Row->Name == name && entry.Number == number) {
            return entry;
        }
    }
    throw std::invalid_argument(std::string(name));
}

void Choose(std::string_view name, std::int32_t number = 0)
{
    EntryNamed(name, number).Row->Run(number);
}

bool IsEnabled(std::string_view name)
{
    return EntryNamed(name).Row->Enabled(0);
}

bool IsChecked(std::string_view name, std::int32_t number = 0)
{
    return EntryNamed(name, number).Row->Checked(number);
}

// Every row as level, name, caption and shortcut.
const Texts AllLines{
    "1 mnuGame | &Game | ",
    "2 mnuNew | &New | ",
    "3 mnuGameRandom | &Random | Ctrl+N",
    "3 mnuGameClipboard | From &clipboard | Ctrl+V",
    "3 mnuGameTextString | From &text string | Ctrl+T",
    "3 mnuGameBlankGrid | &Blank grid | Ctrl+B",
    "2 mnuRestartSameGame | &Restart | Ctrl+R",
    "2 mnuOpen | &Open | Ctrl+O",
    "2 mnuSave | &Save | Ctrl+S",
    "2 mnuSaveAs | Save &As | Ctrl+A",
    "2 mnuCopy2Clipboard | Copy to clip&board | ",
    "3 mnuCopyGridFormat | &Grid format | Ctrl+C",
    "3 mnuCopySingleLineFormat | &Single-line format | Ctrl+ -",
    "2 mnuPrint | &Print | Ctrl+P",
    "2 mnuBreak1 | - | ",
    "2 mnuConfigure | &Configure ... | ",
    "1 mnuAction | &Action | ",
    "2 mnuUndo | &UnDo (Page Up) | Ctrl+Z",
    "2 mnuReDo | R&eDo (Page Dn) | Ctrl+Y",
    "2 mnuBreak2 | - | ",
    "2 mnuSet | Place ca&ndidates | ",
    "3 mnuSetNumbers | &1 | ",
    "3 mnuSetNumbers | &2 | ",
    "3 mnuSetNumbers | &3 | ",
    "3 mnuSetNumbers | &4 | ",
    "3 mnuSetNumbers | &5 | ",
    "3 mnuSetNumbers | &6 | ",
    "3 mnuSetNumbers | &7 | ",
    "3 mnuSetNumbers | &8 | ",
    "3 mnuSetNumbers | &9 | ",
    "2 mnuInsert | &Add candidates | ",
    "3 mnuInsertNumber | &All | Insert",
    "3 mnuInsertNumber | &1 | Ctrl+1",
    "3 mnuInsertNumber | &2 | Ctrl+2",
    "3 mnuInsertNumber | &3 | Ctrl+3",
    "3 mnuInsertNumber | &4 | Ctrl+4",
    "3 mnuInsertNumber | &5 | Ctrl+5",
    "3 mnuInsertNumber | &6 | Ctrl+6",
    "3 mnuInsertNumber | &7 | Ctrl+7",
    "3 mnuInsertNumber | &8 | Ctrl+8",
    "3 mnuInsertNumber | &9 | Ctrl+9",
    "2 mnuDelete | Re&move candidates | ",
    "3 mnuDeleteNumber | &All | Del",
    "3 mnuDeleteNumber | &1 | Shift+1",
    "3 mnuDeleteNumber | &2 | Shift+2",
    "3 mnuDeleteNumber | &3 | Shift+3",
    "3 mnuDeleteNumber | &4 | Shift+4",
    "3 mnuDeleteNumber | &5 | Shift+5",
    "3 mnuDeleteNumber | &6 | Shift+6",
    "3 mnuDeleteNumber | &7 | Shift+7",
    "3 mnuDeleteNumber | &8 | Shift+8",
    "3 mnuDeleteNumber | &9 | Shift+9",
    "2 mnuBreak3 | - | ",
    "2 mnuTakeSnapshot | Take &snapshot | S",
    "2 mnuUseSnapshot | &Use snapshot | U",
    "2 mnuBreak4 | - | ",
    "2 mnuSelectColumn | Select &column | C",
    "2 mnuSelectRow | Select &row | R",
    "2 mnuSelectBox | Select &box | B",
    "2 mnuSelectDomain | Select &domain | D",
    "2 mnuSelectPeers | Select &peers | P",
    "2 mnuSelectIntersection | Select &intersection | I",
    "2 mnuSelectWholeGrid | Select &whole grid | W",
    "2 mnuBreak5 | - | ",
    "2 mnuGridOrientation | Grid &orientation | ",
    "3 mnuRotateGrid90Left | Rotate 90` &left | Shift+L",
    "3 mnuRotateGrid90Right | Rotate 90` &right | Shift+R",
    "3 mnuMirrorGrid | &Mirror (horizontal) | Shift+M",
    "3 mnuFlipGrid | &Flip (vertical) | Shift+F",
    "1 mnuView | &View | ",
    "2 mnuViewToolBar | &Toolbar | ",
    "2 mnuViewToolTips | T&oolbar tips | ",
    "2 mnuViewCoordinates | &Coordinates | ",
    "2 mnuAlerts | &Alerts ... | ",
    "2 mnuStrong | &Strong links | ",
    "3 mnuStrongLinks | &Never | ",
    "3 mnuStrongLinks | &Only in isolated views | ",
    "3 mnuStrongLinks | &Always | ",
    "2 mnuIsolatedNumbers | &Isolated numbers | ",
    "3 mnuGridView | &All | Ctrl+Shift+0",
    "3 mnuGridView | &1's | Ctrl+Shift+1",
    "3 mnuGridView | &2's | Ctrl+Shift+2",
    "3 mnuGridView | &3's | Ctrl+Shift+3",
    "3 mnuGridView | &4's | Ctrl+Shift+4",
    "3 mnuGridView | &5's | Ctrl+Shift+5",
    "3 mnuGridView | &6's | Ctrl+Shift+6",
    "3 mnuGridView | &7's | Ctrl+Shift+7",
    "3 mnuGridView | &8's | Ctrl+Shift+8",
    "3 mnuGridView | &9's | Ctrl+Shift+9",
    "1 mnuStatistics | &Statistics | ",
    "1 mnuHelp | &Help | ",
    "2 mnuHelpContents | &Contents ... | ",
    "2 mnuBreak6 | - | ",
    "2 mnuHint | &Hint | H",
    "2 mnuShowAlertReason | Show reason for &alert in selected cell | A",
    "2 mnuShowLogicNeeded | Show &logic needed to solve | L",
    "2 mnuApplyLogic | Apply selected solve l&ogic | Ctrl+L",
    "2 mnuShowSolution | Show &solution(s) | ",
    "2 mnuSolveGame | Solve this ga&me | Shift+Z",
    "2 mnuBreak7 | - | ",
    "2 mnuHideSelectedCellsConditional | Hide selected cells (co&nditional) | Ctrl+H",
    "2 mnuHideSelectedCellsForce | Hide selected cells (a&bsolute) | Shift+H",
    "2 mnuExposeSelectedCells | E&xpose selected cells | Ctrl+X",
    "2 mnuMakeGiven | Make selected cells &given | Ctrl+G",
    "2 mnuAbout | Abo&ut Kelvarine ... | ",
    "1 mnuTime | &Time | ",
    "2 mnuPauseTime | &Pause | F12",
    "2 mnuResetTime | &Reset | ",
};

TEST_F(Menus, StandInOrderWithTheirCaptionsAndShortcuts)
{
    Texts lines;
    for (const Entry &entry : Entries()) {
        lines.push_back(Line(entry));
    }
    EXPECT_EQ(lines, AllLines);
}

TEST_F(Menus, EveryEntryActsOrLeadsFurther)
{
    const std::vector<Entry> entries = Entries();
    for (std::size_t k = 0; k < entries.size(); ++k) {
        const MenuRow &row = *entries[k].Row;
        const bool leads = k + 1 < entries.size() && entries[k + 1].Row->Level == row.Level + 1;
        const bool separates = row.Caption == "-";
        EXPECT_EQ(row.Run != nullptr, !leads && !separates) << row.Name;
        EXPECT_TRUE(row.Level != 1 || leads || row.Name == "mnuStatistics") << row.Name;
    }
}

TEST_F(Menus, CaptionsOfTheClockFollowIt)
{
    EXPECT_EQ(MenuCaption(*EntryNamed("mnuTime").Row, 0), "&Time");
    EXPECT_EQ(MenuCaption(*EntryNamed("mnuPauseTime").Row, 0), "Pause");
    ResetSolveTime();
    ClockTick();
    mnuPauseTime();
    EXPECT_EQ(MenuCaption(*EntryNamed("mnuTime").Row, 0), "Paused at 0:01 ");
    EXPECT_EQ(MenuCaption(*EntryNamed("mnuPauseTime").Row, 0), "Resume");
    EXPECT_EQ(MenuCaption(*EntryNamed("mnuGridView", 7).Row, 7), "&7's");
}

// ---- Shortcuts -----------------------------------------------------------------------------

struct KeyPress {
    std::int32_t Code;
    std::int32_t Shift;
};

// The key that a shortcut text promises.
std::optional<KeyPress> KeyOf(std::string_view shortcut)
{
    KeyPress key{0, 0};
    const auto take = [&](std::string_view prefix, std::int32_t shift) {
        if (shortcut.starts_with(prefix)) {
            shortcut.remove_prefix(prefix.size());
            key.Shift += shift;
        }
    };
    take("Ctrl+", 2);
    take("Shift+", 1);
    if (shortcut == "Insert") {
        key.Code = 45;
    } else if (shortcut == "Del") {
        key.Code = 46;
    } else if (shortcut == " -") {
        key.Code = 189;
    } else if (shortcut.size() == 1) {
        key.Code = static_cast<unsigned char>(shortcut.front());
    } else {
        return std::nullopt;
    }
    return key;
}

TEST_F(Menus, EntryDoesWhatTheKeyOfItsShortcutDoes)
{
    int compared = 0;
    for (const Entry &entry : Entries()) {
        const std::optional<KeyPress> key = KeyOf(entry.Shortcut);
        // The view entries repaint in their own way, see below.
        if (!key || entry.Row->Name == "mnuGridView") {
            continue;
        }
        for (const CellWord filter : {AllInView, OnlyThree}) {
            const std::string byMenu = StateAfter([&] { entry.Row->Run(entry.Number); }, filter);
            const std::string byKey = StateAfter([&] { KeyDown(key->Code, key->Shift); }, filter);
            EXPECT_EQ(byMenu, byKey) << Line(entry);
            // With the threes alone in view a key of another number does nothing.
            EXPECT_TRUE(filter == OnlyThree || byKey != StateAfter([] {}, filter)) << Line(entry);
        }
        ++compared;
    }
    EXPECT_EQ(compared, 55);
}

TEST_F(Menus, PlacedNumbersAreThePlainDigits)
{
    for (std::int32_t number = 1; number <= 9; ++number) {
        EXPECT_EQ(StateAfter([&] { Choose("mnuSetNumbers", number); }, AllInView),
                  StateAfter([&] { KeyDown(48 + number, 0); }, AllInView));
    }
}

TEST_F(Menus, ViewEntriesChangeTheFilterAndPaintOnce)
{
    for (std::int32_t number = 0; number <= 9; ++number) {
        for (const CellWord filter : {AllInView, OnlyThree}) {
            SetScenario(filter);
            Choose("mnuGridView", number);
            EXPECT_EQ(NumberFilter, number == 0 ? AllInView : BitOf(number));
            EXPECT_EQ(Seen.Calls, Texts{"board: "});
        }
    }
}

TEST_F(Menus, StrongLinksAreChosenAndPaintedOnce)
{
    for (const std::int32_t mode : {2, 0, 1}) {
        SetScenario(AllInView);
        Choose("mnuStrongLinks", mode);
        EXPECT_EQ(StrongLinkMode, mode);
        EXPECT_EQ(Seen.Calls, Texts{"board: "});
    }
}

TEST_F(Menus, PauseIsNoKeyOfTheBoard)
{
    EXPECT_EQ(EntryNamed("mnuPauseTime").Shortcut, "F12");
    SetScenario(AllInView);
    Choose("mnuPauseTime");
    EXPECT_EQ(ClockRunning, False);
    EXPECT_EQ(PauseCaption, "Resume");
    Choose("mnuResetTime");
    EXPECT_EQ(ClockRunning, True);
    EXPECT_EQ(PauseCaption, "Pause");
}

// ---- State of the entries ------------------------------------------------------------------

TEST_F(Menus, UndoAndRedoAreEnabledByTheirLevels)
{
    const auto at = [](std::int32_t position, std::int32_t count) {
        HistoryPosition = position;
        HistoryCount = count;
        return std::pair(IsEnabled("mnuUndo"), IsEnabled("mnuReDo"));
    };
    EXPECT_EQ(at(1, 1), std::pair(false, false));
    EXPECT_EQ(at(1, 2), std::pair(true, false));
    EXPECT_EQ(at(2, 2), std::pair(false, true));
    EXPECT_EQ(at(2, 3), std::pair(true, true));
    EXPECT_EQ(at(0, 0), std::pair(false, false));
}

TEST_F(Menus, SnapshotIsDisabledUntilOneIsTaken)
{
    EXPECT_FALSE(IsEnabled("mnuUseSnapshot"));
    mnuTakeSnapshot();
    EXPECT_TRUE(IsEnabled("mnuUseSnapshot"));
}

TEST_F(Menus, NumbersInViewAreCheckedAndAllNeverIs)
{
    NumberFilter = AllInView;
    EXPECT_FALSE(IsChecked("mnuGridView", 0));
    for (std::int32_t number = 1; number <= 9; ++number) {
        EXPECT_TRUE(IsChecked("mnuGridView", number));
    }
    NumberFilter = OnlyThree;
    for (std::int32_t number = 0; number <= 9; ++number) {
        EXPECT_EQ(IsChecked("mnuGridView", number), number == 3);
    }
}

TEST_F(Menus, CoordinatesStartCheckedAndMakeRoomForThemselves)
{
    EXPECT_TRUE(IsChecked("mnuViewCoordinates"));
    MarginThickness = 27;
    Choose("mnuViewCoordinates");
    EXPECT_EQ(CoordinatesVisible, False);
    EXPECT_FALSE(IsChecked("mnuViewCoordinates"));
    EXPECT_EQ(MarginThickness, 27);
    Choose("mnuViewCoordinates");
    EXPECT_EQ(CoordinatesVisible, True);
    EXPECT_EQ(MarginThickness, 28);
    EXPECT_EQ(Seen.Calls, (Texts{"resize: ", "resize: "}));
    MarginThickness = 40;
    Choose("mnuViewCoordinates");
    Choose("mnuViewCoordinates");
    EXPECT_EQ(MarginThickness, 40);
}

} // namespace
} // namespace kelvarine::testing
