// The difficulty of a technique on the Logic tab: a label that looks like a flat button, from which
// a menu of levels is opened, by a press of the left or the right button, Space, Enter, the menu
// key or Shift+F10.
#pragma once

#include <QLabel>

#include <functional>

namespace kelvarine {

class LevelLabel : public QLabel {
    Q_OBJECT

public:
    LevelLabel(QWidget *parent, std::function<void()> openMenu);

    // Opens the menu, as a press does.
    void OpenLevels();

    // Red while the menu is open.
    void ShowOpen(bool open);

    // With room for the arrow behind the text.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    std::function<void()> openLevels;
};

} // namespace kelvarine
