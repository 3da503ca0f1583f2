// The main window: title, captions, margin, toolbar, and where the keyboard goes.
#pragma once

#include <string_view>

namespace kelvarine {

// Makes the main window, which is not on view yet. It stands until the program has ended.
void MakeMainWindow();

// Puts the main window where it stood last, in reach of the screens that are there, and shows it.
void ShowMainWindow();

// Brings the main window to the front and gives it the keyboard, as soon as the program's other
// windows that have been opened are on view.
void ActivateMainWindow();

// Asks the main window to close, as the player would.
void CloseMainWindow();

// Keeps in MainPlace and MainMaximised where the main window stands.
void KeepMainPlace();

// Sets the title, in UTF-8.
void SetWindowTitle(std::string_view title);

// Brings the captions of the clock's menu and its entries up to date. All other entries follow the
// state whenever their menu opens.
void UpdateCaptions();

// Repaints the margin with its texts.
void RefreshWindow();

// Brings the toolbar's buttons in line with ToolButtons.
void UpdateToolbar();

// Gives the keyboard to the board.
void FocusBoard();

// Lays the window out anew, paints the board and refreshes the window.
void ResizeWindow();

} // namespace kelvarine
