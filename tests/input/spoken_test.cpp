#include "board/look.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "input/keys.h"
#include "input/mouse.h"
#include "input/number_keys.h"
#include "input/selection.h"
#include "input/spoken.h"
#include "input/toolbar.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class Spoken : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }
};

TEST_F(Spoken, CellTellsNumbersAndThenItsMarks)
{
    EXPECT_EQ(SpokenCell({1, 1}), "5, given");
    Grid[3][1] = BitTable[2] | BitTable[7];
    EXPECT_EQ(SpokenCell({3, 1}), "pencilmarks 2 7");
    Grid[3][1] = BitTable[7] | AlertBit;
    EXPECT_EQ(SpokenCell({3, 1}), "7, alert");
    Grid[3][1] = 0;
    EXPECT_EQ(SpokenCell({3, 1}), "empty");
    HighlightColours[4] = Rgb(250, 10, 10);
    Grid[3][1] =
        BitTable[7] | GivenBit | AlertBit | HintCellBit | HintDomainBit | 4U << ColourShift;
    EXPECT_EQ(SpokenCell({3, 1}), "7, given, red, alert, hint");
    Grid[3][1] = HintDomainBit;
    EXPECT_EQ(SpokenCell({3, 1}), "empty, hint area");
}

TEST_F(Spoken, FrozenHintMarksAreNoColours)
{
    Grid[3][1] = 10U << ColourShift;
    EXPECT_EQ(SpokenCell({3, 1}), "empty, frozen hint");
    Grid[3][1] = 11U << ColourShift;
    EXPECT_EQ(SpokenCell({3, 1}), "empty, frozen hint area");
    Grid[3][1] = 12U << ColourShift;
    EXPECT_EQ(SpokenCell({3, 1}), "empty");
}

TEST_F(Spoken, NumbersOutOfViewAreNotTold)
{
    Grid[3][1] = BitTable[2] | BitTable[7];
    NumberFilter = BitTable[7];
    EXPECT_EQ(SpokenCell({3, 1}), "pencilmarks 7");
    NumberFilter = BitTable[3];
    EXPECT_EQ(SpokenCell({3, 1}), "nothing in view");
}

TEST_F(Spoken, PausedGameKeepsItsNumbers)
{
    ResetSolveTime();
    mnuPauseTime();
    EXPECT_EQ(SpokenCell({1, 1}), "hidden while the clock is paused, given");
}

TEST_F(Spoken, PlaceOfACellIsToldInFull)
{
    EXPECT_EQ(SpokenWhere({1, 3}), "[A3], row 3 of 9, column 1 of 9, upper-left box");
    EXPECT_EQ(SpokenWhere({9, 5}), "[J5], row 5 of 9, column 9 of 9, center-right box");
}

TEST_F(Spoken, SelectionIsToldByItsHouse)
{
    EXPECT_EQ(SpokenSelection(), "no cells selected");
    WordAt({2, 2}) |= SelectedBit;
    EXPECT_EQ(SpokenSelection(), "[B2] selected");
    mnuSelectRow();
    EXPECT_EQ(SpokenSelection(), "9 cells selected, row 2");
    WordAt({2, 2}) &= ~SelectedBit;
    EXPECT_EQ(SpokenSelection(), "8 cells selected");
    WordAt({1, 1}) |= SelectedBit;
    EXPECT_EQ(SpokenSelection(), "9 cells selected");
    ClearCellBits(SelectedBit);
    WordAt({8, 8}) |= SelectedBit;
    mnuSelectBox();
    EXPECT_EQ(SpokenSelection(), "9 cells selected, the lower-right box");
    mnuSelectWholeGrid();
    EXPECT_EQ(SpokenSelection(), "81 cells selected");
}

TEST_F(Spoken, ToolsKeepTheirNamesWhateverTheSign)
{
    for (const std::int32_t sign : {Replace, TakeAway, Add}) {
        ToolSign = sign;
        EXPECT_EQ(SpokenTool(EscapeButton), "Esc");
        EXPECT_EQ(SpokenTool(3), "3");
        EXPECT_EQ(SpokenTool(AllButton), "All");
    }
    EXPECT_EQ(SpokenTool(SignButton), "+/- add");
    EXPECT_EQ(SpokenToolUse(3), "Add #3 to selected cells");
    EXPECT_EQ(SpokenToolUse(EditButton), "what the numbers do now");
    EXPECT_EQ(SpokenToolUse(ViewButton), "");
}

TEST_F(Spoken, SignIsNotToldWhereTheSignButtonDoesNothing)
{
    ProcessToolbar(SelectButton);
    ProcessToolbar(SelectButton);
    ASSERT_EQ(ToolMode, SelectDomainsMode);
    KeyDown(CtrlCode, CtrlKey);
    EXPECT_EQ(SpokenTool(SignButton), "+/-");
    KeyUp(CtrlCode);
    EXPECT_EQ(SpokenTool(SignButton), "+/-");
}

TEST_F(Spoken, ToolsOfTheHighlightModeTellTheirColours)
{
    HighlightColours[3] = Rgb(0, 250, 250);
    ProcessToolbar(EditButton);
    EXPECT_EQ(SpokenTool(3), "3");
    EXPECT_EQ(SpokenToolUse(3), "Highlight selected cells with this color: cyan");
    EXPECT_EQ(SpokenTool(AllButton), "All");
    EXPECT_EQ(SpokenToolUse(AllButton), "Clear all highlights from selected cells");
    EXPECT_EQ(SpokenTool(SignButton), "Frz");
    EXPECT_EQ(SpokenTool(EditButton), "Highlight");
}

TEST_F(Spoken, ButtonOfAllTellsAsItsUseThatItSelectsEmptyCells)
{
    for (int press = 0; press < 3; ++press) {
        ProcessToolbar(SelectButton);
    }
    ASSERT_EQ(ToolMode, SelectCountMode);
    EXPECT_EQ(SpokenTool(AllButton), "All");
    EXPECT_EQ(SpokenToolUse(AllButton), "Select empty cells");
}

TEST_F(Spoken, PlaceIsTheCursorOrTheOnlySelectedCell)
{
    EXPECT_FALSE(SpokenPlace().has_value());
    Grid[4][4] |= SelectedBit;
    EXPECT_EQ(SpokenPlace(), (Cell{4, 4}));
    Grid[9][9] |= SelectedBit;
    EXPECT_FALSE(SpokenPlace().has_value());
    CursorColumn = 2;
    CursorRow = 8;
    EXPECT_EQ(SpokenPlace(), (Cell{2, 8}));
}

} // namespace
} // namespace kelvarine::testing
