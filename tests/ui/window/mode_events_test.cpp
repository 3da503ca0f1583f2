#include "input/number_keys.h"
#include "input/toolbar.h"
#include "support/widget_events.h"
#include "support/widget_listener.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"
#include "ui/window/teller.h"

#include <QAccessible>
#include <QtTest>
#include <gtest/gtest.h>

#include <set>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

// What tools are told when the numbers of the toolbar get another meaning.
class ModeEvents : public ::testing::Test {
protected:
    void SetUp() override
    {
        program.Main->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(program.Main.get(), Patience));
        program.Main->Client->Board->setFocus();
    }

    void Press(int index) const
    {
        QAccessible::queryAccessibleInterface(ToolButtonOf(*program.Main, index))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
    }

    // From here on changes are told; what there is already is not.
    static void BeginToListen(Listener &listener)
    {
        TellChanges();
        listener.Heard();
    }

    Program program;
};

TEST_F(ModeEvents, HighlightModeIsToldInThree)
{
    Listener listener;
    BeginToListen(listener);
    Press(EditButton);
    EXPECT_EQ(listener.Heard(),
              (Texts{"NameChanged Frz", "NameChanged Highlight", "ObjectShow mode: Highlight"}));
}

// From every mode by every button, with each sign that can be set there.
TEST_F(ModeEvents, NoChangeOfTheModeTakesMoreThanThree)
{
    Listener listener;
    BeginToListen(listener);
    std::set<std::int32_t> modes;
    for (int round = 0; round < 5; ++round) {
        for (const int index : {EditButton, SelectButton, ViewButton, SelectButton, SelectButton,
                                EditButton, EditButton, ViewButton, EditButton, SelectButton}) {
            Press(index);
            const Texts heard = listener.Heard();
            EXPECT_LE(heard.size(), 3U) << ::testing::PrintToString(heard);
            modes.insert(ToolMode);
            for (int sign = 0; sign < round % 3; ++sign) {
                Press(SignButton);
                EXPECT_LE(listener.Heard().size(), 3U);
            }
        }
    }
    EXPECT_EQ(modes.size(), 7U) << "all of them have been";
}

TEST_F(ModeEvents, KeyOnAFocusedButtonTakesNoMoreThanThree)
{
    Listener listener;
    BeginToListen(listener);
    // The last but one leaves the highlight mode, in which there is no sign.
    for (const int index :
         {EditButton, SelectButton, ViewButton, EditButton, EditButton, SignButton}) {
        ToolButtonWidget *button = ToolButtonOf(*program.Main, index);
        button->setFocus(Qt::TabFocusReason);
        listener.Heard();
        QTest::keyClick(button, Qt::Key_Space);
        const Texts heard = listener.Heard();
        EXPECT_GE(heard.size(), 1U);
        EXPECT_LE(heard.size(), 3U) << ::testing::PrintToString(heard);
    }
}

} // namespace
} // namespace kelvarine::testing
