#include "support/widget_ratio.h"
#include "ui/window/dark_outlines.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStyleFactory>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kelvarine::testing {
namespace {

const QColor DarkWindow(32, 35, 38);
const QColor LightWindow(239, 240, 241);

// The toolkit's own style, as it is before and after the tests.
class DarkOutlines : public ::testing::Test {
protected:
    void SetUp() override
    {
        QApplication::setStyle(QStyleFactory::create("fusion"));
    }
    void TearDown() override
    {
        QApplication::setStyle(QStyleFactory::create("fusion"));
    }

    // An empty box of each kind on a window of a colour, in pictures.
    static std::vector<QImage> Boxes(const QColor &window)
    {
        std::vector<std::unique_ptr<QWidget>> boxes;
        boxes.push_back(std::make_unique<QCheckBox>());
        boxes.push_back(std::make_unique<QRadioButton>());
        boxes.push_back(std::make_unique<QLineEdit>());
        boxes.push_back(std::make_unique<QPlainTextEdit>());
        std::vector<QImage> pictures;
        for (const auto &box : boxes) {
            box->setPalette(QPalette(window, window));
            box->setAutoFillBackground(true);
            box->resize(box->sizeHint());
            pictures.push_back(box->grab().toImage());
        }
        return pictures;
    }

    // How much lighter than the window the lightest pixel is, of 255.
    static int Lighter(const QImage &picture)
    {
        int most = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                most = std::max(most, qGray(picture.pixel(x, y)) - qGray(DarkWindow.rgb()));
            }
        }
        return most;
    }
};

TEST_F(DarkOutlines, StandOutOnADarkWindow)
{
    for (const QImage &picture : Boxes(DarkWindow)) {
        EXPECT_LT(Lighter(picture), 40) << "what is to be mended";
    }
    LightenDarkOutlines();
    for (const QImage &picture : Boxes(DarkWindow)) {
        EXPECT_GT(Lighter(picture), 60);
    }
}

TEST_F(DarkOutlines, AreTheToolkitsOwnOnALightWindow)
{
    const std::vector<QImage> before = Boxes(LightWindow);
    LightenDarkOutlines();
    EXPECT_EQ(Boxes(LightWindow), before);
}

// The style loses sides of a frame where a pixel of its own is no whole number of the screen's, or
// where the list begins between two of the screen's.
TEST_F(DarkOutlines, FrameAListOnAllSidesAtEveryRatioAndPlace)
{
    LightenDarkOutlines();
    QWidget window;
    window.resize(100, 80);
    QPlainTextEdit list(&window);
    list.resize(91, 71);
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const QPoint place : {QPoint(0, 0), QPoint(1, 2), QPoint(2, 1), QPoint(3, 3)}) {
            list.move(place);
            const QImage picture = PictureInWindow(list, ratio);
            const int right = picture.width() - 1;
            const int bottom = picture.height() - 1;
            const QRgb frame = picture.pixel(right / 2, 0);
            SCOPED_TRACE(::testing::Message() << ratio << " at " << place.x());
            EXPECT_NE(frame, picture.pixel(right / 2, bottom / 2));
            EXPECT_EQ(picture.pixel(right / 2, bottom), frame);
            EXPECT_EQ(picture.pixel(0, bottom / 2), frame);
            EXPECT_EQ(picture.pixel(right, bottom / 2), frame);
        }
    }
}

TEST_F(DarkOutlines, LeaveAStyleOfTheDesktopAlone)
{
    QApplication::setStyle(QStyleFactory::create("windows"));
    const QStyle *brought = QApplication::style();
    LightenDarkOutlines();
    EXPECT_EQ(QApplication::style(), brought);
}

} // namespace
} // namespace kelvarine::testing
