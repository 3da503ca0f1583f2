// picBoard: the visible board. It shows the finished picture and hands mouse and keys on.
#pragma once

#include "ui/window/board_touch.h"

#include <QWidget>

namespace kelvarine {

class BoardWidget : public QWidget {
    Q_OBJECT

public:
    explicit BoardWidget(QWidget *parent);

    // A key goes down or comes up, here or where nobody else in the window wants it.
    void TakeKeyPress(QKeyEvent *event);
    void TakeKeyRelease(const QKeyEvent &event);

    // The toolbar shows the sign of the modifiers that are down at this moment.
    void TakeModifiers();

    // The sign that the toolbar shows is that of a modifier that is down.
    [[nodiscard]] bool SignFollowsKey() const;

    // It shows no sign of a modifier any more: none is watched from now on.
    void LetModifiersGo();

    // A key comes up at a button that Shift+Tab has reached from the board: a modifier is let go.
    void TakeReleaseElsewhere(const QKeyEvent &event);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    // The pixel of the board that is painted at a place of the widget.
    [[nodiscard]] QPoint PixelAt(const QPointF &position) const;

    BoardTouch touch;
    bool modifierHeld = false; // Shift or Ctrl went down and has not come up yet
};

} // namespace kelvarine
