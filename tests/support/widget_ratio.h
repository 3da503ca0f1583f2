// What is seen of a widget on screens whose pixels are not those of the program.
#pragma once

#include <QImage>
#include <QWidget>

namespace kelvarine::testing {

// The device pixels that the toolkit leaves to a child of a window on a screen of a ratio, as they
// are after the window was painted. A child may begin and end between two of them.
QImage PictureInWindow(QWidget &child, double ratio);

} // namespace kelvarine::testing
