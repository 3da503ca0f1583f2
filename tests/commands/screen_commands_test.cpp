#include "commands/screen_commands.h"
#include "game/screens.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(ConfigureCommands, ConfigureKeepsTheTab)
{
    Restart();
    CurrentTab = ColoursTab;
    mnuConfigure();
    EXPECT_EQ(CurrentTab, ColoursTab);
    EXPECT_EQ(Acts(), Texts{"configure: 6"});
}

TEST(ConfigureCommands, AlertsOpensTheLogicTab)
{
    Restart();
    mnuAlerts();
    EXPECT_EQ(CurrentTab, 3);
    EXPECT_EQ(Acts(), Texts{"configure: 3"});
}

TEST(ConfigureCommands, PrintOpensThePrintTab)
{
    Restart();
    mnuPrint();
    EXPECT_EQ(CurrentTab, 2);
    EXPECT_EQ(Acts(), Texts{"configure: 2"});
}

} // namespace
} // namespace kelvarine::testing
