// Builds the toolkit's menus from the table of the menu tree.
#pragma once

#include <QMenuBar>

namespace kelvarine {

// Fills two menu bars from the table: the last top-level menu, the clock's, goes to timeBar, all
// others to mainBar. Opening a menu brings its check marks and enabled states up to date.
void BuildMenus(QMenuBar *mainBar, QMenuBar *timeBar);

// Brings the captions that change in play up to date.
void UpdateMenus(QMenuBar *timeBar);

} // namespace kelvarine
