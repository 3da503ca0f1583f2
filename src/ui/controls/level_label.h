// The difficulty of a technique on the Logic tab: a label from which a menu of levels is opened,
// by a press of the right button, the menu key or Shift+F10.
#pragma once

#include <QLabel>

#include <functional>

namespace kelvarine {

class LevelLabel : public QLabel {
    Q_OBJECT

public:
    LevelLabel(QWidget *parent, std::function<void()> openMenu);

    // Red while the menu is open.
    void ShowOpen(bool open);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    std::function<void()> openLevels;
};

} // namespace kelvarine
