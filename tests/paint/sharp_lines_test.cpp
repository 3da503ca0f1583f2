#include "paint/sharp_lines.h"
#include "support/pixels.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

namespace kelvarine::testing {
namespace {

constexpr std::array Ratios{1.0, 1.25, 1.5, 1.75, 2.0, 3.0};

// Device pixel at which a logical one of the window begins, as the toolkit cuts widgets.
int DevicePixel(double ratio, int position)
{
    return static_cast<int>(std::lround(position * ratio));
}

// Paints on a white picture of 100 by 100 logical pixels at a ratio, as a widget that stands at a
// point of its window does.
template <typename Paint>
QImage PaintedAt(double ratio, QPoint widget, const Paint &paint)
{
    const int side = static_cast<int>(std::lround(100 * ratio));
    QImage picture(side, side, QImage::Format_RGB32);
    picture.fill(Qt::white);
    picture.setDevicePixelRatio(ratio);
    QPainter painter(&picture);
    painter.translate(widget);
    paint(painter);
    return picture;
}

// Lengths of the runs of black pixels.
std::vector<int> BlackRuns(const std::vector<Colour> &pixels)
{
    std::vector<int> runs;
    bool black = false;
    for (const Colour pixel : pixels) {
        if (pixel == 0 && !black) {
            runs.push_back(0);
        }
        black = pixel == 0;
        if (black) {
            ++runs.back();
        }
    }
    return runs;
}

TEST(SharpLines, AreOfOneWidthAtEveryRatio)
{
    for (const double ratio : Ratios) {
        for (const int thickness : {1, 2}) {
            const QImage picture = PaintedAt(ratio, {3, 5}, [&](QPainter &painter) {
                for (const int place : {0, 11, 22, 33, 44, 55}) {
                    DrawLineDown(painter, {0, 0, 60, 60}, place, thickness, Qt::black);
                    DrawLineAcross(painter, {0, 0, 60, 60}, place, thickness, Qt::black);
                }
            });
            const int last = picture.width() - 1;
            const int middle = static_cast<int>(10 * ratio); // between two lines
            const std::vector<int> lines(6, static_cast<int>(thickness * ratio));
            EXPECT_EQ(BlackRuns(RowOf(picture, middle, 0, last)), lines) << ratio;
            EXPECT_EQ(BlackRuns(ColumnOf(picture, middle, 0, last)), lines) << ratio;
        }
    }
}

TEST(SharpLines, ReachFromEdgeToEdge)
{
    for (const double ratio : Ratios) {
        const QImage picture = PaintedAt(ratio, {3, 5}, [](QPainter &painter) {
            DrawLineDown(painter, {0, 0, 60, 40}, 10, 1, Qt::black);
        });
        const int x = DevicePixel(ratio, 3 + 10);
        const int top = DevicePixel(ratio, 5);
        const int height = DevicePixel(ratio, 5 + 40) - top;
        EXPECT_EQ(BlackRuns(ColumnOf(picture, x, 0, picture.height() - 1)), std::vector{height});
        EXPECT_EQ(PixelAt(picture, x, top), 0U) << ratio;
    }
}

TEST(SharpLines, FrameHasFourSidesOfOneWidth)
{
    for (const double ratio : Ratios) {
        const QImage picture = PaintedAt(ratio, {3, 5}, [](QPainter &painter) {
            DrawSharpFrame(painter, {0, 0, 33, 51}, Qt::black);
        });
        const int left = DevicePixel(ratio, 3);
        const int top = DevicePixel(ratio, 5);
        const int width = DevicePixel(ratio, 3 + 33) - left;
        const int height = DevicePixel(ratio, 5 + 51) - top;
        const int side = static_cast<int>(ratio);
        EXPECT_EQ(CountOf(picture, {left, top, width, height}, 0),
                  2 * side * (width + height - 2 * side))
            << ratio;
        const std::vector<int> sides{side, side};
        EXPECT_EQ(BlackRuns(RowOf(picture, top + height / 2, left, left + width - 1)), sides);
        EXPECT_EQ(BlackRuns(ColumnOf(picture, left + width / 2, top, top + height - 1)), sides);
    }
}

} // namespace
} // namespace kelvarine::testing
