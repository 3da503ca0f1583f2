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

} // namespace
} // namespace kelvarine::testing
