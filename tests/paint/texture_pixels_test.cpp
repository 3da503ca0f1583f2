// The tiles themselves: their greys on the colours that they are made for, and their size on
// screens with more pixels than the board.
#include "board/fill.h"
#include "board/look.h"
#include "configure/presets.h"
#include "paint/texture_painter.h"
#include "support/pixels.h"

#include <QColor>

#include <array>
#include <cmath>
#include <set>
#include <utility>

namespace kelvarine::testing {
namespace {

// A tile on white at a ratio, pixel by pixel.
QImage TileAt(double ratio, std::int32_t texture)
{
    const int side = static_cast<int>(std::lround(TileSide * ratio));
    QImage tile(side, side, QImage::Format_RGB32);
    tile.setDevicePixelRatio(ratio);
    tile.fill(Qt::white);
    TextureRectangle(CanvasOf(tile), {0, 0, TileSide, TileSide}, texture);
    return tile;
}

double MeanOf(const QImage &tile)
{
    double sum = 0;
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            sum += qGray(tile.pixel(x, y));
        }
    }
    return sum / (tile.width() * tile.height());
}

std::set<QRgb> GreysOf(const QImage &tile)
{
    std::set<QRgb> greys;
    for (int y = 0; y < tile.height(); ++y) {
        for (int x = 0; x < tile.width(); ++x) {
            greys.insert(tile.pixel(x, y));
        }
    }
    return greys;
}

// Steps round the circle of hues, in degrees; none where either colour is as good as grey.
int HueBetween(const QColor &a, const QColor &b)
{
    constexpr int faint = 40; // of 255
    if (a.saturation() < faint || b.saturation() < faint) {
        return 0;
    }
    const int apart = std::abs(a.hue() - b.hue());
    return std::min(apart, 360 - apart);
}

// A texture on a colour, as a look sets it.
using Textured = std::pair<std::int32_t, Colour>;

std::set<Textured> TexturedColoursOfPresets()
{
    std::set<Textured> all;
    for (std::int32_t preset = 0; preset < OfferedPresets; ++preset) {
        EXPECT_TRUE(LoadPreset(preset));
        for (const auto &[texture, colour] :
             {Textured{GivenTexture, ColourTable[GivenCellColour]},
              Textured{UnknownTexture, ColourTable[UnknownCellColour]},
              Textured{GridTexture, ColourTable[PrimaryLineColour]},
              Textured{GridTexture, ColourTable[SecondaryLineColour]}}) {
            if (texture != NoTexture) {
                all.insert({texture, colour});
            }
        }
    }
    return all;
}

class TexturePixels : public FlatBoard {};

TEST_F(TexturePixels, KeepTheHueOfEveryColourThatAPresetTextures)
{
    const std::set<Textured> all = TexturedColoursOfPresets();
    EXPECT_GT(all.size(), 5U);
    for (const auto &[texture, colour] : all) {
        const QColor plain = QColor::fromRgb(static_cast<QRgb>(colour));
        for (const QRgb grey : GreysOf(TileAt(1, texture))) {
            const QColor grained = QColor::fromRgb(static_cast<QRgb>(colour) & grey);
            EXPECT_LE(HueBetween(plain, grained), 20)
                << texture << " " << plain.name().toStdString() << " becomes "
                << grained.name().toStdString();
        }
    }
}

TEST_F(TexturePixels, AreDrawnAtTheSizeOfTheScreenAndNotEnlarged)
{
    for (const double ratio : {1.5, 2.0}) {
        for (std::int32_t texture = 1; texture < TileCount; ++texture) {
            const QImage plain = TileAt(1, texture);
            const QImage fine = TileAt(ratio, texture);
            QImage enlarged = plain.scaled(fine.size());
            enlarged.setDevicePixelRatio(ratio);
            EXPECT_NE(fine, enlarged) << ratio << " " << texture;
            EXPECT_NEAR(MeanOf(fine), MeanOf(plain), 1.0) << ratio << " " << texture;
            EXPECT_EQ(GreysOf(fine), GreysOf(plain)) << ratio << " " << texture;
        }
    }
}

TEST_F(TexturePixels, LookTheSameFromAfarOnEveryScreen)
{
    for (const double ratio : {1.25, 1.5, 1.75, 2.0, 3.0}) {
        for (std::int32_t texture = 1; texture < TileCount; ++texture) {
            EXPECT_NEAR(MeanOf(TileAt(ratio, texture)), MeanOf(TileAt(1, texture)), 2.0)
                << ratio << " " << texture;
        }
    }
}

} // namespace
} // namespace kelvarine::testing
