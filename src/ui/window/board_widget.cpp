#include "ui/window/board_widget.h"

#include "board/geometry.h"
#include "game/search.h"
#include "input/keys.h"
#include "input/mouse.h"
#include "input/toolbar.h"
#include "outside/events.h"
#include "outside/window.h"
#include "paint/board_painter.h"
#include "paint/device_axis.h"
#include "ui/window/board_accessible.h"
#include "ui/window/key_decoder.h"
#include "ui/window/teller.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTouchEvent>

#include <utility>

namespace kelvarine {

namespace {

// The keys that the toolbar shows the sign of.
bool IsSignKey(std::int32_t code)
{
    return code == ShiftCode || code == CtrlCode;
}

bool IsTabulator(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

bool GoesByTabulator(const QFocusEvent &event)
{
    return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
}

} // namespace

BoardWidget::BoardWidget(QWidget *parent)
    : QWidget(parent), touch(this, [this](const QPointF &place) { return PixelAt(place); })
{
    DescribeBoardToTools(); // before anything asks for the description, because that is kept
    setFocusPolicy(Qt::StrongFocus);
    // The picture covers all of it, so there is nothing to erase.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName("Sudoku board");
}

void BoardWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    if (BoardPicture().devicePixelRatio() != devicePixelRatioF()) {
        // The window has come to a screen of another ratio. What is there stands in until then.
        CallFromEventLoop(ResizeWindow);
    }
    // Where the board begins within a pixel of the screen it begins with the nearest one.
    const QTransform onScreen = painter.deviceTransform();
    const QPointF corner(onScreen.dx(), onScreen.dy());
    painter.translate((corner.toPoint() - corner) / devicePixelRatioF());
    painter.drawImage(0, 0, BoardPicture());
}

QPoint BoardWidget::PixelAt(const QPointF &position) const
{
    const double ratio = devicePixelRatioF();
    const QPointF corner = QPointF(mapTo(window(), QPoint(0, 0))) * ratio;
    const QPointF inPicture = position * ratio + corner - corner.toPoint();
    return {PixelOn(BoardAxis(ratio, CellWidth), inPicture.x()),
            PixelOn(BoardAxis(ratio, CellHeight), inPicture.y())};
}

void BoardWidget::mousePressEvent(QMouseEvent *event)
{
    const std::int32_t button = event->button() == Qt::RightButton ? RightButton : LeftButton;
    const QPoint place = PixelAt(event->position());
    BoardPressed(button, ModifiersOf(event->modifiers()), place.x(), place.y());
}

void BoardWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    // Quick presses of the right button are presses.
    if (event->button() == Qt::RightButton) {
        mousePressEvent(event);
    } else {
        BoardDoubleClicked();
    }
}

void BoardWidget::mouseMoveEvent(QMouseEvent *event)
{
    // Only the left button alone drags.
    const std::int32_t button = event->buttons() == Qt::LeftButton ? LeftButton : NoButton;
    const QPoint place = PixelAt(event->position());
    BoardMoved(button, ModifiersOf(event->modifiers()), place.x(), place.y());
}

bool BoardWidget::event(QEvent *event)
{
    // The toolkit takes the tabulator for itself; it is a key of the board all the same.
    if (event->type() == QEvent::KeyPress && IsTabulator(static_cast<QKeyEvent *>(event)->key()) &&
        !ReadyForCommand()) {
        return true;
    }
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        touch.Take(static_cast<QTouchEvent *>(event));
        return true;
    default:
        return QWidget::event(event);
    }
}

void BoardWidget::TakeKeyPress(QKeyEvent *event)
{
    if (IsDesktopKey(event->key())) {
        event->ignore();
        return;
    }
    // A key without a code has no command, but like all others it ends the win display and brings
    // the question during a search.
    const std::int32_t code = KeyCodeOf(*event);
    modifierHeld = modifierHeld || IsSignKey(code);
    KeyDown(code, ModifiersOf(event->modifiers()));
}

void BoardWidget::TakeKeyRelease(const QKeyEvent &event)
{
    const std::int32_t code = KeyCodeOf(event);
    // Another key that comes up leaves the modifier down.
    modifierHeld = modifierHeld && !IsSignKey(code);
    KeyUp(code);
}

void BoardWidget::TakeReleaseElsewhere(const QKeyEvent &event)
{
    if (IsSignKey(KeyCodeOf(event))) {
        LetModifiersGo();
    }
}

bool BoardWidget::SignFollowsKey() const
{
    return modifierHeld;
}

void BoardWidget::TakeModifiers()
{
    const std::int32_t held = ModifiersOf(QGuiApplication::queryKeyboardModifiers());
    if ((held & (ShiftKey | CtrlKey)) == 0) {
        LetModifiersGo();
        return;
    }
    modifierHeld = true;
    if ((held & CtrlKey) != 0) {
        ShowSignOfCtrl();
    } else {
        ShowSignOfShift();
    }
}

void BoardWidget::LetModifiersGo()
{
    // A sign that the player has set by the button is his own.
    if (std::exchange(modifierHeld, false)) {
        LetSignGo();
    }
}

void BoardWidget::keyPressEvent(QKeyEvent *event)
{
    TakeKeyPress(event);
}

void BoardWidget::keyReleaseEvent(QKeyEvent *event)
{
    TakeKeyRelease(*event);
}

void BoardWidget::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (event->reason() != Qt::BacktabFocusReason) { // whose Shift has done what it was pressed for
        TakeModifiers();
    }
    TellArrival();
}

void BoardWidget::focusOutEvent(QFocusEvent *event)
{
    // Where the focus goes nobody sees them come up, but at a button that Shift+Tab reaches.
    if (!GoesByTabulator(*event)) {
        LetModifiersGo();
    }
    QWidget::focusOutEvent(event);
}

} // namespace kelvarine
