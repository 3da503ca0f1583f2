#include "board/look.h"
#include "commands/print_run.h"
#include "configure/logic_settings.h"
#include "game/screens.h"
#include "print/page_words.h"
#include "support/widget_configure.h"
#include "ui/configure/print_tab.h"
#include "ui/controls/focus_bar.h"
#include "ui/controls/level_label.h"

#include <QAccessible>
#include <QGroupBox>
#include <QMenu>

#include <algorithm>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

// What the settings say to those who do not see them.
class SpokenSettings : public ConfigureTest {
protected:
    QAccessibleInterface *Described(const char *name)
    {
        return QAccessible::queryAccessibleInterface(Find<QWidget>(name));
    }

    std::string NameOf(const char *name)
    {
        return Described(name)->text(QAccessible::Name).toStdString();
    }

    Texts NamesOfSwatches()
    {
        Texts names;
        for (std::size_t swatch = 0; swatch < ColourCount; ++swatch) {
            names.push_back(NameOf(("swatch" + std::to_string(swatch)).c_str()));
        }
        return names;
    }
};

TEST_F(SpokenSettings, SwatchesTellNameAndValueOfTheirColour)
{
    ColourTable[0] = Rgb(255, 150, 40);
    Open(ColoursTab);
    EXPECT_EQ(Described("swatch0")->role(), QAccessible::Button);
    EXPECT_EQ(NameOf("swatch0"),
              "Take the color of Given cells: orange, red 255, green 150, blue 40");
    Find<QScrollBar>("hsbColor1")->setValue(151);
    EXPECT_EQ(NameOf("swatch0"),
              "Take the color of Given cells: orange, red 255, green 151, blue 40");
}

TEST_F(SpokenSettings, StepOfAColourRenamesItsSwatchAlone)
{
    Open(ColoursTab);
    const Texts before = NamesOfSwatches();
    auto *bar = Find<QScrollBar>("hsbColor2");
    bar->setValue(bar->value() == 9 ? 10 : 9);
    Texts after = NamesOfSwatches();
    EXPECT_NE(after.front(), before.front());
    after.front() = before.front();
    EXPECT_EQ(after, before);
}

TEST_F(SpokenSettings, PressOfASwatchByAToolTakesItsColour)
{
    Open(ColoursTab);
    ASSERT_NE(ColourTable[0], ColourTable[3]);
    Described("swatch3")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(ColourTable[0], ColourTable[3]);
}

TEST_F(SpokenSettings, BarsTellTheirValueAndItsUnit)
{
    std::set<std::string> names;
    for (const std::int32_t tab : {SoundTab, GridTab, ColoursTab}) {
        Open(tab);
        for (const FocusBar *bar : Screen->findChildren<FocusBar *>()) {
            if (!bar->isVisible()) {
                continue;
            }
            QAccessibleInterface *described =
                QAccessible::queryAccessibleInterface(const_cast<FocusBar *>(bar));
            const QAccessibleValueInterface *value = described->valueInterface();
            ASSERT_NE(value, nullptr);
            EXPECT_EQ(value->currentValue().toInt(), bar->value());
            EXPECT_EQ(value->maximumValue().toInt(), bar->maximum());
            names.insert(described->text(QAccessible::Name).toStdString());
        }
    }
    EXPECT_EQ(names, (std::set<std::string>{"Alert volume, 0 to 255", "Win volume, 0 to 255",
                                            "Primary Grid Lines thickness in pixels",
                                            "Secondary Grid Lines thickness in pixels",
                                            "Exterior 3D Border thickness in pixels",
                                            "Exterior Margins thickness in pixels", "Red, 0 to 255",
                                            "Green, 0 to 255", "Blue, 0 to 255"}));
}

TEST_F(SpokenSettings, LevelTellsItselfAndHowToChangeIt)
{
    Open(LogicTab);
    QAccessibleInterface *level = Described("lblDifficulty1");
    EXPECT_EQ(level->role(), QAccessible::ButtonMenu);
    EXPECT_TRUE(level->state().hasPopup);
    EXPECT_TRUE(level->state().focusable);
    EXPECT_EQ(NameOf("lblDifficulty1"), "Difficulty of Naked singles: Easy");
    EXPECT_EQ(level->text(QAccessible::Description).toStdString(),
              "Space, Enter or the menu key opens the levels");
    auto *menu = Find<QMenu>("mnuRatings");
    for (const QString &action : {QAccessibleActionInterface::pressAction(),
                                  QAccessibleActionInterface::showMenuAction()}) {
        level->actionInterface()->doAction(action);
        EXPECT_TRUE(menu->isVisible()) << action.toStdString();
        menu->close();
    }
    Find<QAction>("mnuHard")->trigger();
    EXPECT_EQ(NameOf("lblDifficulty1"), "Difficulty of Naked singles: Hard");
    Find<QAction>("mnuRequire")->trigger();
    EXPECT_EQ(NameOf("lblDifficulty1"), "Difficulty of Naked singles: Hard, required");
    Find<QWidget>("lblDifficulty2")->setFocus();
    ASSERT_EQ(Screen->focusWidget(), Find<QWidget>("lblDifficulty2"));
    level->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(Screen->focusWidget(), Find<QWidget>("lblDifficulty1"));
}

TEST_F(SpokenSettings, PreviewTellsThePageInWords)
{
    Open(PrintTab);
    EXPECT_EQ(Described("picPrintPreview")->role(), QAccessible::Graphic);
    EXPECT_EQ(NameOf("picPrintPreview"), "Preview of the page: " + PageInWords("."));
    Type("txtPrintWidth", "3");
    EXPECT_EQ(NameOf("picPrintPreview"), "Preview of the page: " + PageInWords("."));
    EXPECT_TRUE(NameOf("picPrintPreview")
                    .starts_with("Preview of the page: the game on the board, 3.0 by "))
        << NameOf("picPrintPreview");
    Click("optPrintGame(1)");
    EXPECT_EQ(NameOf("picPrintPreview"), "Preview of the page: 1 new game on 1 page, 1 column and "
                                         "1 row to a page, then their solutions on 1 page");
    EXPECT_EQ(Described("cmdPrint")->text(QAccessible::Description).toStdString(),
              NameOf("picPrintPreview"));
}

TEST_F(SpokenSettings, PreviewTellsHowFarABatchIs)
{
    Open(PrintTab);
    PrintRunning = True;
    PrintGameNumber = 3;
    PrintGameCount = 12;
    RefreshPrintPreview();
    EXPECT_EQ(NameOf("picPrintPreview"), "Preview of the page: searching, Game 3 of 12");
    PrintRunning = False;
}

TEST_F(SpokenSettings, GroupsAreToldByTheTitlesThatAreSeen)
{
    int groups = 0;
    for (std::int32_t tab = NewGamesTab; tab <= CoordinatesTab; ++tab) {
        Open(tab);
        for (QGroupBox *group : Screen->findChildren<QGroupBox *>()) {
            if (!group->isVisible()) {
                continue;
            }
            const QAccessibleInterface *described = QAccessible::queryAccessibleInterface(group);
            EXPECT_EQ(described->role(), QAccessible::Grouping);
            EXPECT_FALSE(group->title().isEmpty()) << group->objectName().toStdString();
            EXPECT_EQ(described->text(QAccessible::Name).toStdString(),
                      group->title().toStdString());
            ++groups;
        }
    }
    EXPECT_GT(groups, 12);
}

} // namespace
} // namespace kelvarine::testing
