// The file dialog's window; files/file_dialog.h holds its rules.
#pragma once

#include <cstddef>

namespace kelvarine {

// Shows the file dialog, with a type of files/file_dialog.h selected, until the player has chosen a
// file or given up; that header holds its rules and what it leaves. True when OK has closed it;
// false in every other case, the program's end among them.
bool RunFileDialog(std::size_t fileType);

} // namespace kelvarine
