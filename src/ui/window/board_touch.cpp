#include "ui/window/board_touch.h"

#include "game/search.h"
#include "input/mouse.h"
#include "ui/window/key_decoder.h"

#include <QApplication>
#include <QStyleHints>
#include <QTouchEvent>
#include <QWidget>

#include <utility>

namespace kelvarine {

BoardTouch::BoardTouch(QWidget *boardWidget, PixelFinder finder)
    : board(boardWidget), pixelAt(std::move(finder))
{
    board->setAttribute(Qt::WA_AcceptTouchEvents);
    hold.setSingleShot(true);
    QObject::connect(&hold, &QTimer::timeout, board, [this] { Hold(); });
}

void BoardTouch::Take(QTouchEvent *event)
{
    event->accept();
    const QList<QEventPoint> &points = event->points();
    switch (event->type()) {
    case QEvent::TouchBegin:
        Begin(points.front().position(), ModifiersOf(event->modifiers()));
        break;
    case QEvent::TouchUpdate:
        if (points.size() == 1) {
            Move(points.front().position(), ModifiersOf(event->modifiers()));
        }
        break;
    case QEvent::TouchEnd:
        End(event->timestamp());
        break;
    default: // the system has taken the fingers for itself
        hold.stop();
        stage = Stage::None;
        break;
    }
    if (points.size() > 1) {
        Join(*event);
    }
}

void BoardTouch::Begin(const QPointF &place, std::int32_t modifiers)
{
    board->setFocus(Qt::MouseFocusReason);
    stage = Stage::Waiting;
    start = place;
    held = modifiers;
    hold.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
}

void BoardTouch::Move(const QPointF &place, std::int32_t modifiers)
{
    if (stage == Stage::Waiting && !IsNear(place, start)) {
        hold.stop();
        stage = Stage::Dragging;
        Press(LeftButton, held, start);
    }
    if (stage == Stage::Dragging) {
        const QPoint pixel = pixelAt(place);
        BoardMoved(LeftButton, modifiers, pixel.x(), pixel.y());
    }
}

// Another finger has come down beside the first.
void BoardTouch::Join(const QTouchEvent &event)
{
    if (stage != Stage::Waiting) {
        return;
    }
    hold.stop();
    stage = Stage::None;
    if (!ReadyForCommand()) {
        return; // it asks once for both fingers
    }
    for (const QEventPoint &point : event.points()) {
        Press(LeftButton, CtrlKey, point.position());
    }
}

void BoardTouch::End(std::uint64_t time)
{
    hold.stop();
    if (std::exchange(stage, Stage::None) != Stage::Waiting) {
        return;
    }
    const auto interval =
        static_cast<std::uint64_t>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    if (lastTapTime != 0 && time - lastTapTime < interval && IsNear(start, lastTap)) {
        lastTapTime = 0;
        BoardDoubleClicked();
        return;
    }
    lastTapTime = time;
    lastTap = start;
    Press(LeftButton, held, start);
}

void BoardTouch::Hold()
{
    stage = Stage::None;
    Press(RightButton, held, start);
}

void BoardTouch::Press(std::int32_t button, std::int32_t modifiers, const QPointF &place)
{
    const QPoint pixel = pixelAt(place);
    BoardPressed(button, modifiers, pixel.x(), pixel.y());
}

bool BoardTouch::IsNear(const QPointF &a, const QPointF &b) const
{
    return (a - b).manhattanLength() < QApplication::startDragDistance();
}

} // namespace kelvarine
