// Where the screens beside the board open: where they last stood, else next to the main window
// where there is room, and never off the screen.
#pragma once

#include "game/screens.h"

#include <QRect>

class QWidget;

namespace kelvarine {

// The part of a screen that windows may take: of the one that a point lies on, else of the one
// that the main window stands on.
QRect ScreenAt(const QPoint &point);

// Top left corner for a main window of this size that was never placed: in the middle of the
// screen, or left of it by what the screens beside it need on its right.
QPoint FirstPlace(const QSize &size, const QRect &screen);

// Top left corner for a window of this size beside another one: on its right when that fits on the
// screen, else on its left, else as far to the right as the screen allows.
QPoint PlaceBeside(const QRect &other, const QSize &size, const QRect &screen);

// Top left corner of the nearest place where a window lies wholly on the screen; a window that is
// too large keeps its top left corner there.
QPoint KeptOnScreen(const QRect &window, const QRect &screen);

// Whether a window would stand beside the main window without covering it.
bool HasRoomBeside(const QWidget &window);

// Moves a window that is about to be shown to its place, or beside the main window when it has
// none. A width and height in the place become its size.
void OpenAt(QWidget &window, const WindowPlace &place);

// Shows a window, if it must be out of its icon, in front of the others and with the focus; while
// the main window itself is still on its way to the screen, without the focus.
void BringToFront(QWidget &window);

// Keeps where a window stands, unless it is hidden or minimised.
void KeepPlace(const QWidget &window, WindowPlace &place);

} // namespace kelvarine
