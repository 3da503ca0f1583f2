// The small painted buttons of the Colors tab: a swatch shows a colour of the board with its
// texture, a tile shows a texture alone. A press of either works at once.
#pragma once

#include <QAbstractButton>

namespace kelvarine {

// A button that any button of the mouse presses.
class PressButton : public QAbstractButton {
    Q_OBJECT

public:
    using QAbstractButton::QAbstractButton;

protected:
    void mousePressEvent(QMouseEvent *event) override;
};

class ColourSwatch : public PressButton {
    Q_OBJECT

public:
    ColourSwatch(QWidget *parent, std::size_t colour); // 0..11

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::size_t colourIndex;
};

class TextureTile : public PressButton {
    Q_OBJECT

public:
    TextureTile(QWidget *parent, int tile); // 0..11

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int tileNumber;
};

} // namespace kelvarine
