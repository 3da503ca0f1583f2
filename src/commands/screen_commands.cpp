#include "commands/screen_commands.h"

#include "game/screens.h"
#include "outside/help.h"
#include "outside/screens.h"

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

void mnuPrint()
{
    CurrentTab = PrintTab;
    ShowConfigureScreen();
}

void mnuHelpContents()
{
    constexpr int defaultTopic = 0;
    ShowHelpTopic(defaultTopic);
}

void mnuAbout()
{
    ShowAboutScreen();
}

} // namespace kelvarine
