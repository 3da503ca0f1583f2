// Desktop fonts of all sizes: no text is cut, measured against the room that it has.
#include "commands/new_games.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "generator/generator.h"
#include "grid/cell_word.h"
#include "logic/technique_masks.h"
#include "outside/help.h"
#include "outside/messages.h"
#include "outside/screens.h"
#include "support/widget_events.h"
#include "support/widget_modal.h"
#include "support/widget_program.h"
#include "ui/configure/configure_screen.h"
#include "ui/configure/tab_strip.h"
#include "ui/screens/help_window.h"
#include "ui/window/toolbar_widget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>

namespace kelvarine::testing {
namespace {

constexpr std::array Points{9, 12, 15, 20};
constexpr QSize CommonScreen(1366, 768);

class LargeFonts : public ::testing::TestWithParam<int> {
protected:
    LargeFonts() : former(QApplication::font())
    {
        QFont font = former;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
        program = std::make_unique<Program>();
    }

    ~LargeFonts() override
    {
        program.reset();
        QApplication::setFont(former);
    }

    QFont former;
    std::unique_ptr<Program> program;
};

// What a control needs for its text; nothing for one that shows none.
QSize NeededBy(const QWidget &control)
{
    const QFontMetrics measure = control.fontMetrics();
    if (const auto *label = qobject_cast<const QLabel *>(&control)) {
        const bool broken = label->wordWrap(); // into the lines that its width allows
        return label->text().isEmpty() ? QSize()
               : broken                ? QSize(1, label->heightForWidth(label->width()))
                                       : label->sizeHint();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&control)) {
        return button->text().isEmpty() ? QSize() : button->minimumSizeHint();
    }
    if (qobject_cast<const QLineEdit *>(&control) != nullptr) {
        return {measure.horizontalAdvance("00"), measure.height()};
    }
    if (const auto *list = qobject_cast<const QComboBox *>(&control)) {
        return list->minimumSizeHint();
    }
    if (const auto *frame = qobject_cast<const QGroupBox *>(&control)) {
        return {measure.horizontalAdvance(frame->title()), measure.height()};
    }
    return {};
}

std::string NameOf(const QWidget &control)
{
    std::string name = control.objectName().toStdString();
    if (const auto *label = qobject_cast<const QLabel *>(&control)) {
        name += " " + label->text().toStdString();
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(&control)) {
        name += " " + button->text().toStdString();
    }
    return name;
}

// Tells how many controls were measured.
int ExpectRoomForTexts(const QWidget &window)
{
    int measured = 0;
    for (const QWidget *control : window.findChildren<QWidget *>()) {
        const QSize needed = NeededBy(*control);
        if (!control->isVisible() || needed.isEmpty()) {
            continue;
        }
        ++measured;
        EXPECT_GE(control->width(), needed.width()) << NameOf(*control);
        EXPECT_GE(control->height(), needed.height()) << NameOf(*control);
        const QRect inParent = control->geometry();
        EXPECT_TRUE(control->parentWidget()->rect().contains(inParent)) << NameOf(*control);
    }
    return measured;
}

TEST_P(LargeFonts, CutNoTextOfTheSettings)
{
    for (CurrentTab = NewGamesTab; CurrentTab <= CoordinatesTab; ++CurrentTab) {
        ShowConfigureScreen();
        QCoreApplication::processEvents();
        ASSERT_NE(OpenConfigureScreen(), nullptr);
        SCOPED_TRACE(OpenConfigureScreen()->CurrentPanel()->objectName().toStdString());
        OpenConfigureScreen()->resize(OpenConfigureScreen()->width(), 1000);
        QCoreApplication::processEvents();
        const int measured = ExpectRoomForTexts(*OpenConfigureScreen()->CurrentPanel());
        EXPECT_TRUE(measured > 3 || CurrentTab == PresetGridsTab) << "which is all pictures";
    }
}

TEST_P(LargeFonts, CutNoTab)
{
    ShowConfigureScreen();
    const auto *strip = OpenConfigureScreen()->findChild<TabStrip *>();
    ASSERT_NE(strip, nullptr);
    for (CurrentTab = NewGamesTab; CurrentTab <= CoordinatesTab; ++CurrentTab) {
        for (int tab = NewGamesTab; tab <= CoordinatesTab; ++tab) {
            const QRect place = strip->PlaceOfTab(tab);
            const QFontMetrics measure = strip->fontMetrics();
            EXPECT_GE(place.width(), measure.horizontalAdvance(strip->TextOfTab(tab))) << tab;
            EXPECT_GE(place.height(), measure.height()) << tab;
            EXPECT_TRUE(strip->rect().contains(place)) << tab;
        }
    }
    for (const int tab : {6, 1, 3, 4, 0, 7}) {
        auto *widget = OpenConfigureScreen()->findChild<TabStrip *>();
        Click(widget, widget->PlaceOfTab(tab).center());
        EXPECT_EQ(CurrentTab, tab) << "a press chooses the tab that is painted there";
    }
}

TEST_P(LargeFonts, CutNoCaptionOfTheToolbar)
{
    for (const int width : {760, 500}) {
        program->Main->resize(width, 830);
        QCoreApplication::processEvents();
        for (const auto *button : program->Main->findChildren<ToolButtonWidget *>()) {
            const QFontMetrics measure(button->CaptionFont());
            EXPECT_LE(measure.horizontalAdvance(button->Caption()), button->width())
                << NameOf(*button);
            EXPECT_LE(measure.height(), button->height() + 1) << NameOf(*button);
        }
    }
}

// Does what brings up a box and looks at it while it stands.
void LookAtBox(const std::function<void()> &action, int controls)
{
    const int seen = WhileModal<QDialog>(action, [&](QDialog &box) {
        EXPECT_GE(ExpectRoomForTexts(box), controls) << box.windowTitle().toStdString();
        const QSize screen = box.screen()->availableSize().boundedTo(CommonScreen);
        EXPECT_LE(box.width(), CommonScreen.width()) << box.windowTitle().toStdString();
        EXPECT_LE(box.height(), screen.height()) << box.windowTitle().toStdString();
        box.reject();
    });
    EXPECT_EQ(seen, 1);
}

TEST_P(LargeFonts, CutNoTextOfABox)
{
    DifficultySelection = BitTable[1];
    LevelTable[1] = 0;
    LookAtBox(mnuGameRandom, 2); // the longest of all messages, and its button
    LookAtBox([] { ShowMessage("No.", "A title that is longer than what is told"); }, 2);
    LookAtBox([] { AskYesNo("The last game was not closed. Would you like to go on with it?"); },
              3);
    LookAtBox([] { AskYesNoCancel("Would you like to save this game first?"); }, 4);
    LookAtBox([] { AskText("Please select a game number between 1 and 2,147,483,647\r"); }, 4);
    LookAtBox(ShowAboutScreen, 3);
}

TEST_P(LargeFonts, CutNoTextOfTheHelp)
{
    ShowHelpTopic(0);
    const std::unique_ptr<HelpWindow> help(OpenHelpWindow());
    ASSERT_NE(help, nullptr);
    help->show();
    const auto *bar = help->Tabs->findChild<QTabBar *>();
    for (int tab = 0; tab < help->Tabs->count(); ++tab) {
        help->Tabs->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        EXPECT_GE(ExpectRoomForTexts(*help->Tabs), tab == 0 ? 0 : 2) << "tab " << tab;
        const QRect place = bar->tabRect(tab);
        EXPECT_TRUE(bar->rect().contains(place)) << "tab " << tab;
        EXPECT_GE(bar->width(), bar->sizeHint().width()) << "no tab is cut or out of sight";
    }
    int buttons = 0;
    for (const auto *button : help->findChildren<QToolButton *>()) {
        const bool opensTheRest = button->objectName() == "qt_toolbar_ext_button";
        EXPECT_FALSE(opensTheRest && button->isVisible()) << "all buttons have room";
        if (button->isVisible()) {
            ++buttons;
            EXPECT_GE(button->width(), button->minimumSizeHint().width());
        }
    }
    EXPECT_GT(buttons, 3);
}

TEST_P(LargeFonts, CutNoTextOfTheOtherScreens)
{
    mnuStatistics();
    mnuShowSolution();
    QCoreApplication::processEvents();
    for (const char *name : {"frmStatistics", "frmSolutions"}) {
        SCOPED_TRACE(name);
        const auto *screen = program->Main->findChild<QWidget *>(name);
        ASSERT_NE(screen, nullptr);
        EXPECT_GT(ExpectRoomForTexts(*screen), 3);
    }
}

INSTANTIATE_TEST_SUITE_P(Points, LargeFonts, ::testing::ValuesIn(Points),
                         ::testing::PrintToStringParamName());

} // namespace
} // namespace kelvarine::testing
