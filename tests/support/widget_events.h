// Events as the window system sends them, and what the player would see of the program.
#pragma once

#include "ui/window/main_window.h"
#include "ui/window/toolbar_widget.h"

#include <QEvent>
#include <QPoint>

#include <functional>
#include <string>
#include <vector>

namespace kelvarine::testing {

// Sends one mouse event to a widget; buttons are those held after it.
void SendMouse(QWidget *widget, QEvent::Type type, QPoint place, Qt::MouseButton button,
               Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = {});

// A press and a release of a mouse button.
void Click(QWidget *widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = {});

// Moves the pointer to the middle of a widget, as its window is told.
void MovePointerTo(const QWidget &widget);

// Sends one key event to a widget, without those of the modifiers.
void SendKey(QWidget *widget, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

// Centre of a cell, and of the ninth of it where a number has its place, on the board.
QPoint CentreOf(int column, int row);
QPoint PlaceOf(int column, int row, int number);

// Button of the toolbar by its index.
ToolButtonWidget *ToolButtonOf(const MainWindow &window, int index);

// Runs an action, closes every modal window that it opens as Escape would, and tells them in
// turn: a box as "title: text", any other as its title.
std::vector<std::string> CloseModals(const std::function<void()> &action);

} // namespace kelvarine::testing
