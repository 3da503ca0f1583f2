#include "support/widget_program.h"
#include "ui/window/placing.h"

#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

namespace kelvarine::testing {

namespace {

constexpr QRect Screen{0, 0, 1920, 1080};

} // namespace

TEST(Placing, OpensOnTheRightWhereThereIsRoom)
{
    EXPECT_EQ(PlaceBeside({100, 50, 760, 830}, {400, 300}, Screen), QPoint(860, 50));
    EXPECT_EQ(PlaceBeside({760, 50, 760, 830}, {400, 300}, Screen), QPoint(1520, 50));
}

TEST(Placing, OpensOnTheLeftWhenTheRightIsTooNarrow)
{
    EXPECT_EQ(PlaceBeside({761, 50, 760, 830}, {400, 300}, Screen), QPoint(361, 50));
}

TEST(Placing, LiesOverTheBoardOnlyWhenNeitherSideHasRoom)
{
    EXPECT_EQ(PlaceBeside({200, 50, 1600, 830}, {400, 300}, Screen), QPoint(1520, 50));
}

TEST(Placing, NeverLeavesTheScreen)
{
    const QRect second(1920, -200, 1000, 800);
    for (const QRect &screen : {Screen, second}) {
        for (const QPoint &corner : {QPoint(-5000, -5000), QPoint(5000, 5000), QPoint(1900, 700),
                                     QPoint(-100, 1000), QPoint(1920, -200)}) {
            const QSize size(300, 200);
            const QPoint kept = KeptOnScreen(QRect(corner, size), screen);
            EXPECT_TRUE(screen.contains(QRect(kept, size)));
            const QPoint beside = PlaceBeside(QRect(corner, QSize(760, 830)), size, screen);
            EXPECT_TRUE(screen.contains(QRect(beside, size)));
        }
    }
    EXPECT_EQ(KeptOnScreen({30, 40, 300, 200}, Screen), QPoint(30, 40)) << "not moved in vain";
    EXPECT_EQ(KeptOnScreen({30, 40, 4000, 3000}, Screen), QPoint(0, 0));
}

TEST(Placing, FirstWindowLeavesRoomForTheScreensBesideIt)
{
    EXPECT_EQ(FirstPlace({760, 830}, {0, 0, 3840, 2160}), QPoint(1540, 665)) << "in the middle";
    EXPECT_EQ(FirstPlace({760, 830}, Screen), QPoint(420, 125));
    EXPECT_EQ(FirstPlace({500, 580}, {0, 0, 1024, 600}), QPoint(0, 10));
    EXPECT_EQ(FirstPlace({500, 580}, {1920, -200, 1024, 600}), QPoint(1920, -190));
}

TEST(Placing, AbsurdPlacesOfAFileAreHarmless)
{
    const Program program;
    constexpr std::int32_t most = 2147483647;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const WindowPlace &place :
         {WindowPlace{most, most, most, most}, WindowPlace{-most - 1, -most - 1, 1, 1},
          WindowPlace{most, -most, -5, 7}, WindowPlace{-most, 0, 0, most}}) {
        QWidget window(program.Main.get(), Qt::Dialog);
        window.resize(200, 100);
        OpenAt(window, place);
        EXPECT_TRUE(screen.contains(window.pos()));
        EXPECT_LE(window.width(), screen.width());
        EXPECT_LE(window.height(), screen.height());
    }
}

} // namespace kelvarine::testing
