// A horizontal scroll bar that takes the keyboard and shows when it has it.
#pragma once

#include <QScrollBar>

namespace kelvarine {

class FocusBar : public QScrollBar {
    Q_OBJECT

public:
    explicit FocusBar(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
};

} // namespace kelvarine
