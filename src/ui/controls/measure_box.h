// A text box for a measure in inches, typed with the decimal sign of the player's locale.
#pragma once

#include <QLineEdit>

namespace kelvarine {

class MeasureBox : public QLineEdit {
    Q_OBJECT

public:
    explicit MeasureBox(QWidget *parent);

    // The measure that stands in the box, 0 for none.
    [[nodiscard]] double Measure() const;

    // Shows a measure, unless the player is typing one.
    void ShowMeasure(double inches);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace kelvarine
