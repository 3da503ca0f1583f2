#include "ui/controls/colour_swatches.h"

#include "configure/look_settings.h"
#include "grid/colour.h"
#include "paint/frame_painter.h"
#include "paint/text.h"
#include "paint/texture_painter.h"
#include "ui/controls/configure_controls.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <functional>

namespace kelvarine {

namespace {

constexpr int SwatchWidth = 40;
constexpr int TileWidth = 48;
constexpr int TileHeight = 24;
constexpr int FrameThickness = 2;

// What the painters of the board put on a button after its fill.
using Painting = std::function<void(const Canvas &, int width, int height)>;

// Paints a button in a colour, with what else is to be seen on it, and a mark when it has the
// focus.
void PaintButton(QAbstractButton &button, Colour colour, const Painting &paint)
{
    const double ratio = button.devicePixelRatioF();
    QImage picture(static_cast<int>(std::ceil(button.width() * ratio)),
                   static_cast<int>(std::ceil(button.height() * ratio)), QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    const Canvas canvas = CanvasOf(picture);
    const int width = button.width();
    const int height = button.height();
    FillCorners(canvas, {0, 0}, {width - 1, height - 1}, colour);
    paint(canvas, width, height);
    QPainter painter(&button);
    painter.drawImage(0, 0, picture);
    if (button.hasFocus()) {
        painter.setPen(QPen(button.palette().color(QPalette::Highlight), 2));
        painter.drawRect(1, 1, width - 2, height - 2);
    }
}

} // namespace

void PressButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        QAbstractButton::mousePressEvent(event);
    } else {
        emit pressed(); // the toolkit's buttons know but one
    }
}

ColourSwatch::ColourSwatch(QWidget *parent, std::size_t colour)
    : PressButton(parent), colourIndex(colour)
{
    setObjectName(IndexedName("swatch", static_cast<int>(colour)));
    setAccessibleName(Text("Take the color of ") + SpokenText(ColourCaptions[colour]));
    setFixedWidth(SwatchWidth);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
}

void ColourSwatch::paintEvent(QPaintEvent * /*event*/)
{
    const std::int32_t *texture = TextureOf(colourIndex);
    PaintButton(*this, ColourTable[colourIndex], [&](const Canvas &canvas, int width, int height) {
        DrawFrameWithin3D(canvas, Sunken, FrameThickness, {0, 0, width, height});
        if (texture != nullptr) {
            TextureRectangle(canvas, {0, 0, width, height}, *texture);
        }
    });
}

TextureTile::TextureTile(QWidget *parent, int tile) : PressButton(parent), tileNumber(tile)
{
    setObjectName(IndexedName("tile", tile));
    setAccessibleName(Text("Texture %1").arg(tile));
    setFixedSize(TileWidth, TileHeight);
    setFocusPolicy(Qt::StrongFocus);
}

void TextureTile::paintEvent(QPaintEvent * /*event*/)
{
    constexpr Colour white = 0xFFFFFF;
    PaintButton(*this, white, [&](const Canvas &canvas, int width, int height) {
        TextureRectangle(canvas, {0, 0, width, height}, tileNumber);
        DrawFrameWithin3D(canvas, RaisedDimmer, 1, {0, 0, width, height});
    });
}

} // namespace kelvarine
