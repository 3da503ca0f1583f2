// The program's picture on the desktop.
#pragma once

#include <QIcon>

namespace kelvarine {

// The icon in all its sizes, out of the program itself, so that it shows without being installed.
QIcon ProgramIcon();

} // namespace kelvarine
