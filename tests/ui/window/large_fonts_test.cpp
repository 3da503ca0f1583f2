// Desktop fonts of all sizes: no text is cut, measured against the room that it has.
#include "game/screens.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "outside/screens.h"
#include "support/widget_events.h"
#include "support/widget_program.h"
#include "ui/configure/configure_screen.h"
#include "ui/configure/tab_strip.h"
#include "ui/window/toolbar_widget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

constexpr int Points[] = {9, 12, 15, 20};

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
        return label->text().isEmpty() ? QSize() : label->sizeHint();
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
            EXPECT_LE(measure.horizontalAdvance(button->text()), button->width())
                << NameOf(*button);
            EXPECT_LE(measure.height(), button->height() + 1) << NameOf(*button);
        }
    }
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
