// The board under fingers: a touch is a press of the left button, a long one a press of the right
// button, the second of two close together a double click, a drag stretches the selection, and two
// fingers add their cells to it. With keys held it does what the mouse does with them.
#pragma once

#include <QPointF>
#include <QTimer>

#include <cstdint>
#include <functional>

class QTouchEvent;
class QWidget;

namespace kelvarine {

class BoardTouch {
public:
    // Pixel of the board at a place of its widget.
    using PixelFinder = std::function<QPoint(const QPointF &)>;

    BoardTouch(QWidget *boardWidget, PixelFinder finder);

    // Does what a touch means; takes the event, so that the toolkit makes no press of it.
    void Take(QTouchEvent *event);

private:
    enum class Stage : std::uint8_t {
        None,     // no finger, or nothing more is to come of those that are there
        Waiting,  // a finger that may press, hold, drag or be joined by another
        Dragging, // a finger on its way
    };

    // With a modifier sum.
    void Begin(const QPointF &place, std::int32_t modifiers);
    void Move(const QPointF &place, std::int32_t modifiers);
    void Join(const QTouchEvent &event);
    void End(std::uint64_t time);
    void Hold();
    void Press(std::int32_t button, std::int32_t modifiers, const QPointF &place);
    [[nodiscard]] bool IsNear(const QPointF &a, const QPointF &b) const;

    QWidget *board;
    PixelFinder pixelAt;
    QTimer hold;
    Stage stage = Stage::None;
    QPointF start;         // where the finger came down
    std::int32_t held = 0; // modifier sum with which it did
    QPointF lastTap;       // where and when a touch last was a press, for the second of two
    std::uint64_t lastTapTime = 0;
};

} // namespace kelvarine
