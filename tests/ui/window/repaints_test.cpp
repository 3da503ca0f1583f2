// Whatever changes its looks is painted again: a widget that paints itself has nobody else to see
// to it.
#include "configure/tab_places.h"
#include "game/screens.h"
#include "grid/history.h"
#include "input/menu_table.h"
#include "input/mouse.h"
#include "outside/window.h"
#include "support/widget_configure.h"
#include "support/widget_events.h"
#include "support/widget_repaints.h"
#include "ui/configure/tab_strip.h"
#include "ui/controls/level_label.h"
#include "ui/window/board_widget.h"
#include "ui/window/toolbar_widget.h"

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>

namespace kelvarine::testing {
namespace {

class Repaints : public ConfigureTest {
protected:
    void SetUp() override
    {
        ConfigureTest::SetUp();
        Running->Main->tmrSolveTime.stop(); // the clock changes on its own
        flashTime = QApplication::cursorFlashTime();
        QApplication::setCursorFlashTime(0); // a cursor that blinks is a change of its own
    }

    void TearDown() override
    {
        QApplication::setCursorFlashTime(flashTime);
        ConfigureTest::TearDown();
    }

    void ExpectRepaintsAfter(const QString &deed, const std::function<void()> &act) const
    {
        std::vector<QWidget *> windows{Running->Main.get()};
        if (Screen != nullptr) {
            windows.push_back(Screen);
        }
        EXPECT_EQ(WithoutRepaint(windows, act), "") << deed.toStdString();
    }

    // Brings the focus to each control of the screen in turn.
    void ExpectRepaintsOfFocus() const
    {
        Screen->activateWindow();
        for (QWidget *control : Screen->findChildren<QWidget *>()) {
            if (control->isVisible() && control->focusPolicy() != Qt::NoFocus) {
                ExpectRepaintsAfter("focus " + control->objectName(),
                                    [control] { control->setFocus(); });
            }
        }
    }

    void ExpectRepaintsOfControls() const
    {
        for (QWidget *control : Screen->findChildren<QWidget *>()) {
            if (!control->isVisible()) {
                continue;
            }
            ExpectRepaintsAfter(control->objectName(), [control] {
                auto *option = qobject_cast<QRadioButton *>(control);
                if (option != nullptr) {
                    option->click();
                } else {
                    Operate(*control);
                }
            });
        }
    }

private:
    int flashTime = 0;
};

class RepaintsOfTab : public Repaints, public ::testing::WithParamInterface<std::int32_t> {};

TEST_P(RepaintsOfTab, FollowEveryControl)
{
    Open(GetParam());
    ExpectRepaintsOfControls();
}

TEST_P(RepaintsOfTab, FollowTheFocus)
{
    Open(GetParam());
    ExpectRepaintsOfFocus();
}

INSTANTIATE_TEST_SUITE_P(EveryTab, RepaintsOfTab, ::testing::Range(0, TabCount));

TEST_F(Repaints, FollowTheColourThatIsCarriedOver)
{
    Open(ColoursTab);
    ConfigureTest::Click("optTableColors4");
    for (const char *name : {"swatch2", "picColorpal", "tile3"}) {
        ExpectRepaintsAfter(name, [&] {
            QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton, Qt::NoModifier, {20, 10});
        });
    }
}

TEST_F(Repaints, FollowTheTextureOfAColour)
{
    Open(ColoursTab);
    ConfigureTest::Click("optTableColors0");
    for (const char *name : {"tile3", "tile0"}) {
        ExpectRepaintsAfter(name, [&] { QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton); });
    }
}

TEST_F(Repaints, FollowTheChosenPreset)
{
    Open(PresetGridsTab);
    for (const char *name : {"picPresetGrid3", "picPresetGrid0"}) {
        ExpectRepaintsAfter(name, [&] { ConfigureTest::Click(name); });
    }
}

TEST_F(Repaints, FollowTheTabs)
{
    Open(LogicTab);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_End}) {
        ExpectRepaintsAfter("tab", [&] {
            Screen->findChild<TabStrip *>()->setFocus();
            QTest::keyClick(Screen->findChild<TabStrip *>(), key);
        });
    }
}

TEST_F(Repaints, FollowTheBoardOnThePreview)
{
    Open(PrintTab);
    QWidget *board = Running->Main->Client->Board;
    QTest::mouseClick(board, Qt::LeftButton, Qt::NoModifier, CentreOf(3, 1));
    ExpectRepaintsAfter("digit", [board] { QTest::keyClick(board, Qt::Key_4); });
}

// Each entry that is a switch, once there and once back.
TEST_F(Repaints, FollowTheEntriesOfTheMenus)
{
    for (const MenuRow &row : MenuTable) {
        for (std::int32_t number = row.First; row.Checked != nullptr && number <= row.Last;
             ++number) {
            for (int time = 0; time < 2; ++time) {
                ExpectRepaintsAfter(QString::fromStdString(std::string(row.Name)),
                                    [&] { row.Run(number); });
            }
        }
    }
}

TEST_F(Repaints, FollowTheFocusThroughTheToolbar)
{
    Running->Main->activateWindow();
    for (int step = 0; step < 3; ++step) {
        ExpectRepaintsAfter("tabulator", [] { QTest::keyClick(qApp->focusWidget(), Qt::Key_Tab); });
    }
}

TEST_F(Repaints, FollowTheCaptionsOfTheToolbar)
{
    BoardWidget *board = Running->Main->Client->Board;
    board->setFocus();
    const ToolButtonWidget *one = ToolButtonOf(*Running->Main, 1);
    const std::vector<std::pair<Qt::Key, const char *>> signs{{Qt::Key_Shift, "- 1"},
                                                              {Qt::Key_Control, "+ 1"}};
    for (const auto &[key, caption] : signs) {
        ExpectRepaintsAfter("modifier goes down", [&, k = key] { QTest::keyPress(board, k); });
        EXPECT_EQ(one->Caption(), caption);
        ExpectRepaintsAfter("modifier comes up", [&, k = key] { QTest::keyRelease(board, k); });
        EXPECT_EQ(one->Caption(), "1");
    }
}

TEST_F(Repaints, FollowThePointer)
{
    Open(LogicTab);
    std::vector<QWidget *> controls{ToolButtonOf(*Running->Main, 1),
                                    ToolButtonOf(*Running->Main, 2)};
    for (LevelLabel *level : Screen->findChildren<LevelLabel *>().first(3)) {
        controls.push_back(level);
    }
    for (QWidget *control : controls) {
        ExpectRepaintsAfter("pointer", [control] { MovePointerTo(*control); });
        EXPECT_TRUE(control->underMouse()) << control->objectName().toStdString();
    }
}

TEST_F(Repaints, FollowTheWordsOfTheMargin)
{
    ExpectRepaintsAfter("rating", [] {
        GameRating = 2;
        RefreshWindow();
    });
    ExpectRepaintsAfter("size", [] {
        GameRating = 4;
        ResizeWindow();
    });
}

} // namespace
} // namespace kelvarine::testing
