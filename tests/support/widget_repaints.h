// Repaints that got lost. A picture that a test grabs is painted afresh, and so it cannot tell a
// widget that has been painted since a change from one that still shows what was there before.
#pragma once

#include <QImage>
#include <QPointer>

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace kelvarine::testing {

// Does something, and names the widgets of windows that would look different now and have not been
// painted since, each in a line of its own; empty when there is none. Widgets that are out of view
// before or after do not count.
std::string WithoutRepaint(const std::vector<QWidget *> &windows,
                           const std::function<void()> &change);

} // namespace kelvarine::testing
