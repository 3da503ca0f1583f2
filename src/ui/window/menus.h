// Builds the toolkit's menus from the table of the menu tree.
#pragma once

class QMenuBar;

namespace kelvarine {

class MenuBar;

// Fills a menu bar from the table; the clock's menu stands at its far end. Opening a menu brings
// its check marks and enabled states up to date.
void BuildMenus(MenuBar *bar);

// Brings the captions that change in play up to date, in their places, so that nothing that the
// player does in the menus is disturbed.
void UpdateMenus(QMenuBar *bar);

// Brings check marks and enabled states of all entries up to date, for tools that choose an entry
// without opening its menu.
void UpdateMenuStates(const QMenuBar &bar);

} // namespace kelvarine
