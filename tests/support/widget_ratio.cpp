#include "support/widget_ratio.h"

namespace kelvarine::testing {

QImage PictureInWindow(QWidget &child, double ratio)
{
    QWidget &window = *child.window();
    QImage picture((QSizeF(window.size()) * ratio).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::green);
    picture.setDevicePixelRatio(ratio);
    window.render(&picture);
    const QPointF begin = child.mapTo(&window, QPoint(0, 0));
    const QPointF end = begin + QPointF(child.width(), child.height());
    const QPoint first = (begin * ratio).toPoint();
    const QPoint behind = (end * ratio).toPoint();
    return picture.copy({first, behind - QPoint(1, 1)});
}

} // namespace kelvarine::testing
