#include "game/clock.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "input/mouse.h"
#include "input/spoken.h"
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

TEST_F(Spoken, CellTellsNameNumbersAndMarks)
{
    EXPECT_EQ(SpokenCell({1, 1}), "[A1]: 5, given");
    Grid[3][1] = BitTable[2] | BitTable[7];
    EXPECT_EQ(SpokenCell({3, 1}), "[C1]: pencilmarks 2 7");
    Grid[3][1] = BitTable[7] | AlertBit;
    EXPECT_EQ(SpokenCell({3, 1}), "[C1]: 7, alert");
    Grid[3][1] = 0;
    EXPECT_EQ(SpokenCell({3, 1}), "[C1]: empty");
}

TEST_F(Spoken, NumbersOutOfViewAreNotTold)
{
    Grid[3][1] = BitTable[2] | BitTable[7];
    NumberFilter = BitTable[7];
    EXPECT_EQ(SpokenCell({3, 1}), "[C1]: pencilmarks 7");
    NumberFilter = BitTable[3];
    EXPECT_EQ(SpokenCell({3, 1}), "[C1]: nothing in view");
}

TEST_F(Spoken, PausedGameKeepsItsNumbers)
{
    ResetSolveTime();
    mnuPauseTime();
    EXPECT_EQ(SpokenCell({1, 1}), "[A1]: hidden while the clock is paused, given");
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

TEST_F(Spoken, StepsAndEntriesAreToldOnce)
{
    NextSpokenChange();
    StepSelection(Arrow::Down, 0);
    EXPECT_EQ(NextSpokenChange(), SpokenChange::Place);
    EXPECT_EQ(NextSpokenChange(), SpokenChange::None);
    WordAt(*SpokenPlace()) ^= BitTable[6];
    EXPECT_EQ(NextSpokenChange(), SpokenChange::Text);
    EXPECT_EQ(NextSpokenChange(), SpokenChange::None);
    ClearPointerState();
    ClearCellBits(SelectedBit);
    EXPECT_EQ(NextSpokenChange(), SpokenChange::None);
}

} // namespace
} // namespace kelvarine::testing
