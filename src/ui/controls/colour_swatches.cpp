#include "ui/controls/colour_swatches.h"

#include "configure/look_settings.h"
#include "grid/colour.h"
#include "grid/colour_names.h"
#include "paint/frame_painter.h"
#include "paint/text.h"
#include "paint/texture_painter.h"
#include "ui/controls/configure_controls.h"
#include "ui/controls/focus_frame.h"

#include <QKeyEvent>
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
constexpr int MarkThickness = 3;
constexpr double DimmedOpacity = 0.35;

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
    painter.setOpacity(button.isEnabled() ? 1 : DimmedOpacity);
    painter.drawImage(0, 0, picture);
    painter.setOpacity(1);
    PaintFocus(button, painter, button.rect());
}

// Where a key leads to from a place among so many in rows; the place itself when nowhere.
int PlaceAfter(int place, int key, int count, int inRow)
{
    int next = place;
    switch (key) {
    case Qt::Key_Left:
        next = inRow > 1 ? place - 1 : place;
        break;
    case Qt::Key_Right:
        next = inRow > 1 ? place + 1 : place;
        break;
    case Qt::Key_Up:
        next = place - inRow;
        break;
    case Qt::Key_Down:
        next = place + inRow;
        break;
    case Qt::Key_Home:
        next = 0;
        break;
    case Qt::Key_End:
        next = count - 1;
        break;
    default:
        break;
    }
    return next >= 0 && next < count ? next : place;
}

bool IsWalk(int key)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return false;
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

void PressButton::MakeOneStop(const QList<PressButton *> &buttons, int inRow)
{
    for (PressButton *button : buttons) {
        button->fellows = buttons;
        button->fellowsInRow = inRow;
        button->setFocusPolicy(button == buttons.front() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

// The stop is where the player was last.
void PressButton::GoTo(PressButton *next)
{
    for (PressButton *fellow : fellows) {
        fellow->setFocusPolicy(fellow == next ? Qt::StrongFocus : Qt::ClickFocus);
    }
    next->setFocus(Qt::OtherFocusReason);
}

void PressButton::keyPressEvent(QKeyEvent *event)
{
    NoteKey(*this);
    if (fellows.empty() || !IsWalk(event->key())) {
        QAbstractButton::keyPressEvent(event);
        return;
    }
    const int place = static_cast<int>(fellows.indexOf(this));
    const int count = static_cast<int>(fellows.size());
    GoTo(fellows[PlaceAfter(place, event->key(), count, fellowsInRow)]);
}

void PressButton::focusInEvent(QFocusEvent *event)
{
    QAbstractButton::focusInEvent(event);
    NoteFocus(*this, *event);
}

void PressButton::focusOutEvent(QFocusEvent *event)
{
    QAbstractButton::focusOutEvent(event);
    NoteFocus(*this, *event);
}

ColourSwatch::ColourSwatch(QWidget *parent, std::size_t colour)
    : PressButton(parent), colourIndex(colour)
{
    setObjectName(IndexedName("swatch", static_cast<int>(colour)));
    TellColour();
    setFixedWidth(SwatchWidth);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
}

void ColourSwatch::TellColour()
{
    SetSpokenName(*this, Text("Take the color of %1: %2")
                             .arg(SpokenText(ColourCaptions[colourIndex]),
                                  Text(ColourInWords(ColourTable[colourIndex]))));
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

void TextureTile::ShowInForce(bool inForce)
{
    if (inForce_ == inForce) {
        return;
    }
    inForce_ = inForce;
    setAccessibleName(Text(inForce ? "Texture %1, in force" : "Texture %1").arg(tileNumber));
    update();
}

void TextureTile::paintEvent(QPaintEvent * /*event*/)
{
    constexpr Colour white = 0xFFFFFF;
    PaintButton(*this, white, [&](const Canvas &canvas, int width, int height) {
        TextureRectangle(canvas, {0, 0, width, height}, tileNumber);
        DrawFrameWithin3D(canvas, RaisedDimmer, 1, {0, 0, width, height});
    });
    if (inForce_) {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), MarkThickness));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
        // The mark covers the frame of the focus, which stands within it here, apart from it.
        constexpr int apart = MarkThickness + 1;
        PaintFocus(*this, painter, rect().adjusted(apart, apart, -apart, -apart));
    }
}

} // namespace kelvarine
