// From a key event of the toolkit to the program's key codes: by the place of the key on the
// keyboard where layouts and Shift change what it types, by its letter where the letter counts.
#pragma once

#include "input/keys.h"

#include <QKeyEvent>

#include <cstdint>

namespace kelvarine {

// Key code of an event, or 0 for a key that the program has no use for. scanCode is the key's
// place as the window system tells it (evdev code plus 8, on X11 and on Wayland alike), key the
// toolkit's name for what it types.
std::int32_t DecodeKey(std::uint32_t scanCode, int key, bool keypad);

// The same for an event as it arrives.
std::int32_t KeyCodeOf(const QKeyEvent &event);

// Modifier sum of an event: 1 Shift, 2 Ctrl, 4 Alt.
std::int32_t ModifiersOf(Qt::KeyboardModifiers modifiers);

// Keys that only accompany others or take the focus elsewhere: they press no button.
bool IsModifierOrTab(int key);

// Modifiers that serve the menus and the window manager mean nothing by themselves: the question
// of a search must not get in the way of closing the window by Alt and F4.
bool IsDesktopKey(int key);

} // namespace kelvarine
