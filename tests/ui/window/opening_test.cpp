#include "support/widget_program.h"
#include "ui/window/opening.h"

#include <QScreen>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// Whether a window comes to stand on its screen as a whole.
bool ComesToFit(const QWidget &window)
{
    return QTest::qWaitFor(
        [&] { return window.screen()->availableGeometry().contains(window.frameGeometry()); },
        Patience);
}

TEST(Opening, WindowLargerThanTheScreenIsMadeToFit)
{
    const Program program;
    WatchOpeningWindows();
    const QSize screen = program.Main->screen()->availableSize();
    for (const QSize &size : {screen + QSize(300, 0), screen + QSize(0, 300), 3 * screen}) {
        QWidget window(nullptr, Qt::Dialog);
        window.resize(size);
        window.show();
        EXPECT_TRUE(QRect({}, screen).contains(QRect({}, window.size()))) << "at once";
        EXPECT_TRUE(ComesToFit(window));
        EXPECT_EQ(window.frameGeometry().size(), size.boundedTo(screen))
            << "no smaller than it must be";
    }
    program.Main->hide();
    program.Main->resize(2 * screen);
    program.Main->show();
    EXPECT_TRUE(ComesToFit(*program.Main));
}

TEST(Opening, WindowThatWasPutOffTheScreenIsBroughtBackWhole)
{
    const Program program;
    WatchOpeningWindows();
    const QRect screen = program.Main->screen()->availableGeometry();
    for (const QPoint &corner : {QPoint(-50, 40), screen.bottomRight() - QPoint(60, 60)}) {
        QWidget window(nullptr, Qt::Dialog);
        window.resize(200, 150);
        window.move(corner);
        window.show();
        EXPECT_TRUE(ComesToFit(window));
        EXPECT_EQ(window.size(), QSize(200, 150));
    }
}

} // namespace
} // namespace kelvarine::testing
