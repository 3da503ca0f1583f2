#include "configure/configure_commands.h"

#include "game/screens.h"
#include "ui/presentation.h"

namespace kelvarine {

void mnuConfigure()
{
    ShowConfigureScreen();
}

void mnuAlerts()
{
    CurrentTab = LogicTab;
    ShowConfigureScreen();
}

} // namespace kelvarine
