#include "board/geometry.h"
#include "board/links.h"
#include "board/look.h"
#include "grid/grid.h"
#include "support/outside_double.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

class Links : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        LayoutBoard(650, 706, 0); // cells 66 high
    }
};

void Hold(int column, int row, std::initializer_list<int> numbers)
{
    CellWord &word = WordAt(MakeCell(column, row));
    word &= ~CandidateMask;
    for (const int number : numbers) {
        word |= BitOf(number);
    }
}

void SetChain(std::int32_t kind, std::initializer_list<std::pair<int, int>> cells)
{
    ChainRows[0] = kind;
    ChainColumns[0] = static_cast<std::int32_t>(cells.size());
    std::size_t k = 0;
    for (const auto &[column, row] : cells) {
        ++k;
        ChainColumns[k] = column;
        ChainRows[k] = row;
    }
}

Point At(int column, int row, int acrossParts, int downParts, int of)
{
    return {CellX(column) + CellWidth * acrossParts / of, CellY(row) + CellHeight * downParts / of};
}

Point NinePlace(int column, int row, int number)
{
    return At(column, row, 2 * ((number - 1) % 3) + 1, 2 * ((number - 1) / 3) + 1, 6);
}

std::vector<Point> CentresOf(const ChainDrawing &drawing)
{
    std::vector<Point> centres;
    for (const Disc &disc : drawing.Discs) {
        centres.push_back(disc.Centre);
    }
    return centres;
}

std::ptrdiff_t CountOfLine(const std::vector<Line> &lines, const Line &line)
{
    return std::ranges::count(lines, line);
}

// ---- When ----------------------------------------------------------------------------------

TEST_F(Links, ModeOneShowsNothingUntilANumberIsIsolated)
{
    StrongLinkMode = 1;
    EXPECT_FALSE(ShowsStrongLinks());
    NumberFilter = BitTable[3];
    EXPECT_TRUE(ShowsStrongLinks());
}

TEST_F(Links, ModeNoughtNeverAndModeTwoAlways)
{
    StrongLinkMode = 0;
    NumberFilter = BitTable[3];
    EXPECT_FALSE(ShowsStrongLinks());
    StrongLinkMode = 2;
    NumberFilter = CandidateMask;
    EXPECT_TRUE(ShowsStrongLinks());
}

// ---- Places --------------------------------------------------------------------------------

TEST_F(Links, NumbersStandAtTheirPlacesOfTheVariableLayout)
{
    PencilmarkLayout = 0;
    const Cell cell{2, 5};
    Hold(2, 5, {4});
    EXPECT_EQ(NumberPoint(cell, 4), At(2, 5, 1, 1, 2));
    Hold(2, 5, {4, 8});
    EXPECT_EQ(NumberPoint(cell, 4), At(2, 5, 5, 5, 16));
    EXPECT_EQ(NumberPoint(cell, 8), At(2, 5, 11, 11, 16));
    Hold(2, 5, {1, 4, 8, 9});
    EXPECT_EQ(NumberPoint(cell, 1), At(2, 5, 1, 1, 4));
    EXPECT_EQ(NumberPoint(cell, 4), At(2, 5, 3, 1, 4));
    EXPECT_EQ(NumberPoint(cell, 8), At(2, 5, 1, 3, 4));
    EXPECT_EQ(NumberPoint(cell, 9), At(2, 5, 3, 3, 4));
    Hold(2, 5, {1, 4, 6, 8, 9});
    EXPECT_EQ(NumberPoint(cell, 6), NinePlace(2, 5, 6));
}

TEST_F(Links, SingleOfTheThreeByThreeLayoutLinksAtItsOwnPlace)
{
    PencilmarkLayout = 1;
    Hold(2, 5, {4});
    EXPECT_EQ(NumberPoint({2, 5}, 4), NinePlace(2, 5, 4));
}

// ---- Strong links --------------------------------------------------------------------------

TEST_F(Links, TwoPlacesInAColumnAndARowAreLinked)
{
    Hold(2, 1, {3, 5});
    Hold(2, 9, {3});
    Hold(8, 9, {3, 9});
    const std::vector<Line> links = StrongLinks();
    ASSERT_EQ(links.size(), 2U);
    EXPECT_EQ(links[0], (Line{NumberPoint({2, 1}, 3), NumberPoint({2, 9}, 3)}));
    EXPECT_EQ(links[1], (Line{NumberPoint({2, 9}, 3), NumberPoint({8, 9}, 3)}));
}

TEST_F(Links, PairOfABoxInOneRowGetsItsLineTwice)
{
    NumberFilter = BitTable[3];
    Hold(4, 5, {3, 5});
    Hold(6, 5, {3, 7});
    const std::vector<Line> links = StrongLinks();
    EXPECT_EQ(CountOfLine(links, {NumberPoint({4, 5}, 3), NumberPoint({6, 5}, 3)}), 2);
    EXPECT_EQ(links.size(), 2U);
}

TEST_F(Links, ThirdPlaceEndsTheLinkOfAColumnButNotOfABox)
{
    Hold(1, 1, {3});
    Hold(1, 2, {3});
    Hold(1, 9, {3});
    const std::vector<Line> links = StrongLinks();
    ASSERT_EQ(links.size(), 1U);
    EXPECT_EQ(links[0], (Line{NumberPoint({1, 1}, 3), NumberPoint({1, 2}, 3)}));
}

TEST_F(Links, GivensTakePart)
{
    Hold(1, 1, {3});
    WordAt({1, 1}) |= GivenBit;
    Hold(1, 9, {3, 4});
    EXPECT_EQ(StrongLinks().size(), 1U);
}

TEST_F(Links, NumbersOutOfViewAreNotLinked)
{
    NumberFilter = BitTable[5];
    Hold(1, 1, {3});
    Hold(1, 9, {3});
    EXPECT_TRUE(StrongLinks().empty());
}

// ---- Chains --------------------------------------------------------------------------------

TEST_F(Links, ChainOfOneCellDrawsNothing)
{
    Hold(3, 3, {3, 4});
    for (const std::int32_t kind : {3, -3}) {
        SetChain(kind, {{3, 3}});
        EXPECT_TRUE(ChainOnBoard().Lines.empty());
        EXPECT_TRUE(ChainOnBoard().Discs.empty());
    }
}

TEST_F(Links, PlainPathLeavesTheBorderOut)
{
    SetChain(0, {{1, 1}, {5, 1}});
    const ChainDrawing drawing = ChainOnBoard();
    ASSERT_EQ(drawing.Lines.size(), 1U);
    const auto centre = [](int column, int row) {
        return Point{CellX(column) + CellWidth / 2 - BorderThickness,
                     CellY(row) + CellHeight / 2 - BorderThickness};
    };
    EXPECT_EQ(drawing.Lines[0], (Line{centre(1, 1), centre(5, 1)}));
    EXPECT_TRUE(drawing.Discs.empty());
}

TEST_F(Links, ChainOnOneNumberRunsThroughIt)
{
    for (const auto &[column, row] : {std::pair{1, 1}, {5, 1}, {5, 8}}) {
        Hold(column, row, {2, 7, 9});
    }
    SetChain(7, {{1, 1}, {5, 1}, {5, 8}});
    const ChainDrawing drawing = ChainOnBoard();
    EXPECT_EQ(drawing.Lines, (std::vector<Line>{{NinePlace(1, 1, 7), NinePlace(5, 1, 7)},
                                                {NinePlace(5, 1, 7), NinePlace(5, 8, 7)}}));
    // A cell in the middle gets its disc when the chain arrives and again when it leaves.
    EXPECT_EQ(CentresOf(drawing), (std::vector<Point>{NinePlace(1, 1, 7), NinePlace(5, 1, 7),
                                                      NinePlace(5, 1, 7), NinePlace(5, 8, 7)}));
}

TEST_F(Links, CellWithoutTheNumberIsPassedOver)
{
    Hold(1, 1, {7, 8});
    Hold(5, 1, {2, 8});
    Hold(5, 8, {7, 8});
    SetChain(7, {{1, 1}, {5, 1}, {5, 8}});
    const ChainDrawing drawing = ChainOnBoard();
    EXPECT_EQ(drawing.Lines, (std::vector<Line>{{NinePlace(1, 1, 7), NinePlace(5, 8, 7)}}));
    EXPECT_EQ(CentresOf(drawing), (std::vector<Point>{NinePlace(1, 1, 7), NinePlace(5, 8, 7)}));
}

TEST_F(Links, ChainOfPairsEntersOnOneNumberAndLeavesOnTheOther)
{
    Hold(1, 1, {1, 2});
    Hold(9, 1, {2, 3});
    Hold(9, 9, {3, 1});
    SetChain(-1, {{1, 1}, {9, 1}, {9, 9}});
    const ChainDrawing drawing = ChainOnBoard();
    EXPECT_EQ(drawing.Lines, (std::vector<Line>{{NinePlace(1, 1, 2), NinePlace(9, 1, 2)},
                                                {NinePlace(9, 1, 3), NinePlace(9, 9, 3)}}));
    EXPECT_EQ(CentresOf(drawing), (std::vector<Point>{NinePlace(1, 1, 2), NinePlace(9, 1, 2),
                                                      NinePlace(9, 1, 3), NinePlace(9, 9, 3)}));
}

TEST_F(Links, LoneNumberOfTheVariableLayoutGetsNeitherLineNorDisc)
{
    PencilmarkLayout = 0;
    Hold(1, 1, {7, 8});
    Hold(5, 1, {7});
    SetChain(7, {{1, 1}, {5, 1}});
    const ChainDrawing drawing = ChainOnBoard();
    EXPECT_TRUE(drawing.Lines.empty());
    EXPECT_EQ(CentresOf(drawing), (std::vector<Point>{NumberPoint({1, 1}, 7)}));
}

TEST_F(Links, DiscsFollowTheNumberOfCandidates)
{
    ASSERT_EQ(std::max(CellWidth, CellHeight), 66);
    const auto radius = [](std::initializer_list<int> numbers) {
        Hold(1, 1, numbers);
        Hold(5, 1, numbers);
        SetChain(7, {{1, 1}, {5, 1}});
        return ChainOnBoard().Discs.front().Radius;
    };
    PencilmarkLayout = 1;
    EXPECT_EQ(radius({7, 8}), 33 / 3 - 1);
    PencilmarkLayout = 0;
    EXPECT_EQ(radius({7, 8}), 33 / 2 - 1);
    EXPECT_EQ(radius({6, 7, 8}), 13 - 1); // 33 / 2.5 is 13.2
    EXPECT_EQ(radius({5, 6, 7, 8}), 13 - 1);
    EXPECT_EQ(radius({4, 5, 6, 7, 8}), 11 - 1);
}

TEST_F(Links, TinyCellsHaveDiscsOfNoSize)
{
    LayoutBoard(1, 1, 0);
    Hold(1, 1, {7, 8});
    Hold(5, 1, {7, 8});
    SetChain(7, {{1, 1}, {5, 1}});
    EXPECT_EQ(ChainOnBoard().Discs.front().Radius, 0);
}

TEST_F(Links, AbsurdChainsAreHarmless)
{
    for (const std::int32_t kind : {0, 5, -5, 100, -100, INT32_MAX, INT32_MIN + 1}) {
        ChainColumns.fill(77);
        ChainRows.fill(-3);
        ChainColumns[2] = 4;
        ChainRows[2] = 4;
        ChainColumns[0] = INT32_MAX;
        ChainRows[0] = kind;
        EXPECT_LE(ChainOnBoard().Lines.size(), 81U);
        ChainColumns[0] = -8;
        EXPECT_TRUE(ChainOnBoard().Lines.empty());
    }
}

} // namespace
} // namespace kelvarine::testing
