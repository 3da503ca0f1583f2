// The settings while a search runs, as they are reached past keys and mouse: by assistive tools,
// and by a menu that stood open when the search began.
#include "configure/configuration.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "print/print_settings.h"
#include "support/widget_configure.h"
#include "ui/configure/tab_strip.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kelvarine::testing {
namespace {

// What a control shows of its setting.
QString TextOf(const QWidget &control)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&control)) {
        return button->isChecked() ? "on" : "off";
    }
    if (const auto *bar = qobject_cast<const QScrollBar *>(&control)) {
        return QString::number(bar->value());
    }
    if (const auto *list = qobject_cast<const QComboBox *>(&control)) {
        return list->currentText();
    }
    if (const auto *box = qobject_cast<const QLineEdit *>(&control)) {
        return box->text();
    }
    const auto *label = qobject_cast<const QLabel *>(&control);
    return label != nullptr ? label->text() : QString();
}

// All that a tool can do with a control, but that it can go there.
std::vector<std::function<void()>> DeedsOn(QWidget &control)
{
    std::vector<std::function<void()>> deeds;
    QAccessibleInterface *described = QAccessible::queryAccessibleInterface(&control);
    if (auto *actions = described->actionInterface()) {
        for (const QString &name : actions->actionNames()) {
            if (name != QAccessibleActionInterface::setFocusAction()) {
                deeds.emplace_back([actions, name] { actions->doAction(name); });
            }
        }
    }
    if (auto *value = described->valueInterface()) {
        deeds.emplace_back([value] {
            const int now = value->currentValue().toInt();
            value->setCurrentValue(now == 0 ? 1 : now - 1);
        });
    }
    if (auto *text = described->editableTextInterface()) {
        deeds.emplace_back([text, described] {
            text->replaceText(0, static_cast<int>(described->text(QAccessible::Value).size()), "7");
        });
    }
    if (auto *list = qobject_cast<QComboBox *>(&control)) { // chosen where it stood open
        deeds.emplace_back(
            [list] { list->setCurrentIndex(list->currentIndex() == 0 ? list->count() - 1 : 0); });
    }
    return deeds;
}

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

    // What the controls of the panel on view show, by their names.
    [[nodiscard]] std::map<std::string, std::string> Shown() const
    {
        std::map<std::string, std::string> shown;
        for (const QWidget *control : Screen->CurrentPanel()->findChildren<QWidget *>()) {
            if (!control->objectName().startsWith("qt_")) { // those of an open list
                shown[control->objectName().toStdString()] = TextOf(*control).toStdString();
            }
        }
        return shown;
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

// Nor do they move away from the settings that they show.
TEST_F(SettingsDuringASearch, NoControlIsMovedByTools)
{
    PrintCentre = False; // which lets left and top be typed
    int done = 0;
    for (std::int32_t tab = 0; tab < TabCount; ++tab) {
        Open(tab);
        static_cast<void>(Screen->grab()); // painting the page tells how much ink it takes
        QCoreApplication::processEvents();
        const std::string settings = ConfigurationBytes();
        const auto shown = Shown();
        for (QWidget *control : Screen->CurrentPanel()->findChildren<QWidget *>()) {
            if (!control->isVisible() || control->objectName().isEmpty()) {
                continue;
            }
            for (const auto &deed : DeedsOn(*control)) {
                ++done;
                SearchActive = True;
                deed();
                if (const auto *button = qobject_cast<QAbstractButton *>(control)) {
                    // The toolkit lets go of a button that a tool presses after a while.
                    ASSERT_TRUE(QTest::qWaitFor([&] { return !button->isDown(); }, Patience));
                }
                SearchActive = False;
                EXPECT_EQ(ConfigurationBytes(), settings) << control->objectName().toStdString();
                EXPECT_EQ(Shown(), shown) << control->objectName().toStdString();
            }
            if (auto *list = qobject_cast<QComboBox *>(control)) {
                list->hidePopup();
            }
        }
    }
    EXPECT_GT(done, 150);
}

TEST_F(SettingsDuringASearch, NoMenuOpensOnAControl)
{
    Open(NewGamesTab);
    auto *box = Find<QLineEdit>("txtMinNumGivens");
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {1, 1}, box->mapToGlobal(QPoint(1, 1)));
    SearchActive = True;
    QCoreApplication::sendEvent(box, &asked);
    QWidget *menu = QApplication::activePopupWidget();
    EXPECT_EQ(menu, nullptr) << "from which something could be pasted";
    delete menu;
}

TEST_F(SettingsDuringASearch, NothingIsPastedFromAMenuThatWasOpen)
{
    PrintCentre = False;
    Open(PrintTab);
    auto *box = Find<QLineEdit>("txtPrintLeft");
    const QString before = box->text();
    const double left = PrintLeft;
    QGuiApplication::clipboard()->setText("3");
    box->setFocus();
    box->selectAll();
    SearchActive = True;
    box->paste();
    EXPECT_EQ(PrintLeft, left);
    EXPECT_EQ(box->text(), before);
}

TEST_F(SettingsDuringASearch, MeasureThatAToolTypesIsTaken)
{
    PrintCentre = False;
    Open(PrintTab);
    QAccessibleInterface *box =
        QAccessible::queryAccessibleInterface(Find<QWidget>("txtPrintLeft"));
    box->editableTextInterface()->replaceText(
        0, static_cast<int>(box->text(QAccessible::Value).size()), "3");
    EXPECT_EQ(PrintLeft, 3);
}

} // namespace
} // namespace kelvarine::testing
