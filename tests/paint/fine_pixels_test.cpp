// Boards on screens with more pixels than the board: what is told of their pixels.
#include "board/look.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "paint/device_axis.h"
#include "paint/pixel_painter.h"
#include "support/pixels.h"
#include "support/positions.h"

#include <array>
#include <cmath>
#include <set>

namespace kelvarine::testing {
namespace {

constexpr std::array Fractions{1.25, 1.5, 1.75, 2.25};
constexpr std::array Finer{1.25, 1.5, 1.75, 2.0, 2.25, 3.0};

constexpr Colour Rule = 0xFF00FF;
constexpr Colour Ink = 0x00FFFF;
constexpr Colour Fill = 0x000040;
constexpr Colour Line = 0x404000;

class FinePixels : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        Grid = {};
        ColourTable[PencilmarkLineColour] = Rule;
        ColourTable[UnknownNumberColour] = Ink;
        ColourTable[GivenNumberColour] = Ink;
        ColourTable[UnknownCellColour] = Fill;
        ColourTable[GivenCellColour] = Fill;
        ColourTable[PrimaryLineColour] = Line;
        ColourTable[SecondaryLineColour] = Line;
    }
};

// Lengths of the runs of one colour in a line of pixels, in their order.
std::vector<int> RunsOf(const std::vector<Colour> &pixels, Colour colour)
{
    std::vector<int> runs;
    bool inside = false;
    for (const Colour pixel : pixels) {
        if (pixel != colour) {
            inside = false;
            continue;
        }
        if (!inside) {
            runs.push_back(0);
        }
        inside = true;
        ++runs.back();
    }
    return runs;
}

TEST_F(FinePixels, CellsAndLinesAreOfOneWidth)
{
    for (const double ratio : Fractions) {
        for (const auto &[width, height] :
             {std::pair(60, 64), std::pair(71, 70), std::pair(37, 41)}) {
            for (const int secondary : {1, 3}) {
                SecondaryThickness = secondary;
                LayOutCells(width, height);
                const QImage board = PaintedBoard(ratio);
                const int middle = CellY(5) + CellHeight / 2;
                const auto pixels =
                    RowOf(board, static_cast<int>(middle * ratio), 0, board.width() - 1);
                const std::vector<int> cells = RunsOf(pixels, Fill);
                ASSERT_EQ(cells.size(), 9U) << ratio;
                EXPECT_EQ(std::set<int>(cells.begin(), cells.end()).size(), 1U) << ratio;
                const std::vector<int> lines = RunsOf(pixels, Line);
                ASSERT_EQ(lines.size(), 10U) << ratio;
                for (std::size_t k = 0; k < lines.size(); ++k) {
                    const int thickness = k % 3 == 0 ? PrimaryThickness : secondary;
                    EXPECT_EQ(lines[k], std::lround(thickness * ratio)) << k << " at " << ratio;
                }
            }
        }
    }
}

TEST_F(FinePixels, EveryPixelOfTheScreenBelongsToOneOfTheBoard)
{
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 3.0}) {
        for (const int side : {37, 60, 71}) {
            LayOutCells(side, side);
            const DeviceAxis axis = BoardAxis(ratio, CellWidth);
            const int length = BoardPlace.Width;
            EXPECT_EQ(EdgeOn(axis, length), std::lround(length * ratio));
            for (int position = 0; position < length; ++position) {
                const int edge = EdgeOn(axis, position);
                ASSERT_LE(edge, EdgeOn(axis, position + 1));
                if (edge < EdgeOn(axis, position + 1)) {
                    ASSERT_EQ(PixelOn(axis, edge), position) << ratio;
                    ASSERT_EQ(PixelOn(axis, EdgeOn(axis, position + 1) - 0.5), position) << ratio;
                }
            }
        }
    }
}

TEST_F(FinePixels, RuledLinesAreOfOneWidthAndEndWithTheCell)
{
    PencilmarkLines = True;
    SecondaryThickness = 2;
    for (const Cell cell : Cells) {
        WordAt(cell) = CandidateMask;
    }
    ColourTable[UnknownNumberColour] = Fill;
    for (const double ratio : Finer) {
        for (const int side : {44, 53, 71}) {
            LayOutCells(side, side);
            const QImage board = PaintedBoard(ratio);
            const int pen = static_cast<int>(std::lround(ratio));
            QImage picture = board.copy();
            const Canvas canvas = BoardCanvasOf(picture);
            for (int line = 1; line <= 9; ++line) {
                const int y = DeviceY(canvas, CellY(line)) + 2;
                const auto pixels = RowOf(board, y, 0, board.width() - 1);
                const std::vector<int> rules = RunsOf(pixels, Rule);
                ASSERT_EQ(rules.size(), 18U) << ratio;
                EXPECT_EQ(std::set<int>(rules.begin(), rules.end()), std::set<int>{pen}) << ratio;
            }
            // A line of the grid is of its own colour all along.
            const int bottom = DeviceY(canvas, CellY(3) + CellHeight);
            for (int x = DeviceX(canvas, CellX(1) + side); x < DeviceX(canvas, CellX(2)); ++x) {
                const auto along = ColumnOf(board, x, DeviceY(canvas, CellY(1)), bottom - 1);
                EXPECT_EQ(std::set<Colour>(along.begin(), along.end()), std::set<Colour>{Line})
                    << ratio;
            }
            const int right = DeviceX(canvas, CellX(3) + CellWidth);
            for (int y = DeviceY(canvas, CellY(1) + side); y < DeviceY(canvas, CellY(2)); ++y) {
                const auto along = RowOf(board, y, DeviceX(canvas, CellX(1)), right - 1);
                EXPECT_EQ(std::set<Colour>(along.begin(), along.end()), std::set<Colour>{Line})
                    << ratio;
            }
        }
    }
}

// Middle of what stands in a part of a picture, in device pixels, by all that is half ink.
std::pair<double, double> MiddleOfInk(const QImage &board, const DeviceArea &part)
{
    int left = part.Right;
    int right = part.Left;
    int top = part.Bottom;
    int bottom = part.Top;
    for (int y = part.Top; y < part.Bottom; ++y) {
        for (int x = part.Left; x < part.Right; ++x) {
            if ((PixelAt(board, x, y) >> 8 & 0xFF) >= 0x80) {
                left = std::min(left, x);
                right = std::max(right, x + 1);
                top = std::min(top, y);
                bottom = std::max(bottom, y + 1);
            }
        }
    }
    return {(left + right) / 2.0, (top + bottom) / 2.0};
}

TEST_F(FinePixels, DigitsStandInTheMiddleOfTheirPlace)
{
    constexpr double half = 0.75; // of a device pixel, and a little for the smoothed edge
    for (const double ratio : Finer) {
        for (const int side : {36, 44, 56, 71}) {
            LayOutCells(side, side);
            for (int number = 1; number <= 9; ++number) {
                Grid[number][1] = BitTable[static_cast<std::size_t>(number)] | GivenBit;
                Grid[number][2] = CandidateMask;
            }
            const QImage board = PaintedBoard(ratio);
            QImage picture = board.copy();
            const Canvas canvas = BoardCanvasOf(picture);
            for (int number = 1; number <= 9; ++number) {
                const DeviceArea cell = DevicePart(canvas, AreaOf(number, 1));
                const auto [x, y] = MiddleOfInk(board, cell);
                EXPECT_NEAR(x, (cell.Left + cell.Right) / 2.0, half) << number << " at " << ratio;
                EXPECT_NEAR(y, (cell.Top + cell.Bottom) / 2.0, half) << number << " at " << ratio;

                const DeviceArea marks = DevicePart(canvas, AreaOf(number, 2));
                const int third = (marks.Right - marks.Left) / 3;
                const int column = (number - 1) % 3;
                const int row = (number - 1) / 3;
                const double across =
                    marks.Left + (2 * column + 1) * (marks.Right - marks.Left) / 6.0;
                const double down = marks.Top + (2 * row + 1) * (marks.Bottom - marks.Top) / 6.0;
                const DeviceArea place{
                    static_cast<int>(across) - third / 2, static_cast<int>(down) - third / 2,
                    static_cast<int>(across) + third / 2, static_cast<int>(down) + third / 2};
                const auto [markX, markY] = MiddleOfInk(board, place);
                EXPECT_NEAR(markX, across, half) << number << " of " << side << " at " << ratio;
                EXPECT_NEAR(markY, down, half) << number << " of " << side << " at " << ratio;
            }
        }
    }
}

TEST_F(FinePixels, DiagonalsAreSmoothed)
{
    PencilmarkLines = True;
    PencilmarkLayout = 0;
    Grid[5][5] = BitTable[2] | BitTable[7];
    ColourTable[UnknownNumberColour] = Fill;
    for (const double ratio : Finer) {
        const QImage board = PaintedBoard(ratio);
        QImage picture = board.copy();
        const DeviceArea cell = DevicePart(BoardCanvasOf(picture), AreaOf(5, 5));
        std::set<Colour> shades;
        for (int y = cell.Top; y < cell.Bottom; ++y) {
            for (int x = cell.Left; x < cell.Right; ++x) {
                shades.insert(PixelAt(board, x, y));
            }
        }
        EXPECT_TRUE(shades.contains(Rule) || shades.size() > 2) << ratio;
        EXPECT_GT(shades.size(), 3U) << "shades between line and cell at " << ratio;
    }
}

TEST_F(FinePixels, BoardWithoutABorderLeavesNoGaps)
{
    BorderThickness = 0;
    for (const double ratio : Fractions) {
        LayOutCells(61, 43);
        const QImage board = PaintedBoard(ratio);
        EXPECT_EQ(CountOf(board, {0, 0, board.width(), board.height()}, Untouched), 0) << ratio;
    }
}

TEST_F(FinePixels, WhatIsLeftOverBelongsToTheMarginWhereThereIsNoBorder)
{
    BorderThickness = 0;
    for (const double ratio : Fractions) {
        for (const int side : {37, 60, 61, 71}) {
            LayOutCells(side, side);
            const DeviceAxis axis = BoardAxis(ratio, CellWidth);
            const int end = BoardPlace.Width;
            EXPECT_EQ(EdgeOn(axis, end) - EdgeOn(axis, end - PrimaryThickness),
                      std::lround(PrimaryThickness * ratio))
                << side << " at " << ratio;
        }
    }
}

} // namespace
} // namespace kelvarine::testing
