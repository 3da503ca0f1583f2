#include "board/look.h"
#include "game/alert_scan.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/keys.h"
#include "input/mouse.h"
#include "input/number_keys.h"
#include "input/selection.h"
#include "input/spoken.h"
#include "input/told.h"
#include "input/toolbar.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// The look again, at which nothing new is to be seen.
void ExpectNothingMore()
{
    const Told more = NextTold(false);
    EXPECT_EQ(more.Place, PlaceChange::None);
    EXPECT_EQ(more.Selection, SelectionChange::None);
    EXPECT_EQ(more.Words, "");
}

// What is told now, and told once.
std::string Words()
{
    std::string words = NextTold(false).Words;
    ExpectNothingMore();
    return words;
}

class Told : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
        AlertMask = 0;
        NextTold(false);
    }

    // Goes to a cell as the arrows do, and has it told.
    static void GoTo(Cell cell)
    {
        ClearCellBits(SelectedBit);
        AnchorColumn = cell.Column == 1 ? 9 : cell.Column - 1;
        AnchorRow = cell.Row;
        KeyDown(RightCode, 0);
        NextTold(false);
    }

    // Leaves the givens alone, and has it told.
    static void EmptyAllCells()
    {
        for (const Cell cell : Cells) {
            if ((WordAt(cell) & GivenBit) == 0) {
                WordAt(cell) = 0;
            }
        }
        NextTold(false);
    }
};

TEST_F(Told, StepIsAPlaceAndNoWords)
{
    KeyDown(DownCode, 0);
    const auto told = NextTold(false);
    EXPECT_EQ(told.Place, PlaceChange::Place);
    EXPECT_EQ(told.Selection, SelectionChange::None);
    EXPECT_EQ(told.Words, "");
    ExpectNothingMore();
}

TEST_F(Told, EntryIsTheTextOfTheCellAndItsNumbers)
{
    GoTo({3, 1});
    KeyDown('6', 0);
    const auto told = NextTold(false);
    EXPECT_EQ(told.Place, PlaceChange::Text);
    EXPECT_EQ(told.Selection, SelectionChange::None);
    EXPECT_EQ(told.Words, "6");
    KeyDown('2', CtrlKey);
    EXPECT_EQ(Words(), "pencilmarks 2 6");
    KeyDown(DeleteCode, 0);
    EXPECT_EQ(Words(), "empty");
}

TEST_F(Told, EntryWithoutEffectIsNothing)
{
    GoTo({1, 1});
    KeyDown('6', 0);
    ExpectNothingMore();
}

TEST_F(Told, EntryTellsItsAlertWithTheReason)
{
    EmptyAllCells();
    AlertMask = MaskOf({NakedSingle});
    ScanAlerts(ModeAlert);
    NextTold(false);
    GoTo({3, 1});
    const GridTable before = Grid;
    KeyDown('5', 0);
    const GridTable after = Grid;
    HintText = "kept";
    HintTitle = "kept, too";
    EXPECT_EQ(Words(), "5; alert: conflict with naked single");
    EXPECT_EQ(Grid, after) << "to ask for the reason changes nothing";
    EXPECT_NE(Grid, before);
    EXPECT_EQ(HintText, "kept");
    EXPECT_EQ(HintTitle, "kept, too");
}

TEST_F(Told, AlertWithoutAReasonGetsNoneOfAnother)
{
    HintTitle = "Kept";
    GoTo({3, 1});
    WordAt({3, 1}) |= AlertBit;
    EXPECT_EQ(Words(), "alert");
    EXPECT_EQ(HintTitle, "Kept");
}

TEST_F(Told, ReasonOfSeveralAlertsIsToldWhereTheyAgree)
{
    EmptyAllCells();
    AlertMask = MaskOf({NakedSingle});
    GoTo({9, 9});
    Grid[3][1] = BitTable[5] | AlertBit; // there is a given 5 in row 1
    Grid[4][1] = BitTable[5] | AlertBit;
    EXPECT_NE(Words().find("alert in [C1] [D1]: conflict with naked single"), std::string::npos);
    Grid[3][1] &= ~AlertBit;
    NextTold(false);
    Grid[3][1] |= AlertBit;
    Grid[5][5] |= AlertBit;
    EXPECT_EQ(Words(), "alert in [C1] [E5]");
}

TEST_F(Told, UndoAndRedoTellWhatTheyDo)
{
    GoTo({3, 1});
    KeyDown('6', 0);
    KeyDown('8', 0);
    NextTold(false);
    Undo();
    EXPECT_EQ(Words(), "undone: [C1] was 8");
    Redo();
    EXPECT_EQ(Words(), "redone: 8");
    KeyDown(PageUpCode, 0);
    NextTold(false);
    KeyDown('2', 0);
    EXPECT_EQ(Words(), "2") << "and no redoing";
}

TEST_F(Told, EntryOfWhatWasUndoneIsNoRedoing)
{
    GoTo({3, 1});
    KeyDown('8', 0);
    NextTold(false);
    Undo();
    GoTo({3, 1}); // the level has no selection
    KeyDown('8', 0);
    EXPECT_EQ(Words(), "8");
}

TEST_F(Told, RestartIsToldAsAGameThatBegins)
{
    GoTo({3, 1});
    KeyDown('W', 0);
    NextTold(false);
    KeyDown(DeleteCode, ShiftKey);
    NextTold(false);
    Grid = History[StartSlot];
    StartGame(SameGame);
    EXPECT_EQ(NextTold(false).Words, "game with 30 givens, easy; no cells selected");
    ExpectNothingMore();
}

TEST_F(Told, GameThatIsOpenedIsToldAlsoWhereItIsTheOneOnTheBoard)
{
    StartGame(GameFromFile);
    EXPECT_EQ(NextTold(false).Words, "game with 30 givens, easy");
    ExpectNothingMore();
}

TEST_F(Told, ColoursAreTold)
{
    HighlightColours[3] = Rgb(0, 250, 250);
    HighlightColours[4] = Rgb(250, 10, 10);
    GoTo({3, 1});
    ProcessToolbar(EditButton);
    NextTold(false);
    ProcessToolbar(3);
    EXPECT_EQ(Words(), "cyan; no cells selected");
    Undo();
    EXPECT_EQ(Words(), "undone; no color");
    Redo();
    EXPECT_EQ(Words(), "redone; cyan");
    mnuSelectWholeGrid();
    NextTold(false);
    ProcessToolbar(4);
    EXPECT_EQ(NextTold(false).Words, "81 cells: red; no cells selected");
}

TEST_F(Told, ChangeOfManyCellsIsTheirCount)
{
    GoTo({3, 1});
    KeyDown('W', 0);
    EXPECT_EQ(Words(), "81 cells selected");
    KeyDown(DeleteCode, ShiftKey);
    EXPECT_EQ(Words(), "51 cells changed");
    KeyDown(InsertCode, CtrlKey);
    EXPECT_EQ(Words(), "51 cells changed");
}

TEST_F(Told, SelectionOfManyIsTold)
{
    GoTo({3, 1});
    KeyDown('C', 0);
    const auto told = NextTold(false);
    EXPECT_EQ(told.Place, PlaceChange::None);
    EXPECT_EQ(told.Selection, SelectionChange::Many);
    EXPECT_EQ(told.Words, "9 cells selected, column C");
}

TEST_F(Told, NumbersInViewAreTold)
{
    KeyDown('3', AltKey);
    Flag update = False;
    ProcessNumKey(3, ViewMode, Replace, update);
    EXPECT_EQ(Words(), "in view: 3");
    ProcessNumKey(4, ViewMode, Add, update);
    EXPECT_EQ(Words(), "in view: 3 and 4");
    ProcessNumKey(0, ViewMode, Replace, update);
    EXPECT_EQ(Words(), "all numbers in view");
}

TEST_F(Told, ModeAndSignOfTheToolbarAreTold)
{
    ProcessToolbar(SignButton);
    EXPECT_EQ(Words(), "+/- add");
    ProcessToolbar(ViewButton);
    EXPECT_EQ(Words(), "mode: View") << "and not that it has its plain sign";
    ProcessToolbar(EditButton);
    EXPECT_EQ(Words(), "mode: Edit");
    ProcessToolbar(EditButton);
    EXPECT_EQ(Words(), "mode: Highlight");
}

TEST_F(Told, SnapshotIsTold)
{
    KeyDown('S', 0);
    EXPECT_EQ(Words(), "snapshot taken");
    GoTo({3, 1});
    KeyDown('6', 0);
    NextTold(false);
    KeyDown('S', 0);
    EXPECT_EQ(Words(), "snapshot taken");
}

TEST_F(Told, SnapshotOfTheSamePositionIsToldAgain)
{
    KeyDown('S', 0);
    NextTold(false);
    KeyDown('S', 0);
    EXPECT_EQ(Words(), "snapshot taken");
}

TEST_F(Told, SnapshotThatAFileBringsIsNotToldAsTaken)
{
    History[SnapshotSlot] = Grid;
    SnapshotAvailable = True;
    ExpectNothingMore();
}

TEST_F(Told, SignOfAHeldKeyIsNot)
{
    ShowSignOfShift();
    EXPECT_EQ(NextTold(true).Words, "");
    ShowPlainSign();
    ExpectNothingMore();
    SetToldDefaults();
    ShowSignOfShift();
    NextTold(true);
    ShowPlainSign();
    ExpectNothingMore();
}

TEST_F(Told, ModifierThatComesUpIsNoSignWhereTheSignButtonHasNone)
{
    ProcessToolbar(EditButton);
    ASSERT_EQ(ToolMode, HighlightMode);
    NextTold(false);
    KeyDown(ShiftCode, ShiftKey);
    ExpectNothingMore();
    KeyUp(ShiftCode);
    ExpectNothingMore();
    ProcessToolbar(SelectButton);
    ProcessToolbar(SelectButton);
    ASSERT_EQ(ToolMode, SelectDomainsMode);
    EXPECT_EQ(Words(), "mode: Select singles + domain");
    KeyDown(CtrlCode, CtrlKey);
    ExpectNothingMore();
    KeyUp(CtrlCode);
    ExpectNothingMore();
}

TEST_F(Told, PauseHidesWhatIsTold)
{
    GoTo({3, 1});
    ResetSolveTime();
    mnuPauseTime();
    EXPECT_EQ(Words(), "paused");
    KeyDown('6', 0);
    EXPECT_EQ(Words(), "");
    mnuPauseTime();
    EXPECT_EQ(Words(), "resumed");
}

TEST_F(Told, PauseHidesNumbersAndReasonsAlone)
{
    GoTo({3, 1});
    KeyDown('6', 0);
    ResetSolveTime();
    mnuPauseTime();
    NextTold(false);
    Undo();
    EXPECT_EQ(NextTold(false).Words, "undone; no cells selected");
    Redo();
    EXPECT_EQ(NextTold(false).Words, "redone");
    WordAt({3, 1}) |= AlertBit;
    EXPECT_EQ(Words(), "alert");
    Grid = {};
    Grid[1][1] = BitTable[5] | GivenBit;
    StartGame(NewGame);
    EXPECT_NE(Words().find("game with 1 given, multiple solutions"), std::string::npos);
}

TEST_F(Told, GameThatBeginsIsToldByItsGivensAndRating)
{
    StartSavedGame(EasyGame);
    ExpectNothingMore();
    Grid = {};
    Grid[1][1] = BitTable[5] | GivenBit;
    StartGame(NewGame);
    EXPECT_EQ(Words(), "game with 1 given, multiple solutions");
}

TEST_F(Told, WinIsToldOnce)
{
    SolveSeconds = 65;
    WinDisplayRunning = True;
    EXPECT_EQ(Words(), "game solved, time 1:05 ");
}

TEST_F(Told, SearchIsToldAtMostEveryTenSeconds)
{
    GamesScreened = 0;
    EXPECT_EQ(NextToldOfSearch(1000), "searching for a game");
    GamesScreened = 7;
    EXPECT_EQ(NextToldOfSearch(1009.9), "");
    EXPECT_EQ(NextToldOfSearch(1010), "searching, 7 games screened");
    EXPECT_EQ(NextToldOfSearch(1019), "");
    NextTold(false);
    EXPECT_EQ(NextToldOfSearch(1019.5), "searching for a game") << "it is another one";
}

TEST_F(Told, ReturnToTheBoardTellsThePlaceAgain)
{
    GoTo({3, 1});
    TellPlaceAgain();
    EXPECT_EQ(NextTold(false).Place, PlaceChange::Place);
    ExpectNothingMore();
}

TEST_F(Told, ComingToTheBoardAtNoCellIsAPlaceToo)
{
    mnuSelectWholeGrid();
    NextTold(false);
    ASSERT_FALSE(SpokenPlace());
    TellPlaceAgain();
    EXPECT_EQ(NextTold(false).Place, PlaceChange::Place);
    ExpectNothingMore();
    SetToldDefaults();
    TellPlaceAgain();
    EXPECT_EQ(NextTold(false).Place, PlaceChange::Place) << "at the first look";
    ExpectNothingMore();
}

} // namespace
} // namespace kelvarine::testing
