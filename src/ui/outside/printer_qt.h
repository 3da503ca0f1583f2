// The player's printer, over the toolkit.
#pragma once

#include <QLocale>
#include <QPageSize>
#include <QPrinter>

#include <functional>
#include <string>

namespace kelvarine {

// The printer chosen latest, or the system's usual one. Without any printer it writes PDF files.
QPrinter &ChosenPrinter();

// ChoosePrinter for a window that stands beside the game.
bool ChoosePrinterOver(QWidget *asker);

// True while a document of the game's is open on the printer, which is nobody else's then.
bool IsPrinting();

// Prints what belongs to another window as a document of its own: print paints it, and is false
// when the device takes nothing. The words of a failure, or nothing. A file is as safe as a game's
// is.
std::string PrintInOneGo(const std::function<bool(QPagedPaintDevice &)> &print);

// Paper size that is usual where a locale is.
QPageSize UsualPaper(const QLocale &locale);

} // namespace kelvarine
