// The settings while a search runs, as they are reached past keys and mouse: by assistive tools,
// and by a menu that stood open when the search began.
#include "configure/configuration.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "support/widget_configure.h"
#include "ui/configure/tab_strip.h"

#include <QAccessible>
#include <QMenu>

#include <functional>
#include <string>

namespace kelvarine::testing {
namespace {

class SettingsDuringASearch : public ConfigureTest {
protected:
    void TearDown() override
    {
        SearchActive = False;
        RunUnderWay = False;
        ConfigureTest::TearDown();
    }

    static QAccessibleActionInterface *ActionsOf(QWidget *widget)
    {
        return QAccessible::queryAccessibleInterface(widget)->actionInterface();
    }

    // Each way in which the logic works on the board: searching, and told to stop.
    static void WhileBusy(const std::function<void()> &act)
    {
        for (Flag *busy : {&SearchActive, &RunUnderWay}) {
            *busy = True;
            act();
            *busy = False;
        }
    }
};

TEST_F(SettingsDuringASearch, LevelsDoNotOpen)
{
    Open(LogicTab);
    auto *level = Find<QWidget>("lblDifficulty1");
    auto *menu = Find<QMenu>("mnuRatings");
    WhileBusy([&] {
        for (const QString &action : {QAccessibleActionInterface::pressAction(),
                                      QAccessibleActionInterface::showMenuAction()}) {
            ActionsOf(level)->doAction(action);
            EXPECT_FALSE(menu->isVisible()) << action.toStdString();
            menu->close();
        }
    });
    ActionsOf(level)->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(menu->isVisible()) << "and after it they do";
    menu->close();
}

TEST_F(SettingsDuringASearch, MenuThatWasOpenChangesNoLevel)
{
    Open(LogicTab);
    auto *menu = Find<QMenu>("mnuRatings");
    ActionsOf(Find<QWidget>("lblDifficulty1"))->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(menu->isVisible());
    const std::string before = ConfigurationBytes();
    WhileBusy([&] {
        const Flag searching = SearchActive;
        for (QAction *entry : menu->actions()) {
            entry->trigger();
            EXPECT_EQ(ConfigurationBytes(), before) << entry->objectName().toStdString();
            EXPECT_EQ(SearchActive, searching) << "no run has come in between";
        }
    });
    menu->close();
}

TEST_F(SettingsDuringASearch, TabsStayAsTheyAre)
{
    Open(LogicTab);
    auto *strip = Screen->findChild<TabStrip *>();
    QAccessibleInterface *tabs = QAccessible::queryAccessibleInterface(strip);
    const auto press = [tabs](int tab) {
        tabs->child(tab)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    };
    WhileBusy([&] {
        press(ColoursTab);
        EXPECT_EQ(CurrentTab, LogicTab);
        EXPECT_TRUE(Find<QWidget>("picTabLogic")->isVisible());
        CurrentTab = LogicTab;
    });
    press(ColoursTab);
    EXPECT_EQ(CurrentTab, ColoursTab) << "and after it they change";
}

} // namespace
} // namespace kelvarine::testing
