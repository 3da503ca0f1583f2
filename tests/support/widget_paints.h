// How often widgets are painted, which is what the player waits for, whatever the machine.
#pragma once

#include <QObject>

#include <unordered_map>

class QWidget;

namespace kelvarine::testing {

// Counts the paint events of every widget for as long as it lives.
class PaintCounter : public QObject {
public:
    PaintCounter();

    [[nodiscard]] int PaintsOf(const QWidget *widget) const;

    // Of the widget that was painted most often among a window and all in it.
    [[nodiscard]] int MostPaintsIn(const QWidget *window) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::unordered_map<const QObject *, int> paints;
};

} // namespace kelvarine::testing
