// The small painted buttons of the Colors tab: a swatch shows a colour of the board with its
// texture, a tile shows a texture alone. A press of either works at once. Those of a kind are one
// stop of the Tab key, and arrows lead from one to the next.
#pragma once

#include <QAbstractButton>
#include <QList>

namespace kelvarine {

// A button that any button of the mouse presses.
class PressButton : public QAbstractButton {
    Q_OBJECT

public:
    using QAbstractButton::QAbstractButton;

    // Makes these buttons, in rows of so many, one stop.
    static void MakeOneStop(const QList<PressButton *> &buttons, int inRow);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void GoTo(PressButton *next);

    QList<PressButton *> fellows; // of the stop, itself among them
    int fellowsInRow = 1;
};

class ColourSwatch : public PressButton {
    Q_OBJECT

public:
    ColourSwatch(QWidget *parent, std::size_t colour); // 0..11

    // The colour may have changed: tells tools what it is now.
    void TellColour();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::size_t colourIndex;
};

class TextureTile : public PressButton {
    Q_OBJECT

public:
    TextureTile(QWidget *parent, int tile); // 0..11

    // Whether the texture is the one in force.
    void ShowInForce(bool inForce);

    [[nodiscard]] bool IsInForce() const
    {
        return inForce_;
    }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int tileNumber;
    bool inForce_ = false;
};

} // namespace kelvarine
