// What the controls of the configuration screen paint themselves, pixel by pixel where it carries a
// meaning.
#include "game/screens.h"
#include "support/widget_configure.h"
#include "support/widget_events.h"
#include "support/widget_ratio.h"
#include "ui/configure/tab_strip.h"
#include "ui/controls/level_label.h"
#include "ui/controls/preset_pictures.h"
#include "ui/controls/print_preview.h"

#include <QImage>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kelvarine::testing {
namespace {

constexpr Colour NoAlpha = 0xFFFFFF;

Colour ColourAt(const QImage &picture, int x, int y)
{
    return picture.pixel(x, y) & NoAlpha;
}

// Colours in the middles of the edges of a picture: top, left, bottom, right; so far inside it.
std::vector<Colour> Edges(const QImage &picture, int inside = 0)
{
    const int right = picture.width() - 1;
    const int bottom = picture.height() - 1;
    return {ColourAt(picture, right / 2, inside), ColourAt(picture, inside, bottom / 2),
            ColourAt(picture, right / 2, bottom - inside),
            ColourAt(picture, right - inside, bottom / 2)};
}

class PaintedControls : public ConfigureTest {
protected:
    QImage PictureOf(const char *name)
    {
        return Find<QWidget>(name)->grab().toImage();
    }

    // The same on a screen of a ratio.
    QImage PictureAt(double ratio, const char *name)
    {
        auto *control = Find<QWidget>(name);
        QImage picture((QSizeF(control->size()) * ratio).toSize(), QImage::Format_RGB32);
        picture.fill(Qt::green);
        picture.setDevicePixelRatio(ratio);
        control->render(&picture);
        return picture;
    }
};

TEST_F(PaintedControls, PreviewIsFramedAllRoundAtEveryRatio)
{
    Open(PrintTab);
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const QImage preview = PictureAt(ratio, "picPrintPreview");
        const int thickness = static_cast<int>(ratio);
        EXPECT_EQ(Edges(preview), std::vector<Colour>(4, 0x808080)) << ratio;
        EXPECT_EQ(Edges(preview, thickness - 1), std::vector<Colour>(4, 0x808080)) << ratio;
        EXPECT_EQ(Edges(preview, thickness), std::vector<Colour>(4, 0xFFFFFF)) << ratio;
    }
}

TEST_F(PaintedControls, PreviewIsFramedAllRoundAtEveryPlaceOfItsWindow)
{
    Open(PrintTab); // which leaves the edges of the page white
    QWidget window;
    PrintPreview preview(&window);
    window.resize(preview.size() + QSize(8, 8));
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        for (const QPoint place : {QPoint(0, 0), QPoint(1, 2), QPoint(2, 1), QPoint(3, 3)}) {
            preview.move(place);
            const QImage picture = PictureInWindow(preview, ratio);
            const int thickness = static_cast<int>(ratio);
            SCOPED_TRACE(::testing::Message() << ratio << " at " << place.x());
            EXPECT_EQ(Edges(picture), std::vector<Colour>(4, 0x808080));
            EXPECT_EQ(Edges(picture, thickness - 1), std::vector<Colour>(4, 0x808080));
            EXPECT_EQ(Edges(picture, thickness), std::vector<Colour>(4, 0xFFFFFF));
        }
    }
}

TEST_F(PaintedControls, LinesOfTheSampleOfNamesAreOfTwoWidthsAtEveryRatio)
{
    Open(CoordinatesTab);
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const QImage sample = PictureAt(ratio, "picCoordinateSample");
        const int above = static_cast<int>(5 * ratio); // the names of the first row
        std::string widths;
        bool black = false;
        for (int x = 0; x < sample.width(); ++x) {
            if (ColourAt(sample, x, above) != 0) {
                black = false;
                continue;
            }
            if (!black) {
                widths += '0';
            }
            black = true;
            ++widths.back();
        }
        const std::string thin(2, static_cast<char>('0' + static_cast<int>(ratio)));
        const std::string thick(1, static_cast<char>('0' + static_cast<int>(2 * ratio)));
        std::string all = thick;
        for (int box = 0; box < 3; ++box) {
            all += thin + thick;
        }
        EXPECT_EQ(widths, all) << ratio;
    }
}

TEST_F(PaintedControls, SwatchHasASunkenFrameOfTwoPixelsRoundItsColour)
{
    Open(ColoursTab);
    const QImage swatch = PictureOf("swatch4");
    const std::vector<Colour> frame{0x404040, 0x5A5A5A, 0xFFFFFF, 0xDADADA};
    EXPECT_EQ(Edges(swatch, 0), frame);
    EXPECT_EQ(Edges(swatch, 1), frame);
    EXPECT_EQ(Edges(swatch, 2), std::vector<Colour>(4, ColourTable[4]));
}

TEST_F(PaintedControls, TileHasARaisedFrameOfOnePixelOverItsTexture)
{
    Open(ColoursTab);
    ConfigureTest::Click("optTableColors0");
    EXPECT_EQ(Edges(PictureOf("tile3")),
              (std::vector<Colour>{0xBEBEBE, 0xAAAAAA, 0x404040, 0x5A5A5A}));
}

TEST_F(PaintedControls, PreviewOfThePageIsFramed)
{
    Open(PrintTab);
    const std::vector<Colour> frame(4, QColor(Qt::darkGray).rgb() & NoAlpha);
    EXPECT_EQ(Edges(PictureOf("picPrintPreview")), frame);
    EXPECT_EQ(ColourAt(PictureOf("picPrintPreview"), 0, 0), frame[0]);
}

TEST_F(PaintedControls, LevelIsAButtonWithAnArrowAtItsEnd)
{
    Open(LogicTab);
    auto *level = Screen->findChild<LevelLabel *>();
    ASSERT_NE(level, nullptr);
    const auto colourOf = [&](QPalette::ColorRole role) {
        return level->palette().color(role).rgb() & NoAlpha;
    };
    const QImage picture = level->grab().toImage();
    EXPECT_EQ(Edges(picture, 0), std::vector<Colour>(4, colourOf(QPalette::Mid)));
    EXPECT_EQ(Edges(picture, 1), std::vector<Colour>(4, colourOf(QPalette::Button)));
    int arrow = 0;
    for (int x = picture.width() - 10; x < picture.width() - 1; ++x) {
        for (int y = 1; y < picture.height() - 1; ++y) {
            arrow += ColourAt(picture, x, y) != colourOf(QPalette::Button) ? 1 : 0;
        }
    }
    EXPECT_GT(arrow, 5);
    MovePointerTo(*level);
    ASSERT_TRUE(level->underMouse());
    EXPECT_EQ(Edges(level->grab().toImage(), 1), std::vector<Colour>(4, colourOf(QPalette::Light)));
}

TEST_F(PaintedControls, TabIsEdgedWithItsUpperCornersCutOff)
{
    Open(LogicTab);
    auto *strip = Screen->findChild<TabStrip *>();
    const QImage picture = strip->grab().toImage();
    const QColor window = strip->palette().color(QPalette::Window);
    const QColor text = strip->palette().color(QPalette::WindowText);
    const auto mix = [](int near, int far) {
        return (2 * near + far) / 3;
    };
    const QColor edge(mix(window.red(), text.red()), mix(window.green(), text.green()),
                      mix(window.blue(), text.blue()));
    const QRect tab = strip->PlaceOfTab(PrintTab);
    const auto isEdge = [&](int x, int y) {
        return QColor(picture.pixel(x, y)) == edge;
    };
    for (int step = 0; step <= 3; ++step) {
        EXPECT_TRUE(isEdge(tab.left() + step, tab.top() + 3 - step)) << step;
        EXPECT_TRUE(isEdge(tab.right() - step, tab.top() + 3 - step)) << step;
    }
    EXPECT_FALSE(isEdge(tab.left(), tab.top()));
    EXPECT_FALSE(isEdge(tab.right(), tab.top()));
    EXPECT_TRUE(isEdge(tab.center().x(), tab.top()));
    EXPECT_TRUE(isEdge(tab.left(), tab.center().y()));
    EXPECT_TRUE(isEdge(tab.right(), tab.center().y()));
    EXPECT_TRUE(isEdge(tab.center().x(), strip->Height() - 1)) << "the line that the tabs stand on";
}

// Colour that most of the inside of a cell has.
Colour MainColourIn(const QImage &picture, Cell cell)
{
    const int side = picture.width() / 9;
    std::map<Colour, int> counts;
    for (int x = side / 5; x < side * 4 / 5; ++x) {
        for (int y = side / 5; y < side * 4 / 5; ++y) {
            ++counts[ColourAt(picture, (cell.Column - 1) * side + x, (cell.Row - 1) * side + y)];
        }
    }
    return std::ranges::max_element(counts, {}, &std::pair<const Colour, int>::second)->first;
}

TEST_F(PaintedControls, PictureOfAPresetShowsItsMarksInTheirCells)
{
    const QImage picture = PresetPicture(1, 270, 1);
    std::string marked;
    for (std::uint8_t place = 0; place < 81; ++place) {
        const auto column = static_cast<std::uint8_t>(place % 9 + 1);
        const auto row = static_cast<std::uint8_t>(place / 9 + 1);
        switch (MainColourIn(picture, {column, row})) {
        case 0xFFFFFF:
            marked += '.';
            break;
        case 0xCDCDCD:
            marked += 'S';
            break;
        case 0x00FE00:
            marked += 'H';
            break;
        case 0x87FC87:
            marked += 'D';
            break;
        default:
            marked += '?';
        }
    }
    EXPECT_EQ(marked, "......HDD"
                      "......DHD"
                      "........."
                      "........."
                      "...S....."
                      "........."
                      "........."
                      "........."
                      ".........");
}

} // namespace
} // namespace kelvarine::testing
