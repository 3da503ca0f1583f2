// The board on screens of all ratios; the test program is run at several of them.
#include "board/look.h"
#include "game/lifecycle.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "outside/board.h"
#include "outside/help.h"
#include "outside/window.h"
#include "paint/board_painter.h"
#include "support/widget_program.h"
#include "ui/screens/help_window.h"
#include "ui/window/board_widget.h"

#include <QMouseEvent>
#include <QScreen>
#include <QtTest>
#include <gtest/gtest.h>

#include <random>

namespace kelvarine::testing {
namespace {

constexpr int Clicks = 2600; // at each ratio

class Ratio : public ::testing::Test {
protected:
    [[nodiscard]] BoardWidget *Board() const
    {
        return program.Main->Client->Board;
    }

    // The window as it is on the screen, each cell in the colour that a number stands for.
    template <typename Number>
    [[nodiscard]] QImage Painted(const Number &number) const
    {
        for (const Cell cell : Cells) {
            WordAt(cell) = static_cast<CellWord>(number(cell)) << ColourShift;
        }
        DrawBoard();
        return program.Main->grab().toImage();
    }

    // A click on a device pixel of the window.
    void ClickOn(QPoint pixel) const
    {
        const QPointF inWindow = QPointF(pixel) / Board()->devicePixelRatioF();
        const QPointF place = inWindow - QPointF(Board()->mapTo(program.Main.get(), QPoint(0, 0)));
        QMouseEvent press(QEvent::MouseButtonPress, place, Board()->mapToGlobal(place),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Board(), &press);
        QMouseEvent release(QEvent::MouseButtonRelease, place, Board()->mapToGlobal(place),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(Board(), &release);
    }

    Program program;
};

// The number whose colour a pixel has; 0 for the lines.
int NumberIn(const QImage &picture, QPoint pixel)
{
    for (int number = 1; number <= 9; ++number) {
        if ((picture.pixel(pixel) & 0xFFFFFF) ==
            HighlightColours[static_cast<std::size_t>(number)]) {
            return number;
        }
    }
    return 0;
}

TEST_F(Ratio, ClickHitsTheCellThatIsPaintedThere)
{
    SelectedCells3D = False;
    GivenCells3D = False;
    UnknownCells3D = False;
    SecondaryThickness = 1;
    ColourTable[PrimaryLineColour] = 0x010203;
    for (int number = 1; number <= 9; ++number) {
        HighlightColours[static_cast<std::size_t>(number)] = Rgb(20, 40, 20U * number);
    }
    std::mt19937 random(5489); // NOLINT: the same clicks every time
    for (const QSize size : {QSize(760, 830), QSize(641, 733), QSize(511, 602)}) {
        program.Main->resize(size);
        QCoreApplication::processEvents();
        const QImage columns = Painted([](Cell cell) { return cell.Column; });
        const QImage rows = Painted([](Cell cell) { return cell.Row; });
        ASSERT_EQ(columns.devicePixelRatio(), Board()->devicePixelRatioF());
        const double ratio = Board()->devicePixelRatioF();
        const QRect board(Board()->mapTo(program.Main.get(), QPoint(0, 0)) * ratio,
                          Board()->size() * ratio);
        int misses = 0;
        for (int click = 0; click < Clicks / 3 + 1; ++click) {
            const auto across = static_cast<int>(random() % static_cast<unsigned>(board.width()));
            const auto down = static_cast<int>(random() % static_cast<unsigned>(board.height()));
            const QPoint pixel = board.topLeft() + QPoint(across, down);
            ClickOn(pixel);
            const int column = NumberIn(columns, pixel);
            const int row = NumberIn(rows, pixel);
            misses += AnchorColumn != column || AnchorRow != row ? 1 : 0;
        }
        EXPECT_EQ(misses, 0) << "at " << ratio << " in " << size.width();
    }
}

TEST_F(Ratio, BoardFollowsTheWindowToAnotherScreen)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (screens.size() < 2) {
        GTEST_SKIP() << "needs two screens";
    }
    for (const int place : {1, 0, 1}) {
        program.Main->windowHandle()->setScreen(screens[place]);
        program.Main->move(screens[place]->geometry().topLeft() + QPoint(10, 10));
        const double ratio = screens[place]->devicePixelRatio();
        const auto follows = [&] {
            return Board()->devicePixelRatioF() == ratio &&
                   BoardPicture().devicePixelRatio() == ratio;
        };
        EXPECT_TRUE(QTest::qWaitFor(follows, Patience)) << ratio;
        EXPECT_EQ(BoardPicture().width(), std::lround(Board()->width() * ratio));
    }
}

TEST_F(Ratio, HelpOpensOnTheScreenOfTheWindowThatAsks)
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (screens.size() < 2) {
        GTEST_SKIP() << "needs two screens";
    }
    for (const int place : {1, 0, 1}) {
        program.Main->windowHandle()->setScreen(screens[place]);
        program.Main->move(screens[place]->geometry().topLeft() + QPoint(10, 10));
        QCoreApplication::processEvents();
        ShowHelpTopic(0);
        ASSERT_NE(OpenHelpWindow(), nullptr);
        QCoreApplication::processEvents();
        EXPECT_TRUE(screens[place]->geometry().contains(OpenHelpWindow()->frameGeometry().center()))
            << place;
        OpenHelpWindow()->close();
    }
}

} // namespace
} // namespace kelvarine::testing
