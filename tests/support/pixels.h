// Painted boards, and questions about their pixels.
#pragma once

#include "board/geometry.h"
#include "board/look.h"
#include "grid/colour.h"

#include <QImage>
#include <gtest/gtest.h>

#include <vector>

namespace kelvarine::testing {

extern int PictureShows; // calls of ShowBoardPicture, which is a double here

inline constexpr Colour Untouched = 0x123456; // what a picture holds before it is painted on

// Colour of a device pixel; Untouched for one outside the picture.
Colour PixelAt(const QImage &picture, int x, int y);
Colour PixelAt(const QImage &picture, Point place);

// The colours of a row of pixels, the first and the last included.
std::vector<Colour> RowOf(const QImage &picture, int y, int firstX, int lastX);
std::vector<Colour> ColumnOf(const QImage &picture, int x, int firstY, int lastY);

// Number of pixels of a colour in a part of a picture.
int CountOf(const QImage &picture, const Rectangle &part, Colour colour);

// Smallest rectangle round the pixels in a part in which two pictures differ; empty for none.
Rectangle DifferenceOf(const QImage &one, const QImage &other, const Rectangle &part);

// Pixels of a cell.
Rectangle AreaOf(Cell cell);
Rectangle AreaOf(int column, int row);

// Point in the middle of a rectangle.
Point MiddleOf(const Rectangle &rectangle);

// True when two points are not more than so many pixels apart in each direction.
bool AreNear(Point one, Point other, int distance);

// A picture of the size of the board, Untouched so far.
QImage EmptyPicture(double ratio = 1);

// Paints Grid into such a picture.
QImage PaintedBoard(double ratio = 1);

// Board of a known layout in a look without 3D effects: cells of 60 by 64 pixels.
class FlatBoard : public ::testing::Test {
protected:
    void SetUp() override;
};

// Lays the board out so that its cells have a size.
void LayOutCells(int width, int height);

} // namespace kelvarine::testing
