#include "game/lifecycle.h"
#include "grid/grid.h"
#include "input/pattern.h"
#include "input/spoken.h"
#include "input/told.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class Pattern : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
        NextTold(false);
    }

    // Puts a chain on the board; reading is what ChainRows[0] says of it.
    static void PutChain(std::int32_t reading, const std::vector<Cell> &cells)
    {
        ChainColumns[0] = static_cast<std::int32_t>(cells.size());
        ChainRows[0] = reading;
        for (std::size_t k = 0; k < cells.size(); ++k) {
            ChainColumns[k + 1] = cells[k].Column;
            ChainRows[k + 1] = cells[k].Row;
        }
    }

    static Cell Here()
    {
        return MakeCell(CursorColumn, CursorRow);
    }
};

TEST_F(Pattern, NoneIsNothing)
{
    EXPECT_TRUE(PatternCells().empty());
    EXPECT_EQ(SpokenPattern(), "");
    EXPECT_EQ(SpokenInPattern({1, 1}), "");
    StepInPattern(true);
    EXPECT_FALSE(SpokenPlace().has_value());
}

TEST_F(Pattern, MarkedCellsAreOneRowByRow)
{
    WordAt({1, 9}) |= HintCellBit;
    WordAt({5, 2}) |= HintCellBit;
    WordAt({5, 3}) |= HintDomainBit;
    EXPECT_EQ(SpokenPattern(), "pattern: [E2] [A9]");
    EXPECT_EQ(SpokenInPattern({1, 9}), "cell 2 of 2 of the pattern");
    EXPECT_EQ(SpokenInPattern({5, 3}), "");
}

TEST_F(Pattern, ChainOnOneNumberTellsItAtEachCell)
{
    WordAt({9, 9}) |= HintCellBit;
    PutChain(4, {{3, 1}, {3, 7}, {1, 8}});
    EXPECT_EQ(SpokenPattern(), "chain of 3 cells: [C1] 4, [C7] 4, [A8] 4");
    EXPECT_EQ(SpokenInPattern({3, 7}), "cell 2 of 3 of the chain, number 4");
    EXPECT_EQ(SpokenInPattern({9, 9}), "") << "a chain goes before marks";
}

TEST_F(Pattern, PlainPathHasNoNumbers)
{
    PutChain(0, {{3, 1}, {3, 7}});
    EXPECT_EQ(SpokenPattern(), "chain of 2 cells: [C1], [C7]");
    EXPECT_EQ(SpokenInPattern({3, 1}), "cell 1 of 2 of the chain");
}

TEST_F(Pattern, ChainThroughPairsTellsTheNumbersThatLink)
{
    Grid[3][1] = BitTable[2] | BitTable[4];
    Grid[3][7] = BitTable[4] | BitTable[6];
    Grid[1][8] = BitTable[6] | BitTable[2];
    PutChain(-2, {{3, 1}, {3, 7}, {1, 8}});
    EXPECT_EQ(SpokenPattern(), "chain of 3 cells: [C1] 4, [C7] 4, [A8] 6");
}

TEST_F(Pattern, WalkGoesRoundAndLeavesSelectionAndMarks)
{
    PutChain(4, {{3, 1}, {3, 7}, {1, 8}});
    WordAt({9, 9}) |= SelectedBit | HintCellBit;
    const GridTable before = Grid;
    for (const Cell cell : {Cell{3, 1}, Cell{3, 7}, Cell{1, 8}, Cell{3, 1}}) {
        StepInPattern(true);
        EXPECT_EQ(Here(), cell);
    }
    StepInPattern(false);
    EXPECT_EQ(Here(), (Cell{1, 8}));
    StepInPattern(false);
    EXPECT_EQ(Here(), (Cell{3, 7}));
    CursorColumn = AnchorColumn = 5;
    StepInPattern(false);
    EXPECT_EQ(Here(), (Cell{1, 8})) << "from outside to the end";
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(ChainColumns[0], 3);
    EXPECT_EQ(AnchorColumn, 1);
    EXPECT_EQ(AnchorRow, 8);
}

TEST_F(Pattern, IsToldWhenItComesAndNotWhenItGoes)
{
    PutChain(4, {{3, 1}, {3, 7}});
    EXPECT_EQ(NextTold(false).Words, "chain of 2 cells: [C1] 4, [C7] 4");
    EXPECT_EQ(NextTold(false).Words, "");
    ChainColumns[0] = 0;
    EXPECT_EQ(NextTold(false).Words, "");
}

} // namespace
} // namespace kelvarine::testing
