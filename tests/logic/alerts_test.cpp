#include "game/alert_scan.h"
#include "game/event_sound.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "logic/alerts.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/random_positions.h"
#include "support/traces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine::testing {
namespace {

constexpr std::uint32_t NakedSingles = 0x2;
constexpr std::uint32_t HiddenSingles = 0x4;
constexpr std::uint32_t AllSingles = NakedSingles | HiddenSingles;

// What a scan leaves on a drawn position, with one cell selected when it is given.
// What a scan leaves. The scratch marks are the techniques' own affair and are left out.
std::string TracesOfScan(std::int32_t mode, std::string_view drawing, Cell selected = {})
{
    const auto scan = [](std::int32_t scanMode, Flag &) {
        ScanAlerts(scanMode);
        ClearCellBits(ScratchMarks);
    };
    return TracesOf(scan, mode, drawing, selected);
}

class Alerts : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        // Singles are all that these tests build on, whatever other techniques there are.
        LevelTable = {0, AllSingles, 0, 0, 0, 0, 0, 0, 0, 0};
        AlertMask = AllSingles;
    }
};

// ---- Conflicts of givens -------------------------------------------------------------------

// The two fives stand in column B, far apart. Row 9 lacks the 9 at its end.
constexpr std::string_view ClashInAColumn = R"(
    .   [5] .   .   .   .   .   .   .
    .   .   .   .   .   .   .   .   .
    .   .   .   .   .   .   .   .   .
    .   .   .   .   .   .   .   .   .
    .   .   .   .   .   .   .   .   .
    .   .   .   .   .   .   .   .   .
    .   [5] .   .   .   .   .   .   .
    .   .   .   .   .   .   .   .   .
    [1] [2] [3] [4] [5] [6] [7] [8] .
)";

constexpr std::string_view ClashInARow = R"(
    . . .   . . . . .   .
    . . .   . . . . .   .
    . . .   . . . . .   .
    . . [7] . . . . [7] .
    . . .   . . . . .   .
    . . .   . . . . .   .
    . . .   . . . . .   .
    . . .   . . . . .   .
    . . .   . . . . .   .
)";

constexpr std::string_view ClashInABox = R"(
    . . . .   .   .   . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
    . . . [8] .   .   . . .
    . . . .   .   [8] . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
    . . . .   .   .   . . .
)";

TEST_F(Alerts, ClashOfGivensIsToldAndNoTechniqueRuns)
{
    EXPECT_EQ(TracesOfScan(3, ClashInAColumn), "text There's a conflict with given cells.\n");
    EXPECT_EQ(TracesOfScan(4, ClashInAColumn),
              "text There's a conflict with given cells.|It's in a column.\n");
    // B1 is the first given of the scan, so B7 is the other one.
    EXPECT_EQ(TracesOfScan(5, ClashInAColumn),
              "selected B7\n"
              "hint cell B1 B7\n"
              "hint domain B1 B2 B3 B4 B5 B6 B7 B8 B9\n"
              "title Conflict with given cells\n"
              "text Cell [B7] is a given cell which conflicts directly with the given cell [B1] "
              "in the same column.\n");
}

TEST_F(Alerts, TechniquesRunBesideAClashInModeOne)
{
    EXPECT_EQ(TracesOfScan(1, ClashInAColumn), "alert B1 B7 J9\n");
}

TEST_F(Alerts, ClashIsExplainedFromTheSelectedCell)
{
    EXPECT_EQ(TracesOfScan(2, ClashInAColumn, MakeCell(2, 7)),
              "selected B7\n"
              "hint cell B1 B7\n"
              "hint domain B1 B2 B3 B4 B5 B6 B7 B8 B9\n"
              "title Conflict with given cells\n"
              "text Cell [B7] is a given cell which conflicts directly with the given cell [B1] "
              "in the same column.\n");
    EXPECT_EQ(TracesOfScan(2, ClashInAColumn, MakeCell(2, 1)),
              "selected B1\n"
              "hint cell B1 B7\n"
              "hint domain B1 B2 B3 B4 B5 B6 B7 B8 B9\n"
              "title Conflict with given cells\n"
              "text Cell [B1] is a given cell which conflicts directly with the given cell [B7] "
              "in the same column.\n");
    EXPECT_EQ(TracesOfScan(2, ClashInAColumn, MakeCell(1, 1)), "selected A1\n");
}

TEST_F(Alerts, ClashInARowIsNamedInThePlayersStyle)
{
    ColumnFormat = 2;
    RowFormat = 1;
    CoordSeparator = 2;
    CoordBrackets = 4;
    EXPECT_EQ(TracesOfScan(4, ClashInARow),
              "text There's a conflict with given cells.|It's in a row.\n");
    EXPECT_EQ(TracesOfScan(5, ClashInARow),
              "selected H4\n"
              "hint cell C4 H4\n"
              "hint domain A4 B4 C4 D4 E4 F4 G4 H4 J4\n"
              "title Conflict with given cells\n"
              "text Cell <h-D> is a given cell which conflicts directly with the given cell <c-D> "
              "in the same row.\n");
    EXPECT_EQ(TracesOfScan(1, ClashInARow), "alert C4 H4\n");
}

TEST_F(Alerts, ClashInABox)
{
    EXPECT_EQ(TracesOfScan(4, ClashInABox),
              "text There's a conflict with given cells.|It's in a box.\n");
    EXPECT_EQ(TracesOfScan(5, ClashInABox),
              "selected F5\n"
              "hint cell D4 F5\n"
              "hint domain D4 D5 D6 E4 E5 E6 F4 F5 F6\n"
              "title Conflict with given cells\n"
              "text Cell [F5] is a given cell which conflicts directly with the given cell [D4] "
              "in the same box.\n");
    EXPECT_EQ(TracesOfScan(1, ClashInABox), "alert D4 F5\n");
}

// Two givens in the same column and box: the column comes first.
TEST_F(Alerts, ClashInColumnAndBoxMarksBothAndTellsTheColumn)
{
    constexpr std::string_view both = R"(
        [3] . . . . . . . .
        [3] . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
    )";
    EXPECT_EQ(TracesOfScan(1, both), "alert A1 A2\n");
    EXPECT_EQ(TracesOfScan(4, both),
              "text There's a conflict with given cells.|It's in a column.\n");
}

TEST_F(Alerts, GivenConflictsAreFoundInModeZeroToo)
{
    for (const std::string_view clash : {ClashInAColumn, ClashInARow, ClashInABox}) {
        SetPencilmarks(clash);
        EXPECT_TRUE(FindGivenConflicts(0));
    }
}

TEST_F(Alerts, NumbersThatAreNoGivensDoNotClash)
{
    SetPencilmarks(ClashInARow);
    Grid[8][4] &= ~GivenBit;
    EXPECT_FALSE(FindGivenConflicts(0));
    SetPencilmarks(ClashInARow);
    Grid[3][4] &= ~GivenBit;
    EXPECT_FALSE(FindGivenConflicts(0));
    SetPencilmarks(ClashInARow);
    Grid[8][4] = GivenBit | BitTable[6];
    EXPECT_FALSE(FindGivenConflicts(0));
}

TEST_F(Alerts, GivenConflictMarksAloneDependOnTheMode)
{
    for (std::int32_t mode = 0; mode <= 5; ++mode) {
        SetPencilmarks(ClashInARow);
        EXPECT_TRUE(FindGivenConflicts(mode));
        EXPECT_EQ(CellsWith(AlertBit), mode == 1 ? "C4 H4" : "");
    }
}

// ---- The scan ------------------------------------------------------------------------------

// E1 is the last cell of its row, A9 the last but one of its column with one number left to it.
// No cell has pencilmarks.
constexpr std::string_view SinglesOfEveryKind = R"(
    [1] [2] [3] [4] . [6] [7] [8] [9]
    .   .   .   .   . .   .   .   .
    .   .   .   .   . .   .   .   .
    [2] .   .   .   . .   .   .   .
    [3] .   .   .   . .   .   .   .
    [4] .   .   .   . .   .   .   .
    [5] .   .   .   . .   .   .   .
    .   .   .   .   . .   .   .   .
    .   [6] [7] .   . .   .   .   [8]
)";

TEST_F(Alerts, ModeOneMarksTheTargetsOfAllSelectedTechniques)
{
    EXPECT_EQ(TracesOfScan(1, SinglesOfEveryKind), "alert A9 E1\n");
    AlertMask = HiddenSingles;
    EXPECT_EQ(TracesOfScan(1, SinglesOfEveryKind), "alert E1\n");
    AlertMask = 0x80000;
    EXPECT_EQ(TracesOfScan(1, SinglesOfEveryKind), "");
}

TEST_F(Alerts, OneTextEndsTheScan)
{
    // The last candidate is told although naked and hidden single would have something to say.
    EXPECT_EQ(TracesOfScan(3, SinglesOfEveryKind), "text There's an unplaced last candidate.\n");
    EXPECT_EQ(TracesOfScan(4, SinglesOfEveryKind),
              "text There's an unplaced last candidate.|It's in a row.\n");
    EXPECT_EQ(TracesOfScan(5, SinglesOfEveryKind),
              "selected E1\n"
              "hint cell E1\n"
              "hint domain A1 B1 C1 D1 E1 F1 G1 H1 J1\n"
              "title Unplaced last candidate\n"
              "text Cell [E1] is the last incomplete cell in row 1|"
              "and must contain the last candidate which is a 5.\n");
}

TEST_F(Alerts, ReasonGoesOnToTheTechniqueThatSpeaksOfTheSelectedCell)
{
    EXPECT_EQ(TracesOfScan(2, SinglesOfEveryKind, MakeCell(1, 9)),
              "selected A9\n"
              "hint cell A9\n"
              "hint domain A1 A2 A3 A4 A5 A6 A7 A8 A9 B7 B8 B9 C7 C8 C9 D9 E9 F9 G9 H9 J9\n"
              "title Unplaced naked single\n"
              "text Cell [A9] must contain a 9 because it's the |"
              "only unused number in its domain.\n");
    EXPECT_EQ(TracesOfScan(2, SinglesOfEveryKind, MakeCell(5, 5)), "selected E5\n");
}

TEST_F(Alerts, LevelsAreRunInOrder)
{
    LevelTable = {0, HiddenSingles, NakedSingles, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(TracesOfScan(3, SinglesOfEveryKind), "text There's a hidden single.\n");
    LevelTable = {0, 0, NakedSingles, 0, 0, HiddenSingles, 0, 0, 0, 0};
    EXPECT_EQ(TracesOfScan(3, SinglesOfEveryKind), "text There's an unplaced last candidate.\n");
}

TEST_F(Alerts, TechniqueInNoLevelShowsNoAlerts)
{
    LevelTable = {AllSingles, 0, 0, 0, 0, 0, AllSingles, AllSingles, AllSingles, AllSingles};
    AlertMask = 0xFFFFFFFF;
    EXPECT_EQ(TracesOfScan(1, SinglesOfEveryKind), "");
    EXPECT_EQ(TracesOfScan(3, SinglesOfEveryKind), "");
}

TEST_F(Alerts, EmptyMaskClearsTheAlertsAndLeaves)
{
    AlertMask = 0;
    SetPencilmarks(ClashInAColumn);
    Grid[3][3] |= AlertBit | ScratchMark0 | ScratchMark3;
    HintText = "old";
    ScanAlerts(1);
    EXPECT_EQ(CellsWith(AlertBit | ScratchMarks), "");
    EXPECT_EQ(HintText, "old");
    Grid[2][7] |= SelectedBit;
    ScanAlerts(2);
    EXPECT_EQ(HintText, "old");
}

TEST_F(Alerts, HintsUseEveryTechniqueWhateverIsSelected)
{
    for (const std::uint32_t mask : {0U, HiddenSingles}) {
        AlertMask = mask;
        EXPECT_EQ(TracesOfScan(3, SinglesOfEveryKind),
                  "text There's an unplaced last candidate.\n");
        EXPECT_EQ(AlertMask, mask);
    }
}

TEST_F(Alerts, ReasonUsesTheSelectedTechniquesAlone)
{
    AlertMask = HiddenSingles;
    EXPECT_EQ(TracesOfScan(2, SinglesOfEveryKind, MakeCell(1, 9)), "selected A9\n");
}

TEST_F(Alerts, ModeOneRenewsAlertsAndKeepsSelectionAndHints)
{
    SetPencilmarks(SinglesOfEveryKind);
    Grid[3][3] |= AlertBit | SelectedBit | HintCellBit | HintDomainBit | 0x5000000 | ScratchMark1;
    ScanAlerts(1);
    EXPECT_EQ(Grid[3][3], SelectedBit | HintCellBit | HintDomainBit | 0x5000000);
    EXPECT_EQ(CellsWith(AlertBit), "A9 E1");
}

TEST_F(Alerts, OtherModesLeaveAlertsAlone)
{
    for (std::int32_t mode = 2; mode <= 5; ++mode) {
        SetPencilmarks(SinglesOfEveryKind);
        Grid[3][3] |= AlertBit;
        ScanAlerts(mode);
        EXPECT_EQ(CellsWith(AlertBit), "C3");
    }
}

TEST_F(Alerts, ScanEndsAChainAndEmptiesTheText)
{
    SetPencilmarks(ClashInARow);
    Grid[8][4] = 0;
    ChainColumns[0] = 7;
    HintText = "old";
    ScanAlerts(1);
    EXPECT_EQ(ChainColumns[0], 0);
    EXPECT_EQ(HintText, "");
    ChainColumns[0] = 7;
    AlertMask = 0;
    ScanAlerts(1);
    EXPECT_EQ(ChainColumns[0], 0);
}

TEST_F(Alerts, WaitCursorIsTakenBack)
{
    for (std::int32_t mode = 1; mode <= 5; ++mode) {
        SetPencilmarks(ClashInAColumn);
        ScanAlerts(mode);
        EXPECT_EQ(Seen.WaitCursorDepth, 0);
    }
}

TEST_F(Alerts, ScanChangesNoCandidateGivenOrSolution)
{
    constexpr CellWord lasting = CandidateMask | GivenBit | SolutionMask | CellColour | 0x800000;
    std::mt19937 random(41);
    for (int round = 0; round < 300; ++round) {
        for (const PositionKind kind : PositionKinds) {
            SetRandomPosition(random, kind, static_cast<int>(random() % 60));
            const GridTable start = Grid;
            for (std::int32_t mode = 1; mode <= 5; ++mode) {
                Grid = start;
                ScanAlerts(mode);
                for (const Cell cell : Cells) {
                    ASSERT_EQ(WordAt(cell) & lasting, start[cell.Column][cell.Row] & lasting);
                }
            }
        }
    }
}

// ---- Sound ---------------------------------------------------------------------------------

class AlertSounds : public Alerts {
protected:
    void SetUp() override
    {
        Alerts::SetUp();
        AlertFiles = {"", "ping.alr", "pong.alr"};
        AlertSound = 2;
        SoundVolumes = {0x1111, 0x2222, 0x3333, 0x4444};
        SetPencilmarks(SinglesOfEveryKind);
    }

    // Scans in mode 1 and returns what was played.
    static std::vector<std::string> PlayedByScan()
    {
        Seen.Calls.clear();
        ScanAlerts(1);
        std::vector<std::string> sounds;
        std::ranges::copy_if(Seen.Calls, std::back_inserter(sounds), [](const std::string &call) {
            return call.find("sound") != std::string::npos;
        });
        return sounds;
    }
};

TEST_F(AlertSounds, NewAlertSoundsOnceForAScan)
{
    EXPECT_EQ(PlayedByScan(), std::vector<std::string>{"sound: pong.alr"});
    EXPECT_EQ(Seen.SoundVolume, 0x33333333U);
}

TEST_F(AlertSounds, SecondScanOnTheSameGridIsSilent)
{
    PlayedByScan();
    EXPECT_TRUE(PlayedByScan().empty());
}

TEST_F(AlertSounds, OneMoreAlertSoundsAgain)
{
    PlayedByScan();
    Grid[1][9] &= ~AlertBit;
    EXPECT_EQ(PlayedByScan(), std::vector<std::string>{"sound: pong.alr"});
}

TEST_F(AlertSounds, NoSoundWithoutAChoiceOrWhenDisabled)
{
    AlertSound = 0;
    EXPECT_TRUE(PlayedByScan().empty());
    ClearCellBits(AlertBit);
    AlertSound = -1;
    EXPECT_TRUE(PlayedByScan().empty());
    ClearCellBits(AlertBit);
    AlertSound = 3;
    EXPECT_TRUE(PlayedByScan().empty());
    ClearCellBits(AlertBit);
    AlertSound = 1;
    SoundDisabled = True;
    EXPECT_TRUE(PlayedByScan().empty());
    ClearCellBits(AlertBit);
    SoundDisabled = False;
    EXPECT_EQ(PlayedByScan(), std::vector<std::string>{"sound: ping.alr"});
}

TEST_F(AlertSounds, AlertsThatGoAreSilent)
{
    PlayedByScan();
    AlertMask = 0;
    EXPECT_TRUE(PlayedByScan().empty());
    SetPencilmarks(ClashInARow);
    Grid[8][4] = 0;
    Grid[1][1] |= AlertBit;
    AlertMask = AllSingles;
    EXPECT_TRUE(PlayedByScan().empty());
}

TEST_F(AlertSounds, ClashOfGivensSoundsToo)
{
    LevelTable.fill(0);
    SetPencilmarks(ClashInARow);
    EXPECT_EQ(PlayedByScan(), std::vector<std::string>{"sound: pong.alr"});
}

} // namespace
} // namespace kelvarine::testing
