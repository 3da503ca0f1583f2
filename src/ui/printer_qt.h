// The player's printer, over the toolkit.
#pragma once

#include <QPrinter>

namespace kelvarine {

// The printer chosen latest, or the system's usual one. Without any printer it writes PDF files.
QPrinter &ChosenPrinter();

} // namespace kelvarine
