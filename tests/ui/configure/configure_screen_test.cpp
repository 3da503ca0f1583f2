#include "commands/screen_commands.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "logic/driver.h"
#include "paint/board_painter.h"
#include "print/print_settings.h"
#include "support/widget_configure.h"
#include "support/widget_paints.h"
#include "ui/configure/tab_strip.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

namespace kelvarine::testing {
namespace {

class ConfigureScreenTest : public ConfigureTest {
protected:
    TabStrip *Strip()
    {
        return Screen->findChild<TabStrip *>();
    }

    void PressStrip(int x, int y)
    {
        QTest::mouseClick(Strip(), Qt::LeftButton, Qt::NoModifier, {x, y});
    }

    QString PanelOnView()
    {
        QString names;
        for (const char *name :
             {"picTabNewGame", "picTabSound", "picTabPrint", "picTabLogic", "picTabPresetGrids",
              "picTabGrid", "picTabTableColors", "picTabCoordinates"}) {
            if (Find<QWidget>(name)->isVisible()) {
                names += name;
            }
        }
        return names;
    }
};

TEST_F(ConfigureScreenTest, OpensOnTheTabThatItHadLatest)
{
    CurrentTab = GridTab;
    mnuConfigure();
    Screen = OpenConfigureScreen();
    ASSERT_NE(Screen, nullptr);
    EXPECT_TRUE(Screen->isVisible());
    EXPECT_FALSE(Screen->isModal());
    EXPECT_EQ(ConfigureOpen, True);
    EXPECT_EQ(PanelOnView(), "picTabGrid");
}

TEST_F(ConfigureScreenTest, AlertsSwitchesTheOpenScreenToLogic)
{
    Open(NewGamesTab);
    mnuAlerts();
    EXPECT_EQ(OpenConfigureScreen(), Screen) << "there is but one";
    EXPECT_EQ(CurrentTab, LogicTab);
    EXPECT_EQ(PanelOnView(), "picTabLogic");
    EXPECT_TRUE(Screen->isVisible());
}

TEST_F(ConfigureScreenTest, AlertsBringsAMinimisedScreenBack)
{
    Open(NewGamesTab);
    Screen->showMinimized();
    mnuAlerts();
    EXPECT_FALSE(Screen->isMinimized());
}

TEST_F(ConfigureScreenTest, PressOnATabShowsItsPanelAndSwapsTheRows)
{
    Open(NewGamesTab);
    PressStrip(11 + 105 + 50, 40);
    EXPECT_EQ(CurrentTab, SoundTab);
    EXPECT_EQ(PanelOnView(), "picTabSound");
    PressStrip(19 + 2 * 105 + 50, 20);
    EXPECT_EQ(CurrentTab, ColoursTab);
    EXPECT_EQ(PanelOnView(), "picTabTableColors");
    PressStrip(11 + 3 * 105 + 50, 40);
    EXPECT_EQ(CurrentTab, CoordinatesTab) << "the second four stand in front now";
    PressStrip(19 + 50, 20);
    EXPECT_EQ(CurrentTab, NewGamesTab);
}

TEST_F(ConfigureScreenTest, PressBesideTheTabsDoesNothing)
{
    Open(LogicTab);
    for (const QPoint place : {QPoint(60, 5), QPoint(60, 51), QPoint(5, 40), QPoint(12, 20),
                               QPoint(11 + 104, 40), QPoint(440, 40)}) {
        PressStrip(place.x(), place.y());
        EXPECT_EQ(CurrentTab, LogicTab) << place.x() << ' ' << place.y();
    }
}

TEST_F(ConfigureScreenTest, AccessKeysChooseTheTabsAndTwoChooseNone)
{
    Open(NewGamesTab);
    struct Row {
        Qt::Key Key;
        std::int32_t Tab;
        const char *Panel;
        int Help;
    };
    for (const Row &row :
         {Row{Qt::Key_S, 1, "picTabSound", 204}, Row{Qt::Key_P, 2, "picTabPrint", 206},
          Row{Qt::Key_L, 3, "picTabLogic", 208}, Row{Qt::Key_E, 4, "picTabPresetGrids", 210},
          Row{Qt::Key_G, 5, "picTabGrid", 212}, Row{Qt::Key_C, 6, "picTabTableColors", 214},
          Row{Qt::Key_O, 7, "picTabCoordinates", 216}, Row{Qt::Key_R, 8, "", 216},
          Row{Qt::Key_V, 9, "", 216}, Row{Qt::Key_N, 0, "picTabNewGame", 202}}) {
        QTest::keyClick(Screen, row.Key, Qt::AltModifier);
        EXPECT_EQ(CurrentTab, row.Tab);
        EXPECT_EQ(PanelOnView(), row.Panel);
        EXPECT_EQ(Screen->HelpContext(), row.Help);
    }
}

TEST_F(ConfigureScreenTest, ArrowsGoRoundTheTabs)
{
    Open(NewGamesTab);
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(Strip(), key);
        return CurrentTab;
    };
    EXPECT_EQ(press(Qt::Key_Left), 7);
    EXPECT_EQ(press(Qt::Key_Right), 0);
    EXPECT_EQ(press(Qt::Key_Right), 1);
    EXPECT_EQ(press(Qt::Key_Down), 5);
    EXPECT_EQ(press(Qt::Key_Up), 1);
    EXPECT_EQ(press(Qt::Key_End), 7);
    EXPECT_EQ(press(Qt::Key_Home), 0);
    EXPECT_EQ(press(Qt::Key_A), 0);
    EXPECT_EQ(PanelOnView(), "picTabNewGame");
}

TEST_F(ConfigureScreenTest, AssistiveToolsSeeEightTabs)
{
    Open(LogicTab);
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(Strip());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::PageTabList);
    ASSERT_EQ(list->childCount(), 8);
    QStringList names;
    for (int tab = 0; tab < 8; ++tab) {
        names << list->child(tab)->text(QAccessible::Name);
        EXPECT_EQ(list->child(tab)->role(), QAccessible::PageTab);
        EXPECT_EQ(list->child(tab)->state().selected != 0, tab == LogicTab);
        EXPECT_EQ(list->indexOfChild(list->child(tab)), tab);
    }
    EXPECT_EQ(names, QStringList({"New Games", "Sound", "Print", "Logic", "Preset Grids", "Grid",
                                  "Colors", "Coordinates"}));
    list->child(GridTab)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(CurrentTab, GridTab);
    const QPoint middle = list->child(2)->rect().center();
    EXPECT_EQ(list->childAt(middle.x(), middle.y()), list->child(2));
}

TEST_F(ConfigureScreenTest, TabOnViewHasTheFocusOfTheStrip)
{
    Open(LogicTab);
    Screen->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Screen, Patience));
    const QAccessibleInterface *list = QAccessible::queryAccessibleInterface(Strip());
    Strip()->setFocus();
    for (int tab = 0; tab < 8; ++tab) {
        EXPECT_EQ(list->child(tab)->state().focused != 0, tab == LogicTab) << tab;
    }
    Strip()->clearFocus();
    EXPECT_EQ(list->child(LogicTab)->state().focused, 0);
}

TEST_F(ConfigureScreenTest, EveryControlHasANameForScreenReaders)
{
    Open(NewGamesTab);
    int controls = 0;
    for (const QWidget *control : Screen->findChildren<QWidget *>()) {
        // The parts of a list that opens are the toolkit's own, and so is a menu's name.
        const bool partOfList = control->window() != Screen;
        if (control->focusPolicy() == Qt::NoFocus || partOfList) {
            continue;
        }
        ++controls;
        EXPECT_FALSE(control->accessibleName().isEmpty())
            << control->metaObject()->className() << ' ' << control->objectName().toStdString();
    }
    EXPECT_GT(controls, 120);
}

TEST_F(ConfigureScreenTest, EscapeCloses)
{
    Open(NewGamesTab);
    QTest::keyClick(Find<QWidget>("txtMinNumGivens"), Qt::Key_Escape);
    EXPECT_FALSE(Screen->isVisible());
    EXPECT_EQ(ConfigureOpen, False);
    EXPECT_EQ(OpenConfigureScreen(), nullptr);
}

TEST_F(ConfigureScreenTest, KeepsItsPlaceAndComesBackThere)
{
    Open(NewGamesTab);
    Screen->move(33, 44);
    Screen->resize(500, 610);
    QCoreApplication::processEvents();
    const QRect place(Screen->pos(), Screen->size());
    Close();
    EXPECT_EQ(ConfigurePlace, (WindowPlace{33, 44, 500, 610}));
    Open(NewGamesTab);
    EXPECT_EQ(QRect(Screen->pos(), Screen->size()), place);
}

TEST_F(ConfigureScreenTest, MinimisedScreenKeepsThePlaceOfBefore)
{
    Open(NewGamesTab);
    Screen->move(33, 44);
    QCoreApplication::processEvents();
    Screen->showMinimized();
    Close();
    EXPECT_EQ(ConfigurePlace.Left, 33);
    EXPECT_EQ(ConfigurePlace.Top, 44);
}

TEST_F(ConfigureScreenTest, PlaceOffTheScreenIsBroughtBack)
{
    ConfigurePlace = {-5000, 9000, 458, 500};
    Open(NewGamesTab);
    EXPECT_TRUE(Screen->screen()->availableGeometry().contains(
        QRect(Screen->pos(), QSize(Screen->width(), Screen->height()))));
}

TEST_F(ConfigureScreenTest, LowWindowShowsTheBarWhichMovesThePanelOnView)
{
    Open(LogicTab);
    auto *bar = Find<QScrollBar>("vsbTabContainer");
    auto *logic = Find<QWidget>("picTabLogic");
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(bar->minimum(), 0);
    EXPECT_EQ(bar->maximum(), 500);
    EXPECT_EQ(bar->singleStep(), 50);
    EXPECT_EQ(bar->pageStep(), 140);
    Screen->resize(458, 474);
    QCoreApplication::processEvents();
    EXPECT_TRUE(bar->isVisible());
    bar->setValue(120);
    EXPECT_EQ(logic->y(), -120);
    QTest::keyClick(Screen, Qt::Key_G, Qt::AltModifier);
    auto *grid = Find<QWidget>("picTabGrid");
    EXPECT_EQ(bar->value(), 120) << "the value stays";
    EXPECT_EQ(grid->y(), 0) << "and applies at its next change";
    bar->setValue(130);
    EXPECT_EQ(grid->y(), -130);
    QTest::keyClick(Screen, Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(logic->y(), -120);
    QTest::keyClick(Screen, Qt::Key_G, Qt::AltModifier);
    Screen->resize(458, 700);
    QCoreApplication::processEvents();
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(grid->y(), 0);
}

TEST_F(ConfigureScreenTest, BarDoesNothingWithoutAPanel)
{
    Open(LogicTab);
    Screen->resize(458, 300);
    QTest::keyClick(Screen, Qt::Key_R, Qt::AltModifier);
    Find<QScrollBar>("vsbTabContainer")->setValue(200);
    EXPECT_EQ(Find<QWidget>("picTabLogic")->y(), 0);
    EXPECT_EQ(PanelOnView(), "");
}

TEST_F(ConfigureScreenTest, ContainerIsNeverLowerThanOneHundredAndForty)
{
    Open(LogicTab);
    Screen->setMinimumSize(0, 0);
    Screen->resize(458, 100);
    QCoreApplication::processEvents();
    EXPECT_EQ(Find<QWidget>("picTabContainer")->height(), 140);
}

TEST_F(ConfigureScreenTest, TabKeyBringsAHiddenControlIntoSight)
{
    Open(LogicTab);
    Screen->resize(458, 260);
    QCoreApplication::processEvents();
    Find<QWidget>("lblDifficulty17")->setFocus();
    QTest::keyClick(Find<QWidget>("lblDifficulty17"), Qt::Key_Tab);
    const QWidget *control = QApplication::focusWidget();
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(control->objectName(), "chkUseLogic18");
    EXPECT_TRUE(control->visibleRegion().boundingRect().height() > 0);
}

TEST_F(ConfigureScreenTest, OpeningWritesNothingEvenOfValuesThatNoControlCanShow)
{
    PrimaryThickness = 60;
    MarginThickness = 130;
    ColumnFormat = 77;
    MaxXYLinks = 123;
    GameRating = 3;
    const auto colours = ColourTable;
    for (std::int32_t tab = 0; tab < 8; ++tab) {
        Open(tab);
    }
    EXPECT_EQ(PrimaryThickness, 60);
    EXPECT_EQ(MarginThickness, 130);
    EXPECT_EQ(ColumnFormat, 77);
    EXPECT_EQ(MaxXYLinks, 123);
    EXPECT_EQ(ColourTable, colours);
}

TEST_F(ConfigureScreenTest, NothingIsTakenWhileASearchRuns)
{
    Open(NewGamesTab);
    SearchActive = True;
    Click("chkDifficulty3");
    QTest::keyClicks(Find<QLineEdit>("txtMinNumGivens"), "5");
    QTest::keyClick(Screen, Qt::Key_G, Qt::AltModifier);
    SearchActive = False;
    EXPECT_FALSE(Find<QAbstractButton>("chkDifficulty3")->isChecked());
    EXPECT_EQ(Find<QLineEdit>("txtMinNumGivens")->text(), "17");
    EXPECT_EQ(CurrentTab, NewGamesTab);
    Click("chkDifficulty3");
    EXPECT_TRUE(Find<QAbstractButton>("chkDifficulty3")->isChecked());
}

TEST_F(ConfigureScreenTest, StopButtonOfABatchIsPressedWhileItSearches)
{
    PrintMode = PrintNewGames;
    Open(PrintTab);
    SearchActive = True;
    SearchKind = SearchingGame;
    const BoxRecord boxes = AnswerBoxes([&] { Click("cmdPrint"); }, {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts, std::vector<std::string>{"Would you like to stop searching?"});
    EXPECT_EQ(SearchActive, False);
    SearchKind = NotStoppable;
}

TEST_F(ConfigureScreenTest, TextBoxSelectsAllWhenItGetsTheFocus)
{
    Open(NewGamesTab);
    auto *box = Find<QLineEdit>("txtMaxNumGivens");
    Click("txtMaxNumGivens");
    EXPECT_TRUE(box->hasFocus());
    EXPECT_EQ(box->selectedText(), "40");
    Find<QLineEdit>("txtMinNumGivens")->setFocus();
    EXPECT_EQ(Find<QLineEdit>("txtMinNumGivens")->selectedText(), "17");
}

TEST_F(ConfigureScreenTest, TextBoxTakesDigitsAndBackspaceOnly)
{
    Open(NewGamesTab);
    auto *box = Find<QLineEdit>("txtMinNumGivens");
    Type("txtMinNumGivens", "2a-. +b3");
    EXPECT_EQ(box->text(), "23");
    QTest::keyClicks(box, "4");
    EXPECT_EQ(box->text(), "23") << "two digits at most";
    QTest::keyClick(box, Qt::Key_Backspace);
    EXPECT_EQ(box->text(), "2");
}

TEST_F(ConfigureScreenTest, CopyAndPasteGoThroughTheClipboardPastTheDigitFilter)
{
    Open(NewGamesTab);
    auto *box = Find<QLineEdit>("txtMinNumGivens");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "17");
    QGuiApplication::clipboard()->setText("x4");
    box->selectAll();
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box->text(), "x4");
}

TEST_F(ConfigureScreenTest, OpensInOneTurnOfTheEventLoopAndPaintsNothingTwice)
{
    for (std::int32_t tab = 0; tab < TabCount; ++tab) {
        SCOPED_TRACE(tab);
        CurrentTab = tab;
        QCoreApplication::processEvents();
        const std::int64_t boards = BoardsPainted;
        const PaintCounter painted;
        mnuConfigure();
        QCoreApplication::processEvents();
        Screen = OpenConfigureScreen();
        EXPECT_EQ(painted.PaintsOf(Find<QWidget>(PanelOnView().toUtf8())), 1);
        EXPECT_EQ(painted.MostPaintsIn(Screen), 1);
        EXPECT_EQ(BoardsPainted, boards);
        Close();
    }
}

TEST_F(ConfigureScreenTest, GoesWithTheMainWindowAndStaysMarkedOpen)
{
    Open(NewGamesTab);
    Running->Main->close();
    Running.reset();
    EXPECT_EQ(OpenConfigureScreen(), nullptr);
    EXPECT_EQ(ConfigureOpen, True) << "it was open when the closing began";
}

} // namespace
} // namespace kelvarine::testing
