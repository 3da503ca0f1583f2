// The commands of the menus that open a screen.
#pragma once

namespace kelvarine {

// Shows the configuration screen on the tab that it had latest.
void mnuConfigure();

// Shows it on the Logic tab.
void mnuAlerts();

// Shows it on the Print tab.
void mnuPrint();

// Shows the help at its default topic.
void mnuHelpContents();

// Shows name, version and licence of the program.
void mnuAbout();

} // namespace kelvarine
