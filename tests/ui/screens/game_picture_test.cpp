#include "files/game_file.h"
#include "game/lifecycle.h"
#include "support/temporary_folder.h"
#include "support/widget_program.h"
#include "ui/screens/game_picture.h"

#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// Whether anything stands in the inner part of a cell, of nineteen pixels each way.
bool HoldsInk(const QImage &picture, const QColor &paper, Cell cell)
{
    const QRect inner((cell.Column - 1) * 19 + 4, (cell.Row - 1) * 19 + 3, 11, 13);
    for (int y = inner.top(); y <= inner.bottom(); ++y) {
        for (int x = inner.left(); x <= inner.right(); ++x) {
            if (picture.pixelColor(x, y) != paper) {
                return true;
            }
        }
    }
    return false;
}

TEST(GamePictureTest, ShowsTheNumbersInTheirCellsAndNoPencilmarks)
{
    const Program program;
    const TemporaryFolder folder;
    WordAt({5, 5}) = BitTable[3] | GivenBit;
    WordAt({2, 9}) = BitTable[7];
    WordAt({9, 1}) = BitTable[1] | BitTable[2];
    StartGame(NewGame);
    folder.Write("game.sdk", GameFileBytes());
    GamePicture view(nullptr);
    EXPECT_EQ(view.accessibleName(), "Selected game");
    view.resize(view.sizeHint());
    view.ShowFile(folder.Path("game.sdk"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !view.Words().isEmpty(); }, Patience));
    const QImage picture = view.grab().toImage();
    for (const Cell cell : Cells) {
        const bool number = cell == Cell{5, 5} || cell == Cell{2, 9};
        EXPECT_EQ(HoldsInk(picture, view.palette().color(QPalette::Base), cell), number)
            << cell.Column << " " << cell.Row;
    }
}

// Lengths of the stretches of a row of pixels that are not paper.
std::vector<int> LinesIn(const QImage &picture, int y, const QColor &paper)
{
    std::vector<int> lines;
    bool line = false;
    for (int x = 0; x < picture.width(); ++x) {
        const bool ink = picture.pixelColor(x, y) != paper;
        if (ink && !line) {
            lines.push_back(0);
        }
        line = ink;
        if (ink) {
            ++lines.back();
        }
    }
    return lines;
}

TEST(GamePictureTest, HasAllItsLinesOfOneWidthAtEveryRatio)
{
    const Program program;
    const TemporaryFolder folder;
    folder.Write("game.sdk", GameFileBytes());
    GamePicture view(nullptr);
    view.resize(view.sizeHint());
    view.ShowFile(folder.Path("game.sdk"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !view.Words().isEmpty(); }, Patience));
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        QImage picture((QSizeF(view.size()) * ratio).toSize(), QImage::Format_RGB32);
        picture.fill(view.palette().color(QPalette::Base));
        picture.setDevicePixelRatio(ratio);
        view.render(&picture, {}, {}, {});
        const int inside = static_cast<int>(5 * ratio); // the first row
        EXPECT_EQ(LinesIn(picture, inside, view.palette().color(QPalette::Base)),
                  std::vector<int>(10, static_cast<int>(ratio)))
            << ratio;
    }
}

} // namespace
} // namespace kelvarine::testing
