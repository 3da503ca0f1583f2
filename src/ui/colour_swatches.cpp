#include "ui/colour_swatches.h"

#include "board/frame_painter.h"
#include "board/texture_painter.h"
#include "configure/look_settings.h"
#include "ui/configure_controls.h"

#include <QPainter>

#include <cmath>
#include <functional>

namespace kelvarine {

namespace {

constexpr int SwatchWidth = 40;
constexpr int TileWidth = 48;
constexpr int TileHeight = 24;
constexpr int FrameThickness = 2;

// Paints a button by the painters of the board, and a mark when it has the focus.
void PaintButton(QAbstractButton &button, Colour colour, std::int32_t texture, int style,
                 int thickness)
{
    const double ratio = button.devicePixelRatioF();
    QImage picture(static_cast<int>(std::ceil(button.width() * ratio)),
                   static_cast<int>(std::ceil(button.height() * ratio)), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    const Canvas canvas = CanvasOf(picture);
    const int width = button.width();
    const int height = button.height();
    FillCorners(canvas, {0, 0}, {width - 1, height - 1}, colour);
    TextureRectangle(canvas, {0, 0, width, height}, texture);
    DrawFrame3D(canvas, style, thickness, thickness, width - 2 * thickness, thickness,
                height - 2 * thickness);
    QPainter painter(&button);
    painter.drawImage(0, 0, picture);
    if (button.hasFocus()) {
        painter.setPen(QPen(button.palette().color(QPalette::Highlight), 2));
        painter.drawRect(1, 1, width - 2, height - 2);
    }
}

} // namespace

ColourSwatch::ColourSwatch(QWidget *parent, std::size_t colour)
    : QAbstractButton(parent), colourIndex(colour)
{
    setObjectName(IndexedName("swatch", static_cast<int>(colour)));
    setAccessibleName("Take the color of" + TextOf(" ") + SpokenText(ColourCaptions[colour]));
    setFixedWidth(SwatchWidth);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
}

void ColourSwatch::paintEvent(QPaintEvent * /*event*/)
{
    const std::int32_t *texture = TextureOf(colourIndex);
    PaintButton(*this, ColourTable[colourIndex], texture != nullptr ? *texture : 0, Sunken,
                FrameThickness);
}

TextureTile::TextureTile(QWidget *parent, int tile) : QAbstractButton(parent), tileNumber(tile)
{
    setObjectName(IndexedName("tile", tile));
    setAccessibleName(QStringLiteral("Texture %1").arg(tile));
    setFixedSize(TileWidth, TileHeight);
    setFocusPolicy(Qt::StrongFocus);
}

void TextureTile::paintEvent(QPaintEvent * /*event*/)
{
    constexpr Colour white = 0xFFFFFF;
    PaintButton(*this, white, tileNumber, RaisedDimmer, 1);
}

} // namespace kelvarine
