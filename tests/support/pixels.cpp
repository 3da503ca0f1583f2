#include "support/pixels.h"

#include "grid/colour.h"
#include "paint/board_painter.h"
#include "support/outside_double.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kelvarine {

void ShowBoardPicture()
{
    ++testing::PictureShows;
}

namespace testing {

int PictureShows;

Colour PixelAt(const QImage &picture, int x, int y)
{
    return picture.valid(x, y) ? picture.pixel(x, y) & 0xFFFFFF : Untouched;
}

Colour PixelAt(const QImage &picture, Point place)
{
    return PixelAt(picture, place.X, place.Y);
}

std::vector<Colour> RowOf(const QImage &picture, int y, int firstX, int lastX)
{
    std::vector<Colour> colours;
    for (int x = firstX; x <= lastX; ++x) {
        colours.push_back(PixelAt(picture, x, y));
    }
    return colours;
}

std::vector<Colour> ColumnOf(const QImage &picture, int x, int firstY, int lastY)
{
    std::vector<Colour> colours;
    for (int y = firstY; y <= lastY; ++y) {
        colours.push_back(PixelAt(picture, x, y));
    }
    return colours;
}

int CountOf(const QImage &picture, const Rectangle &part, Colour colour)
{
    int count = 0;
    for (int y = part.Y; y < part.Y + part.Height; ++y) {
        const std::vector<Colour> row = RowOf(picture, y, part.X, part.X + part.Width - 1);
        count += static_cast<int>(std::count(row.begin(), row.end(), colour));
    }
    return count;
}

Rectangle DifferenceOf(const QImage &one, const QImage &other, const Rectangle &part)
{
    int left = part.X + part.Width;
    int top = part.Y + part.Height;
    int right = part.X - 1;
    int bottom = part.Y - 1;
    for (int y = part.Y; y < part.Y + part.Height; ++y) {
        for (int x = part.X; x < part.X + part.Width; ++x) {
            if (PixelAt(one, x, y) != PixelAt(other, x, y)) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    if (right < left) {
        return {};
    }
    return {left, top, right - left + 1, bottom - top + 1};
}

Rectangle AreaOf(Cell cell)
{
    return AreaOf(cell.Column, cell.Row);
}

Rectangle AreaOf(int column, int row)
{
    return {CellX(column), CellY(row), CellWidth, CellHeight};
}

Point MiddleOf(const Rectangle &rectangle)
{
    return {rectangle.X + rectangle.Width / 2, rectangle.Y + rectangle.Height / 2};
}

bool AreNear(Point one, Point other, int distance)
{
    return std::abs(one.X - other.X) <= distance && std::abs(one.Y - other.Y) <= distance;
}

QImage EmptyPicture(double ratio)
{
    QImage picture(static_cast<int>(std::lround(BoardPlace.Width * ratio)),
                   static_cast<int>(std::lround(BoardPlace.Height * ratio)), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Untouched);
    return picture;
}

QImage PaintedBoard(double ratio)
{
    QImage picture = EmptyPicture(ratio);
    PaintBoard(picture);
    return picture;
}

void FlatBoard::SetUp()
{
    Restart();
    PictureShows = 0;
    GivenCells3D = False;
    UnknownCells3D = False;
    SelectedCells3D = False;
    LayOutCells(60, 64);
}

void LayOutCells(int width, int height)
{
    const int rest =
        4 * PrimaryThickness + 6 * SecondaryThickness + 2 * (MarginThickness + BorderThickness);
    LayoutBoard(9 * width + rest, 9 * height + rest, 0);
}

} // namespace testing

} // namespace kelvarine
