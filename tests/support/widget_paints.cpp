#include "support/widget_paints.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace kelvarine::testing {

PaintCounter::PaintCounter()
{
    qApp->installEventFilter(this);
}

int PaintCounter::PaintsOf(const QWidget *widget) const
{
    const auto found = paints.find(widget);
    return found == paints.end() ? 0 : found->second;
}

int PaintCounter::MostPaintsIn(const QWidget *window) const
{
    int most = PaintsOf(window);
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        most = std::max(most, PaintsOf(widget));
    }
    return most;
}

bool PaintCounter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && watched->isWidgetType()) {
        ++paints[watched];
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kelvarine::testing
