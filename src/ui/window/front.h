// Which window is in front: the one that a box belongs to, the one that the keyboard goes to.
#pragma once

class QDialog;
class QWidget;

namespace kelvarine {

// The window in front, which a box or dialog that opens now belongs to: another box, else one of
// the program's screens, else the main window. The end of the program is the main window's to ask
// about.
QWidget *AskingWindow();

// Shows a box or dialog until it is closed and gives its result. The window that it belongs to is
// in front again, and if that is the main window, the board has the keyboard.
int RunDialog(QDialog &dialog);

// Brings the main window to the front as soon as all the program's other windows are on view, which
// would come in front of it else.
void ActivateMainWindowLast();

} // namespace kelvarine
