// A text box that takes digits from the keyboard and selects its whole text when it gets the
// focus. What is pasted is only cut to the box's length.
#pragma once

#include <QLineEdit>

namespace kelvarine {

class DigitBox : public QLineEdit {
    Q_OBJECT

public:
    explicit DigitBox(QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    bool focusedByPress = false; // the press that follows must not take the selection off again
};

} // namespace kelvarine
