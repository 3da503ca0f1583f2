#include "grid/grid.h"
#include "input/mouse.h"
#include "input/number_keys.h"
#include "input/toolbar.h"
#include "logic/driver.h"
#include "support/widget_events.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"
#include "ui/window/toolbar_widget.h"

#include <QApplication>
#include <QPointingDevice>
#include <QPushButton>
#include <QStyleHints>
#include <QTouchEvent>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// Milliseconds that no touch of a test lasts.
constexpr int Never = 10'000'000;

// Keys of a keyboard beside the screen, held for as long as this stands.
class HeldKeys : public QObject {
public:
    HeldKeys(QWidget *touched, Qt::KeyboardModifiers modifiers) : held(modifiers)
    {
        touched->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (auto *touch = dynamic_cast<QTouchEvent *>(event)) {
            touch->setModifiers(held);
        }
        return false;
    }

private:
    Qt::KeyboardModifiers held;
};

class BoardTouch : public ::testing::Test {
protected:
    void SetUp() override
    {
        HoldAfter(Never);
        for (const Cell cell : Cells) {
            WordAt(cell) = CandidateMask;
        }
    }

    void TearDown() override
    {
        HoldAfter(former);
    }

    static void HoldAfter(int milliseconds)
    {
        QGuiApplication::styleHints()->setMousePressAndHoldInterval(milliseconds);
    }

    [[nodiscard]] QPointingDevice *Screen() const
    {
        return screen.get();
    }

    [[nodiscard]] BoardWidget *Board() const
    {
        return program.Main->Client->Board;
    }

    [[nodiscard]] QTest::QTouchEventWidgetSequence Touch() const
    {
        return QTest::touchEvent(Board(), Screen(), false);
    }

    void Tap(QPoint place) const
    {
        Touch().press(0, place, Board()).commit();
        Touch().release(0, place, Board()).commit();
    }

    [[nodiscard]] static std::string Selected()
    {
        std::string names;
        for (const Cell cell : Cells) {
            if ((WordAt(cell) & SelectedBit) != 0) {
                names += std::to_string(cell.Column) + "/" + std::to_string(cell.Row) + " ";
            }
        }
        return names;
    }

    // There is none before and after, so that no other test has a screen with touch.
    const std::unique_ptr<QPointingDevice> screen{QTest::createTouchDevice()};
    const int former = QGuiApplication::styleHints()->mousePressAndHoldInterval();
    Program program;
};

TEST_F(BoardTouch, SelectsWhenTheFingerIsLifted)
{
    Touch().press(0, CentreOf(3, 4), Board()).commit();
    EXPECT_EQ(Selected(), "");
    Touch().release(0, CentreOf(3, 4), Board()).commit();
    EXPECT_EQ(Selected(), "3/4 ");
    Tap(CentreOf(5, 6));
    EXPECT_EQ(Selected(), "5/6 ");
}

TEST_F(BoardTouch, TakesTheKeyboardToTheBoard)
{
    ToolButtonOf(*program.Main, EditButton)->setFocus();
    ASSERT_FALSE(Board()->hasFocus());
    Tap(CentreOf(5, 6));
    EXPECT_TRUE(Board()->hasFocus());
}

TEST_F(BoardTouch, LongOneStrikesTheNumberOut)
{
    Tap(CentreOf(3, 4));
    HoldAfter(1);
    Touch().press(0, PlaceOf(7, 7, 2), Board()).commit();
    const auto struck = [] {
        return (WordAt({3, 4}) & CandidateMask) == (CandidateMask & ~BitTable[2]);
    };
    EXPECT_TRUE(QTest::qWaitFor(struck, Patience));
    Touch().release(0, PlaceOf(7, 7, 2), Board()).commit();
    EXPECT_EQ(Selected(), "3/4 ") << "the end of it is no press";
}

TEST_F(BoardTouch, DragStretchesTheSelection)
{
    Touch().press(0, CentreOf(2, 2), Board()).commit();
    Touch().move(0, CentreOf(3, 2), Board()).commit();
    Touch().move(0, CentreOf(3, 3), Board()).commit();
    Touch().release(0, CentreOf(3, 3), Board()).commit();
    EXPECT_EQ(Selected(), "2/2 2/3 3/2 3/3 ");
}

TEST_F(BoardTouch, TrembleIsNoDrag)
{
    const QPoint place = CentreOf(2, 2);
    Touch().press(0, place, Board()).commit();
    Touch().move(0, place + QPoint(2, 1), Board()).commit();
    EXPECT_EQ(Selected(), "");
    Touch().release(0, place, Board()).commit();
    EXPECT_EQ(Selected(), "2/2 ");
}

TEST_F(BoardTouch, IsNoPressWhenTheSystemTakesTheFinger)
{
    Touch().press(0, CentreOf(2, 2), Board()).commit();
    QTouchEvent taken(QEvent::TouchCancel, Screen());
    QApplication::sendEvent(Board(), &taken);
    Touch().release(0, CentreOf(2, 2), Board()).commit();
    EXPECT_EQ(Selected(), "");
}

TEST_F(BoardTouch, TwoFingersAddTheirCells)
{
    Tap(CentreOf(9, 9));
    Touch().press(0, CentreOf(1, 1), Board()).commit();
    // A finger that rests is one that moves to where it is: what tests send tells no place of it
    // else.
    Touch().move(0, CentreOf(1, 1), Board()).press(1, CentreOf(5, 1), Board()).commit();
    Touch().release(0, CentreOf(1, 1), Board()).stationary(1).commit();
    Touch().release(1, CentreOf(5, 1), Board()).commit();
    EXPECT_EQ(Selected(), "1/1 5/1 9/9 ");
}

TEST_F(BoardTouch, AddsItsCellWhileCtrlIsHeld)
{
    Tap(CentreOf(9, 9));
    const HeldKeys keys(Board(), Qt::ControlModifier);
    Tap(CentreOf(1, 1));
    EXPECT_EQ(Selected(), "1/1 9/9 ");
}

TEST_F(BoardTouch, TakesItsCellOutWhileShiftIsHeld)
{
    Touch().press(0, CentreOf(2, 2), Board()).commit();
    Touch().move(0, CentreOf(4, 2), Board()).commit();
    Touch().release(0, CentreOf(4, 2), Board()).commit();
    const HeldKeys keys(Board(), Qt::ShiftModifier);
    Tap(CentreOf(3, 2));
    EXPECT_EQ(Selected(), "2/2 4/2 ");
}

TEST_F(BoardTouch, DragTakesCellsOutWhileShiftIsHeld)
{
    Touch().press(0, CentreOf(1, 1), Board()).commit();
    Touch().move(0, CentreOf(3, 1), Board()).commit();
    Touch().release(0, CentreOf(3, 1), Board()).commit();
    const HeldKeys keys(Board(), Qt::ShiftModifier);
    Touch().press(0, CentreOf(2, 1), Board()).commit();
    Touch().move(0, CentreOf(3, 1), Board()).commit();
    Touch().release(0, CentreOf(3, 1), Board()).commit();
    EXPECT_EQ(Selected(), "1/1 ");
}

TEST_F(BoardTouch, LongOneBesideTheCellsKeepsTheSelectionWhileCtrlIsHeld)
{
    Tap(CentreOf(3, 4));
    HoldAfter(1);
    const QPoint corner(0, 0);
    const HeldKeys keys(Board(), Qt::ControlModifier);
    Touch().press(0, corner, Board()).commit();
    EXPECT_TRUE(QTest::qWaitFor([] { return ClickX == 0 && ClickY == 0; }, Patience));
    EXPECT_EQ(Selected(), "3/4 ");
    Touch().release(0, corner, Board()).commit();
}

TEST_F(BoardTouch, MeansTheKeysThatAreHeldAsTheFingerComesDown)
{
    Tap(CentreOf(9, 9));
    {
        const HeldKeys keys(Board(), Qt::ControlModifier);
        Touch().press(0, CentreOf(1, 1), Board()).commit();
    }
    Touch().release(0, CentreOf(1, 1), Board()).commit();
    EXPECT_EQ(Selected(), "1/1 9/9 ");
}

TEST_F(BoardTouch, TwoFingersAddTheirCellsThoughShiftIsHeld)
{
    Tap(CentreOf(9, 9));
    const HeldKeys keys(Board(), Qt::ShiftModifier);
    Touch().press(0, CentreOf(1, 1), Board()).commit();
    Touch().move(0, CentreOf(1, 1), Board()).press(1, CentreOf(5, 1), Board()).commit();
    EXPECT_EQ(Selected(), "1/1 5/1 9/9 ");
    Touch().release(0, CentreOf(1, 1), Board()).release(1, CentreOf(5, 1), Board()).commit();
}

TEST_F(BoardTouch, TwoFingersAskOnceWhetherToStopASearch)
{
    SearchActive = True;
    SearchKind = SearchingGame;
    const BoxRecord boxes = AnswerBoxes([&] {
        Touch().press(0, CentreOf(3, 4), Board()).commit();
        Touch().move(0, CentreOf(3, 4), Board()).press(1, CentreOf(5, 6), Board()).commit();
    });
    EXPECT_EQ(boxes.Texts, std::vector<std::string>{"Would you like to stop searching?"});
    EXPECT_EQ(Selected(), "");
    SearchActive = False;
    SearchKind = NotStoppable;
}

TEST_F(BoardTouch, SecondOneAtTheSamePlaceKeepsTheNumberAlone)
{
    Tap(PlaceOf(3, 4, 6));
    Tap(PlaceOf(3, 4, 6));
    EXPECT_EQ(WordAt({3, 4}) & CandidateMask, BitTable[6]);
}

TEST_F(BoardTouch, FingerBesideAButtonOfTheToolbarPressesIt)
{
    QWidget *bar = program.Main->Client->Toolbar;
    const QRect view = ToolButtonOf(*program.Main, 14)->geometry();
    const QPoint below(view.center().x(), view.bottom() + 3);
    QTest::touchEvent(bar, Screen(), false).press(0, below, bar).commit();
    EXPECT_EQ(ToolMode, ViewMode);
    QTest::touchEvent(bar, Screen(), false).release(0, below, bar).commit();
    EXPECT_EQ(ToolMode, ViewMode);
}

TEST_F(BoardTouch, FingerOnAButtonOfTheToolbarPressesItOnce)
{
    QPushButton *sign = ToolButtonOf(*program.Main, 11);
    QTest::touchEvent(sign, Screen(), false).press(0, QPoint(5, 5), sign).commit();
    QTest::touchEvent(sign, Screen(), false).release(0, QPoint(5, 5), sign).commit();
    EXPECT_EQ(ToolSign, Add);
}

} // namespace
} // namespace kelvarine::testing
