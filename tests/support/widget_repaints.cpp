#include "support/widget_repaints.h"

#include "support/widget_paints.h"

#include <QApplication>
#include <QWidget>

namespace kelvarine::testing {

namespace {

// Turns the event loop until a turn has painted nothing in the windows any more.
void PaintAll(const std::vector<QWidget *> &windows)
{
    int most = 1;
    while (most > 0) {
        const PaintCounter turn;
        QCoreApplication::processEvents();
        most = 0;
        for (const QWidget *window : windows) {
            most += turn.MostPaintsIn(window);
        }
    }
}

bool IsInView(const QWidget &widget)
{
    return widget.isVisible() && !widget.visibleRegion().isEmpty();
}

// What a widget itself would paint now.
QImage PictureOf(QWidget &widget)
{
    QImage picture(widget.size(), QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    widget.render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
    return picture;
}

struct Seen {
    QPointer<QWidget> Widget;
    QImage Picture;
};

std::string NameOf(const QWidget &widget)
{
    return widget.metaObject()->className() + (" " + widget.objectName().toStdString()) + "\n";
}

} // namespace

std::string WithoutRepaint(const std::vector<QWidget *> &windows,
                           const std::function<void()> &change)
{
    PaintAll(windows);
    std::vector<Seen> before;
    for (QWidget *window : windows) {
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            if (IsInView(*widget)) {
                before.push_back({widget, PictureOf(*widget)});
            }
        }
    }
    const PaintCounter counter;
    change();
    PaintAll(windows);
    std::string lost;
    for (const Seen &seen : before) {
        if (seen.Widget != nullptr && IsInView(*seen.Widget) &&
            counter.PaintsOf(seen.Widget) == 0 && PictureOf(*seen.Widget) != seen.Picture) {
            lost += NameOf(*seen.Widget);
        }
    }
    return lost;
}

} // namespace kelvarine::testing
