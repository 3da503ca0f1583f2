#include "board/geometry.h"
#include "board/look.h"
#include "grid/grid.h"
#include "input/mouse.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <bit>

namespace kelvarine::testing {
namespace {

constexpr int Column = 4;
constexpr int Row = 7;

class NumberAtPointOf : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        SecondaryThickness = 3;
        LayoutBoard(600, 700, 0);
        ASSERT_EQ(CellWidth, 52);
        ASSERT_EQ(CellHeight, 63);
        PencilmarkLayout = 0;
    }
};

void Hold(std::initializer_list<int> numbers)
{
    CellWord word = 0;
    for (const int number : numbers) {
        word |= BitOf(number);
    }
    WordAt(MakeCell(Column, Row)) = word;
}

// Number at an offset from the cell's origin.
int At(int across, int down)
{
    return NumberAtPoint(Column, Row, CellX(Column) + across, CellY(Row) + down);
}

TEST_F(NumberAtPointOf, EmptyCellIsNone)
{
    Hold({});
    for (const std::int32_t layout : {0, 1}) {
        PencilmarkLayout = layout;
        EXPECT_EQ(At(20, 20), 0);
        NumberFilter = BitTable[5];
        EXPECT_EQ(At(20, 20), 0);
    }
}

TEST_F(NumberAtPointOf, SingleIsItsNumberEverywhere)
{
    Hold({6});
    for (const std::int32_t layout : {0, 1}) {
        PencilmarkLayout = layout;
        EXPECT_EQ(At(0, 0), 6);
        EXPECT_EQ(At(51, 62), 6);
    }
}

TEST_F(NumberAtPointOf, SingleOutOfViewIsNone)
{
    Hold({6});
    NumberFilter = BitTable[5] | BitTable[7];
    EXPECT_EQ(At(26, 31), 0);
}

TEST_F(NumberAtPointOf, OneNumberInViewIsMeantEverywhere)
{
    NumberFilter = BitTable[3];
    for (const std::int32_t layout : {0, 1}) {
        PencilmarkLayout = layout;
        Hold({2, 3});
        EXPECT_EQ(At(0, 0), 3);
        EXPECT_EQ(At(51, 62), 3);
        Hold({1, 2, 3, 4, 5, 6, 7, 8, 9});
        EXPECT_EQ(At(51, 62), 3);
        Hold({2, 4, 5});
        EXPECT_EQ(At(0, 0), 0) << "the cell lacks it";
    }
}

TEST_F(NumberAtPointOf, TwoNumbersInViewLeaveItToThePlace)
{
    NumberFilter = BitTable[3] | BitTable[4];
    PencilmarkLayout = 1;
    Hold({2, 3});
    EXPECT_EQ(At(0, 0), 1) << "need not be a candidate, nor in view";
    NumberFilter = 0;
    EXPECT_EQ(At(0, 0), 1);
}

// ---- Three by three ------------------------------------------------------------------------

TEST_F(NumberAtPointOf, ThreeByThreeIsCutAtTheThirds)
{
    for (const bool many : {false, true}) {
        PencilmarkLayout = many ? 0 : 1;
        many ? Hold({1, 2, 3, 4, 5}) : Hold({1, 2});
        EXPECT_EQ(At(0, 0), 1);
        EXPECT_EQ(At(16, 20), 1);
        EXPECT_EQ(At(17, 20), 2);
        EXPECT_EQ(At(33, 20), 2);
        EXPECT_EQ(At(34, 20), 3);
        EXPECT_EQ(At(51, 20), 3);
        EXPECT_EQ(At(16, 21), 4);
        EXPECT_EQ(At(17, 21), 5);
        EXPECT_EQ(At(34, 41), 6);
        EXPECT_EQ(At(16, 42), 7);
        EXPECT_EQ(At(33, 62), 8);
        EXPECT_EQ(At(34, 42), 9);
        EXPECT_EQ(At(51, 62), 9);
    }
}

TEST_F(NumberAtPointOf, ThirdsOfOddSizesAreWholeNumbers)
{
    PencilmarkLayout = 1;
    Hold({1, 2});
    CellWidth = 50;  // thirds at 16 and 33
    CellHeight = 52; // thirds at 17 and 34
    EXPECT_EQ(At(15, 0), 1);
    EXPECT_EQ(At(16, 0), 2);
    EXPECT_EQ(At(32, 0), 2);
    EXPECT_EQ(At(33, 0), 3);
    EXPECT_EQ(At(0, 16), 1);
    EXPECT_EQ(At(0, 17), 4);
    EXPECT_EQ(At(0, 33), 4);
    EXPECT_EQ(At(0, 34), 7);
}

TEST_F(NumberAtPointOf, FourNumbersAreTheMostOfTheLargeLayout)
{
    Hold({6, 7, 8, 9});
    EXPECT_EQ(At(0, 0), 6);
    Hold({5, 6, 7, 8, 9});
    EXPECT_EQ(At(0, 0), 1);
}

// ---- Pair ----------------------------------------------------------------------------------

TEST_F(NumberAtPointOf, DiagonalDividesAPair)
{
    Hold({2, 7});
    EXPECT_EQ(At(0, 0), 2);
    EXPECT_EQ(At(51, 0), 2) << "the first row has no upper number";
    EXPECT_EQ(At(51, 1), 7);
    EXPECT_EQ(At(50, 1), 2);
    EXPECT_EQ(At(0, 62), 2) << "the diagonal ends one pixel to the right";
    EXPECT_EQ(At(1, 62), 7);
    EXPECT_EQ(At(51, 62), 7);
    EXPECT_EQ(At(26, 31), 7); // 31 of 63 is 25.6 of 52, so 26 from the right
    EXPECT_EQ(At(25, 31), 2);
}

TEST_F(NumberAtPointOf, HalvesOfTheDiagonalRoundToTheEvenPixel)
{
    Hold({2, 7});
    CellWidth = 50;
    CellHeight = 100;
    EXPECT_EQ(At(49, 1), 2) << "half a pixel is none";
    EXPECT_EQ(At(49, 2), 7);
    EXPECT_EQ(At(48, 3), 7) << "one and a half are two";
    EXPECT_EQ(At(48, 5), 7) << "two and a half are two";
    EXPECT_EQ(At(47, 5), 2);
}

// ---- Four places ---------------------------------------------------------------------------

TEST_F(NumberAtPointOf, QuartersAreCutInTheMiddle)
{
    Hold({2, 4, 7, 9});
    EXPECT_EQ(At(25, 31), 2);
    EXPECT_EQ(At(26, 31), 4);
    EXPECT_EQ(At(25, 32), 7);
    EXPECT_EQ(At(26, 32), 9);
    EXPECT_EQ(At(0, 0), 2);
    EXPECT_EQ(At(51, 0), 4);
    EXPECT_EQ(At(0, 62), 7);
    EXPECT_EQ(At(51, 62), 9);
}

TEST_F(NumberAtPointOf, FourthPlaceOfThreeNumbersIsNone)
{
    Hold({2, 4, 7});
    EXPECT_EQ(At(25, 31), 2);
    EXPECT_EQ(At(26, 31), 4);
    EXPECT_EQ(At(25, 32), 7);
    EXPECT_EQ(At(26, 32), 0);
}

// ---- All of it -----------------------------------------------------------------------------

TEST_F(NumberAtPointOf, PlaceOfEveryNumberLeadsBackToIt)
{
    for (const std::int32_t layout : {0, 1}) {
        PencilmarkLayout = layout;
        for (CellWord candidates = 2; candidates <= CandidateMask; candidates += 2) {
            const Cell cell = MakeCell(Column, Row);
            WordAt(cell) = candidates;
            int place = 0;
            for (int number = 1; number <= 9; ++number) {
                if ((candidates & BitOf(number)) == 0) {
                    continue;
                }
                const Point point =
                    NumberCentre(LayoutFor(std::popcount(candidates)), cell, number, ++place);
                ASSERT_EQ(NumberAtPoint(Column, Row, point.X, point.Y), number)
                    << candidates << " layout " << layout;
            }
        }
    }
}

TEST_F(NumberAtPointOf, AnyPointOfAnyCellGivesANumberOrNone)
{
    LayoutBoard(1, 1, 0);
    for (const std::int32_t layout : {0, 1, 7}) {
        PencilmarkLayout = layout;
        for (CellWord candidates = 0; candidates <= CandidateMask; candidates += 2) {
            WordAt(MakeCell(Column, Row)) = candidates;
            for (const int place : {-100000, -1, 0, 1, 100000}) {
                const int number = At(place, -place);
                ASSERT_GE(number, 0);
                ASSERT_LE(number, 9);
            }
        }
    }
}

} // namespace
} // namespace kelvarine::testing
