#include "board/look.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/menu_table.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_events.h"
#include "support/widget_front.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"
#include "ui/window/toolbar_widget.h"

#include <QAccessible>
#include <QImage>
#include <QMenuBar>
#include <QPushButton>
#include <QtTest>
#include <gtest/gtest.h>

#include <cmath>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr QPoint Middle{20, 9};

class ToolbarOnView : public ::testing::Test {
protected:
    void SetUp() override
    {
        BringToFront(program);
        Board()->setFocus();
    }

    [[nodiscard]] ToolButtonWidget *Button(int index) const
    {
        return ToolButtonOf(*program.Main, index);
    }

    [[nodiscard]] BoardWidget *Board() const
    {
        return program.Main->Client->Board;
    }

    [[nodiscard]] ToolbarWidget *Bar() const
    {
        return program.Main->Client->Toolbar;
    }

    void Press(int index, Qt::MouseButton button = Qt::LeftButton) const
    {
        Click(Button(index), Middle, button);
    }

    Program program;
};

// A window of 760 pixels has a toolbar of 758.
TEST_F(ToolbarOnView, ButtonsLieAsLaidOut)
{
    EXPECT_EQ(Bar()->geometry(), QRect(1, 0, 758, 54));
    for (int index = 0; index <= 11; ++index) {
        EXPECT_EQ(Button(index)->geometry(), QRect(4 + index * 63, 3, 57, 26)) << index;
    }
    for (int index = 12; index <= 14; ++index) {
        EXPECT_EQ(Button(index)->geometry(), QRect(4 + (index - 12) * 252, 32, 246, 18)) << index;
    }
}

TEST_F(ToolbarOnView, PressActsAndReleaseDoesNot)
{
    SendMouse(Button(14), QEvent::MouseButtonPress, Middle, Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(ToolMode, 20);
    ToolMode = 0;
    SendMouse(Button(14), QEvent::MouseButtonRelease, Middle, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(ToolMode, 0);
    EXPECT_FALSE(Button(14)->isDown());
}

TEST_F(ToolbarOnView, ReleaseElsewhereChangesNothing)
{
    SendMouse(Button(13), QEvent::MouseButtonPress, Middle, Qt::LeftButton, Qt::LeftButton);
    SendMouse(Button(13), QEvent::MouseButtonRelease, {-50, 200}, Qt::LeftButton, Qt::NoButton);
    EXPECT_EQ(ToolMode, 1);
}

TEST_F(ToolbarOnView, EveryMouseButtonActs)
{
    Press(14, Qt::RightButton);
    EXPECT_EQ(ToolMode, 20);
    Press(12, Qt::MiddleButton);
    EXPECT_EQ(ToolMode, 10);
}

TEST_F(ToolbarOnView, SecondPressOfADoubleClickActsToo)
{
    Press(12);
    SendMouse(Button(12), QEvent::MouseButtonDblClick, Middle, Qt::LeftButton, Qt::LeftButton);
    EXPECT_EQ(ToolMode, 11);
}

TEST_F(ToolbarOnView, PressLeavesTheFocusWithTheBoard)
{
    for (int index = 0; index <= 14; ++index) {
        Press(index);
        EXPECT_EQ(QApplication::focusWidget(), Board()) << index;
    }
}

TEST_F(ToolbarOnView, PressThatMovesNoFocusLeavesItWithTheBoardToo)
{
    for (const int mode : {11, 1}) { // nothing happens, and the freeze
        ToolMode = mode;
        Board()->setFocus();
        QTest::mouseClick(Button(11), Qt::LeftButton);
        EXPECT_EQ(QApplication::focusWidget(), Board()) << mode;
    }
}

TEST_F(ToolbarOnView, AnyKeyOnAFocusedButtonActsAndTheFocusGoesBack)
{
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_X, Qt::Key_F5, Qt::Key_Up,
                              Qt::Key_Menu, Qt::Key_Escape}) {
        NumberFilter = CandidateMask;
        ToolMode = 20;
        ToolSign = 0;
        Button(4)->setFocus(Qt::TabFocusReason);
        ASSERT_EQ(QApplication::focusWidget(), Button(4));
        QTest::keyPress(Button(4), key);
        EXPECT_EQ(NumberFilter, BitTable[4]) << key;
        EXPECT_EQ(QApplication::focusWidget(), Board()) << key;
    }
}

TEST_F(ToolbarOnView, ModifierAloneOnAFocusedButtonIsNoPress)
{
    WordAt({4, 7}) |= SelectedBit;
    const CellWord before = WordAt({4, 7});
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr,
                              Qt::Key_Meta, Qt::Key_Super_L, Qt::Key_Super_R}) {
        Button(4)->setFocus(Qt::TabFocusReason);
        SendKey(Button(4), QEvent::KeyPress, key);
        SendKey(Button(4), QEvent::KeyRelease, key);
        EXPECT_EQ(WordAt({4, 7}), before) << std::hex << key;
        EXPECT_EQ(QApplication::focusWidget(), Button(4)) << std::hex << key;
    }
}

TEST_F(ToolbarOnView, ShiftAndTabGoBackFromAButtonAndPlaceNothing)
{
    WordAt({4, 7}) |= SelectedBit;
    const CellWord before = WordAt({4, 7});
    Button(2)->setFocus(Qt::TabFocusReason);
    SendKey(Button(2), QEvent::KeyPress, Qt::Key_Shift);
    QTest::keyClick(Button(2), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), Button(1));
    EXPECT_EQ(WordAt({4, 7}), before);
    Button(14)->setFocus(Qt::TabFocusReason); // the last one
    QTest::keyClick(Button(14), Qt::Key_Tab);
    EXPECT_EQ(ToolMode, 0);
    EXPECT_EQ(WordAt({4, 7}), before);
}

TEST_F(ToolbarOnView, ShiftAndTabGoBackFromTheBoardAndKeepTheSignUntilShiftComesUp)
{
    QWindow *window = program.Main->windowHandle();
    QTest::keyEvent(QTest::Press, window, Qt::Key_Backtab, Qt::ShiftModifier); // and Shift before
    EXPECT_EQ(QApplication::focusWidget(), Button(14));
    EXPECT_EQ(Button(1)->Caption(), "- 1");
    QTest::keyEvent(QTest::Release, window, Qt::Key_Backtab, Qt::ShiftModifier); // and Shift after
    EXPECT_EQ(Button(1)->Caption(), "1");
    EXPECT_EQ(QApplication::focusWidget(), Button(14));
}

TEST_F(ToolbarOnView, ShiftAndTabToTheBoardShowNoSign)
{
    Button(0)->setFocus(Qt::TabFocusReason);
    QWindow *window = program.Main->windowHandle();
    QTest::keyEvent(QTest::Press, window, Qt::Key_Backtab, Qt::ShiftModifier); // and Shift before
    EXPECT_EQ(QApplication::focusWidget(), Board());
    EXPECT_EQ(Button(1)->Caption(), "1");
    QTest::keyEvent(QTest::Release, window, Qt::Key_Backtab, Qt::ShiftModifier);
}

TEST_F(ToolbarOnView, AltAndALetterOnAFocusedButtonOpenTheMenuAlone)
{
    WordAt({4, 7}) |= SelectedBit;
    const CellWord before = WordAt({4, 7});
    Button(3)->setFocus(Qt::TabFocusReason);
    SendKey(Button(3), QEvent::KeyPress, Qt::Key_Alt);
    QTest::keyClick(Button(3), Qt::Key_G, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "mnuGame");
    EXPECT_EQ(WordAt({4, 7}), before);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}

TEST_F(ToolbarOnView, AssistiveToolsCanPressTheButtons)
{
    WordAt({4, 7}) |= SelectedBit;
    QAccessibleInterface *button = QAccessible::queryAccessibleInterface(Button(6));
    ASSERT_NE(button->actionInterface(), nullptr);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    const auto placed = [] {
        return (WordAt({4, 7}) & CandidateMask) == BitTable[6];
    };
    EXPECT_TRUE(QTest::qWaitFor(placed, Patience));
    // Neither mouse nor keys come by the toolkit's own click, but a tool may.
    Button(14)->click();
    EXPECT_EQ(ToolMode, 20);
}

TEST_F(ToolbarOnView, TabReachesEveryButton)
{
    for (int index = 0; index <= 14; ++index) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), Button(index));
    }
}

TEST_F(ToolbarOnView, PressBetweenTheButtonsDropsTheSelection)
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        WordAt({4, 7}) = SelectedBit | HintCellBit;
        Button(3)->setFocus(Qt::TabFocusReason);
        Click(Bar(), {100, 30}, button, Qt::ShiftModifier);
        EXPECT_EQ(CellsWith(SelectedBit), "D7");
        EXPECT_EQ(QApplication::focusWidget(), Board());
        Click(Bar(), {100, 30}, button);
        EXPECT_EQ(CellsWith(SelectedBit), "");
        EXPECT_EQ(CellsWith(HintCellBit), "D7");
    }
}

TEST_F(ToolbarOnView, NumberButtonFillsTheSelectedCell)
{
    WordAt({4, 7}) |= SelectedBit;
    Press(6);
    EXPECT_EQ(WordAt({4, 7}) & CandidateMask, BitTable[6]);
    Press(11);
    Press(8);
    EXPECT_EQ(WordAt({4, 7}) & CandidateMask, BitTable[6] | BitTable[8]);
}

TEST_F(ToolbarOnView, ButtonsShowTheirCaptionsColoursAndTips)
{
    for (const int press : {11, 11, 11, 13, 12, 12, 12, 12, 11, 14, 11, 13}) {
        Press(press);
        for (int index = 0; index <= 14; ++index) {
            const ToolButton &told = ToolButtons[static_cast<std::size_t>(index)];
            const ToolButtonWidget *button = Button(index);
            EXPECT_EQ(button->Caption().toStdString(), told.Caption);
            EXPECT_EQ(button->toolTip().toStdString(), told.Tip);
            EXPECT_FALSE(QAccessible::queryAccessibleInterface(Button(index))
                             ->text(QAccessible::Name)
                             .isEmpty());
            const QImage picture = Button(index)->grab().toImage();
            EXPECT_EQ(picture.pixel(4, picture.height() / 2), QRgb(0xFF000000 | told.Background))
                << index;
        }
    }
}

TEST_F(ToolbarOnView, ButtonHasADarkerEdgeAndIsDarkerWhileItIsPressedIn)
{
    const QColor colour(QRgb(ToolButtons[14].Background));
    ToolButtonWidget *button = Button(14);
    const auto colourAt = [&](int x, int y) {
        return QColor(button->grab().toImage().pixel(x, y)).name();
    };
    EXPECT_EQ(colourAt(button->width() / 2, 0), colour.darker(170).name());
    EXPECT_EQ(colourAt(4, button->height() / 2), colour.name());
    button->setDown(true);
    EXPECT_EQ(colourAt(4, button->height() / 2), colour.darker(125).name());
}

// Contrast as those who tell readable from unreadable reckon it.
double Contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &colour) {
        const auto part = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
               0.0722 * part(colour.blueF());
    };
    const double light = std::max(luminance(a), luminance(b));
    const double dark = std::min(luminance(a), luminance(b));
    return (light + 0.05) / (dark + 0.05);
}

TEST_F(ToolbarOnView, CaptionsAreReadableOnEveryColour)
{
    for (int shade = 0; shade < 4096; shade += 37) {
        ToolButtons[10].Background = static_cast<Colour>(
            (shade >> 8) * 0x110000 + (shade >> 4) % 16 * 0x1100 + shade % 16 * 0x11);
        Bar()->Update();
        const QPalette colours = Button(10)->palette();
        EXPECT_GE(Contrast(colours.color(QPalette::Button), colours.color(QPalette::ButtonText)),
                  4.5)
            << std::hex << ToolButtons[10].Background;
    }
}

// The part of a button within its edge that is nearer to the ink than to the ground.
QRect InkOf(ToolButtonWidget *button)
{
    const QImage painted = button->grab().toImage();
    const int ground = qGray(button->palette().color(QPalette::Button).rgb());
    const int ink = qGray(button->palette().color(QPalette::ButtonText).rgb());
    const QRect inner = painted.rect().adjusted(4, 4, -4, -4);
    QRect inked;
    for (int y = inner.top(); y <= inner.bottom(); ++y) {
        for (int x = inner.left(); x <= inner.right(); ++x) {
            const int shade = qGray(painted.pixel(x, y));
            if (std::abs(shade - ink) < std::abs(shade - ground)) {
                inked |= QRect(x, y, 1, 1);
            }
        }
    }
    return inked;
}

TEST_F(ToolbarOnView, CaptionsArePaintedInTheMiddle)
{
    for (const int number : {8, 10}) {
        const QRect inked = InkOf(Button(number));
        ASSERT_FALSE(inked.isEmpty()) << number;
        EXPECT_LE((inked.center() - Button(number)->rect().center()).manhattanLength(), 4)
            << number;
    }
    EXPECT_GT(InkOf(Button(10)).width(), InkOf(Button(8)).width());
}

TEST_F(ToolbarOnView, HeldModifierShowsItsSign)
{
    QTest::keyPress(Board(), Qt::Key_Shift);
    EXPECT_EQ(Button(1)->Caption(), "- 1");
    EXPECT_EQ(Button(10)->Caption(), "- All");
    QTest::keyRelease(Board(), Qt::Key_Shift);
    EXPECT_EQ(Button(1)->Caption(), "1");
    QTest::keyPress(Board(), Qt::Key_Control);
    EXPECT_EQ(Button(1)->Caption(), "+ 1");
    QTest::keyRelease(Board(), Qt::Key_Control);
    EXPECT_EQ(Button(1)->Caption(), "1");
}

TEST_F(ToolbarOnView, ModifierThatComesUpInADialogIsPlainAgain)
{
    SendKey(Board(), QEvent::KeyPress, Qt::Key_Shift);
    EXPECT_EQ(Button(1)->Caption(), "- 1");
    const Texts boxes =
        CloseModals([&] { SendKey(Board(), QEvent::KeyPress, Qt::Key_H, Qt::ShiftModifier); });
    EXPECT_EQ(boxes, Texts{"Kelvarine: There are no cells selected."});
    EXPECT_EQ(Button(1)->Caption(), "1");
}

TEST_F(ToolbarOnView, DigitThatComesUpLeavesShiftHeld)
{
    SendKey(Board(), QEvent::KeyPress, Qt::Key_Shift);
    SendKey(Board(), QEvent::KeyPress, Qt::Key_1, Qt::ShiftModifier);
    SendKey(Board(), QEvent::KeyRelease, Qt::Key_1, Qt::ShiftModifier);
    EXPECT_EQ(Button(1)->Caption(), "- 1");
    CloseModals([&] { SendKey(Board(), QEvent::KeyPress, Qt::Key_H, Qt::ShiftModifier); });
    EXPECT_EQ(Button(1)->Caption(), "1") << "let go in the dialog";
}

TEST_F(ToolbarOnView, ModifierThatOpensABoxIsNotHeldAfterwards)
{
    const auto pressCtrlAnd = [&](Qt::Key key) {
        QWidget *focus = program.Main->focusWidget();
        SendKey(focus, QEvent::KeyPress, Qt::Key_Control);
        return CloseModals([&] { SendKey(focus, QEvent::KeyPress, key, Qt::ControlModifier); });
    };
    for (const Qt::Key key : {Qt::Key_B, Qt::Key_T}) {
        for (const Qt::Key letter : {Qt::Key_G, Qt::Key_H, Qt::Key_unknown}) {
            ClearCellBits(CandidateMask | SelectedBit);
            WordAt({4, 7}) = BitTable[5] | SelectedBit;
            GameModified = True;
            BringToFront(program);
            if (letter != Qt::Key_unknown) {
                QTest::keyClick(program.Main->focusWidget(), letter, Qt::AltModifier);
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
            } else {
                program.Main->menuBar()->setFocus(); // its keys reach the window
            }
            EXPECT_EQ(pressCtrlAnd(key).size(), 1U);
            QCoreApplication::processEvents();
            EXPECT_EQ(Button(1)->Caption(), "1");
            Press(3);
            EXPECT_EQ(WordAt({4, 7}) & CandidateMask, BitTable[3]) << "and not 3 and 5";
        }
    }
}

TEST_F(ToolbarOnView, ModifierThatIsHeldWhenTheFocusComesShowsItsSign)
{
    Button(3)->setFocus(Qt::TabFocusReason);
    QWindow *window = program.Main->windowHandle();
    QTest::keyEvent(QTest::Press, window, Qt::Key_F20, Qt::ShiftModifier); // of no meaning itself
    Board()->clearFocus();
    Board()->setFocus();
    EXPECT_EQ(Button(1)->Caption(), "- 1");
    QTest::keyEvent(QTest::Release, window, Qt::Key_F20, Qt::NoModifier);
    Board()->clearFocus();
    EXPECT_EQ(Button(1)->Caption(), "1");
}

TEST_F(ToolbarOnView, SignThatThePlayerHasSetOutlastsTheFocus)
{
    Press(11);
    Board()->clearFocus();
    Board()->setFocus();
    EXPECT_EQ(Button(1)->Caption(), "+ 1");
}

TEST_F(ToolbarOnView, PointerSlidesARowThatSticksOut)
{
    program.Main->resize(302, 400);
    QCoreApplication::processEvents();
    ASSERT_EQ(Bar()->width(), 300);
    ASSERT_EQ(Button(0)->x(), -90);
    const auto moveTo = [&](int index, int px) {
        const QPoint place(px - Button(index)->x(), 5);
        SendMouse(Button(index), QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
    };
    moveTo(6, 150);
    EXPECT_EQ(Button(0)->x(), -90);
    moveTo(9, 295);
    EXPECT_EQ(Button(11)->geometry().right() + 1, 299);
    EXPECT_EQ(Button(14)->x(), Button(8)->x());
    moveTo(4, 5);
    EXPECT_EQ(Button(0)->x(), 1);
}

TEST_F(ToolbarOnView, HiddenToolbarLeavesItsRoomToTheBoard)
{
    const QRect before = Board()->geometry();
    const auto *row = std::ranges::find(MenuTable, "mnuViewToolBar", &MenuRow::Name).base();
    row->Run(0);
    EXPECT_FALSE(Bar()->isVisible());
    EXPECT_EQ(Board()->height(), before.height() + 54);
    row->Run(0);
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_EQ(Board()->geometry(), before);
}

TEST_F(ToolbarOnView, QuestionOfASearchLeavesNoButtonPressedIn)
{
    SearchActive = True;
    SearchKind = 1;
    const Texts boxes = CloseModals([&] {
        SendMouse(Button(14), QEvent::MouseButtonPress, Middle, Qt::LeftButton, Qt::LeftButton);
    });
    SearchActive = False;
    EXPECT_EQ(boxes, Texts{"Kelvarine: Would you like to stop searching?"});
    EXPECT_EQ(ToolMode, 0);
    EXPECT_FALSE(Button(14)->isDown());
}

} // namespace
} // namespace kelvarine::testing
