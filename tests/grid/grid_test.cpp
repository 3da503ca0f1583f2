#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

class GridCore : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// Rows and columns are permutations of 1..9, boxes are not.
constexpr std::string_view BoxesClash = R"(
    123456789
    234567891
    345678912
    456789123
    567891234
    678912345
    789123456
    891234567
    912345678
)";

TEST_F(GridCore, GivenKeepsItsCandidatesThroughFillPencilmarks)
{
    SetGame(R"(
        5........
        .........
        .........
        .........
        .........
        .........
        .........
        .........
        .........
    )");
    EXPECT_EQ(Grid[1][1], GivenBit | BitTable[5]);
    EXPECT_EQ(Grid[2][1], CandidateMask);
}

TEST_F(GridCore, CellWithoutCandidatesCountsZero)
{
    Grid[4][7] = SelectedBit | GivenBit | SolutionMask;
    EXPECT_EQ(CountCandidates(4, 7), 0);
}

TEST_F(GridCore, CountCandidatesCountsEveryMask)
{
    for (CellWord mask = 0; mask < 512; ++mask) {
        Grid[9][9] = mask << 1;
        int expected = 0;
        for (CellWord rest = mask; rest != 0; rest &= rest - 1) {
            ++expected;
        }
        EXPECT_EQ(CountCandidates(9, 9), expected);
    }
}

TEST_F(GridCore, SolvedGridIsSolved)
{
    SetGivens(EasySolution);
    EXPECT_EQ(IsGridSolved(), True);
}

TEST_F(GridCore, EqualNumbersInABoxAreNoSolution)
{
    SetGivens(BoxesClash);
    EXPECT_EQ(IsGridSolved(), False);
}

TEST_F(GridCore, SecondCandidateInACellIsNoSolution)
{
    SetGivens(EasySolution);
    Grid[5][5] |= BitTable[1];
    EXPECT_EQ(IsGridSolved(), False);
}

TEST_F(GridCore, CellWithoutCandidatesIsNoSolution)
{
    SetGivens(EasySolution);
    Grid[9][9] &= ~CandidateMask;
    EXPECT_EQ(IsGridSolved(), False);
}

TEST_F(GridCore, EveryHouseCountsForASolution)
{
    for (const House &house : Houses) {
        SetGivens(EasySolution);
        WordAt(house.Cells[0]) = WordAt(house.Cells[8]);
        EXPECT_EQ(IsGridSolved(), False);
    }
}

TEST_F(GridCore, EqualNumbersInARowAreNoSolution)
{
    // Columns are permutations of 1..9, rows and boxes are not.
    for (std::size_t column = 1; column <= 9; ++column) {
        for (std::size_t row = 1; row <= 9; ++row) {
            Grid[column][row] = BitTable[row];
        }
    }
    EXPECT_EQ(IsGridSolved(), False);
}

TEST_F(GridCore, MarksDoNotMatterForASolution)
{
    SetGivens(EasySolution);
    for (const Cell cell : Cells) {
        WordAt(cell) |= ~CandidateMask;
    }
    EXPECT_EQ(IsGridSolved(), True);
}

TEST_F(GridCore, FillPencilmarksKeepsAllOtherFields)
{
    Grid[3][4] = 0xFFFFFFFE & ~CandidateMask;
    FillPencilmarks();
    EXPECT_EQ(Grid[3][4], 0xFFFFFFFEU);
}

TEST_F(GridCore, FieldsStandAtTheirBits)
{
    EXPECT_EQ(GivenBit, 0x1U);
    EXPECT_EQ(CandidateMask, 0x3FEU);
    EXPECT_EQ(SelectedBit, 0x400U);
    EXPECT_EQ(SolutionMask, 0xFF800U);
    EXPECT_EQ(AlertBit, 0x100000U);
    EXPECT_EQ(HintCellBit, 0x200000U);
    EXPECT_EQ(HintDomainBit, 0x400000U);
    EXPECT_EQ(CellColour, 0xF000000U);
    EXPECT_EQ(ScratchMark0, 0x10000000U);
    EXPECT_EQ(ScratchMark3, 0x80000000U);
}

TEST_F(GridCore, BitTableAndBoxStartHoldTheirValues)
{
    EXPECT_EQ(BitTable.size(), 32U);
    EXPECT_EQ(BitTable[0], 1U);
    EXPECT_EQ(BitTable[9], 0x200U);
    EXPECT_EQ(BitTable[31], 0x80000000U);
    constexpr std::array<std::uint8_t, 9> starts{1, 1, 1, 4, 4, 4, 7, 7, 7};
    EXPECT_TRUE(std::equal(starts.begin(), starts.end(), BoxStart.begin() + 1));
}

TEST_F(GridCore, HistoryHoldsAHundredAndFiveWholeGrids)
{
    EXPECT_EQ(History.size(), 105U);
    EXPECT_EQ(History[0].size(), 10U);
    EXPECT_EQ(History[0][0].size(), 10U);
}

TEST_F(GridCore, PassMarksLeaveTheLastingFieldsAlone)
{
    for (const Cell cell : Cells) {
        WordAt(cell) = 0xFFFFFFFF;
    }
    ClearCellBits(0xF0000400);
    for (const Cell cell : Cells) {
        EXPECT_EQ(WordAt(cell), 0x0FFFFBFFU);
        EXPECT_EQ(WordAt(cell) & SolutionMask, SolutionMask);
        EXPECT_EQ(WordAt(cell) & CellColour, CellColour);
        EXPECT_NE(WordAt(cell) & AlertBit, 0U);
        EXPECT_NE(WordAt(cell) & HintCellBit, 0U);
        EXPECT_NE(WordAt(cell) & HintDomainBit, 0U);
    }
}

TEST_F(GridCore, ClearCellBitsLeavesTheUnusedLinesAlone)
{
    Grid[0][3] = SelectedBit;
    Grid[3][0] = SelectedBit;
    ClearCellBits(SelectedBit);
    EXPECT_EQ(Grid[0][3], SelectedBit);
    EXPECT_EQ(Grid[3][0], SelectedBit);
}

TEST_F(GridCore, CountGivensCountsThemAnew)
{
    SetGivens(EasySolution);
    Grid[1][1] &= ~GivenBit;
    GivenCount = 5;
    CountGivens();
    EXPECT_EQ(GivenCount, 80);
}

TEST_F(GridCore, SaveStartPositionCopiesTheCellsAlone)
{
    SetGivens(EasySolution);
    Grid[0][0] = 1;
    SaveStartPosition();
    EXPECT_EQ(History[StartSlot][9][9], Grid[9][9]);
    EXPECT_EQ(History[StartSlot][0][0], 0U);
}

TEST_F(GridCore, DefaultsAreThoseOfAStart)
{
    EXPECT_EQ(GameRating, 6);
    EXPECT_EQ(SolveMask, 0U);
    EXPECT_EQ(AlertMask, 0U);
    EXPECT_EQ(LevelTable[1], 0x6U);
    EXPECT_EQ(LevelTable[2], 0x228U);
    EXPECT_EQ(LevelTable[3], 0xCD0U);
    EXPECT_EQ(LevelTable[4], 0xFF100U);
    EXPECT_EQ(LevelTable[5], 0xFFF00000U);
    EXPECT_EQ(LevelTable[6], 0U);
    EXPECT_EQ(NumberFilter, 0x3FEU);
    EXPECT_EQ(MaxSinglesLinks, 81);
}

TEST_F(GridCore, HousesComeAsColumnsRowsAndBoxesInScanOrder)
{
    EXPECT_EQ(Houses[2].Cells[4], MakeCell(3, 5));
    EXPECT_EQ(Houses[9].Cells[8], MakeCell(9, 1));
    // Box 1 lies under box 0: the top row changes faster than the left column.
    EXPECT_EQ(Houses[19].Cells[0], MakeCell(1, 4));
    EXPECT_EQ(Houses[19].Cells[1], MakeCell(1, 5));
    EXPECT_EQ(Houses[21].Cells[0], MakeCell(4, 1));
    for (const Cell cell : Cells) {
        for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
            const auto &cells = Houses[house].Cells;
            EXPECT_NE(std::find(cells.begin(), cells.end(), cell), cells.end());
        }
    }
}

TEST_F(GridCore, LowestCandidateIsTheSmallestNumber)
{
    EXPECT_EQ(LowestCandidate(0), 0);
    EXPECT_EQ(LowestCandidate(GivenBit | SolutionMask), 0);
    for (std::size_t number = 1; number <= 9; ++number) {
        EXPECT_EQ(LowestCandidate(BitTable[number] | BitTable[9]), static_cast<int>(number));
    }
}

} // namespace
} // namespace kelvarine::testing
