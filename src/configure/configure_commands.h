// The commands of the menus that open the configuration screen.
#pragma once

namespace kelvarine {

// Shows the screen on the tab that it had latest.
void mnuConfigure();

// Shows the screen on the Logic tab.
void mnuAlerts();

} // namespace kelvarine
