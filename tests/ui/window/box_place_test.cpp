#include "board/look.h"
#include "outside/messages.h"
#include "support/widget_modal.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"
#include "ui/window/box_place.h"

#include <QDialog>
#include <QScreen>
#include <gtest/gtest.h>

#include <functional>

namespace kelvarine::testing {
namespace {

constexpr QRect Screen{0, 30, 1000, 800}; // under a panel of 30 pixels

TEST(BoxPlace, IsToTheRightWhereThereIsRoom)
{
    EXPECT_EQ(BoxBeside({100, 130, 500, 500}, {392, 100}, Screen), QPoint(608, 329));
}

TEST(BoxPlace, IsToTheLeftWhenTheRightIsOnePixelShort)
{
    EXPECT_EQ(BoxBeside({450, 130, 150, 500}, {393, 100}, Screen), QPoint(49, 329));
}

TEST(BoxPlace, IsBelowWhenNeitherSideHasRoom)
{
    EXPECT_EQ(BoxBeside({300, 130, 400, 500}, {393, 192}, Screen), QPoint(303, 638));
}

TEST(BoxPlace, IsNowhereWhenThereIsNoRoom)
{
    EXPECT_EQ(BoxBeside({300, 130, 400, 500}, {393, 193}, Screen), std::nullopt);
    EXPECT_EQ(BoxBeside({0, 30, 1000, 800}, {1, 1}, Screen), std::nullopt);
}

TEST(BoxPlace, StaysOnTheScreen)
{
    EXPECT_EQ(BoxBeside({0, 30, 100, 100}, {200, 400}, Screen), QPoint(108, 30));
    EXPECT_EQ(BoxBeside({0, 700, 100, 100}, {200, 400}, Screen), QPoint(108, 430));
    EXPECT_EQ(BoxBeside({-50, 30, 900, 300}, {900, 400}, Screen), QPoint(0, 338));
    EXPECT_EQ(BoxBeside({0, 30, 100, 100}, {200, 900}, Screen), QPoint(108, 30))
        << "a box that is too tall starts at the top";
}

// Runs an action that opens a box, and closes it. Where it stood.
QRect PlaceOfBox(const std::function<void()> &action)
{
    QRect place;
    EXPECT_EQ(WhileModal<QDialog>(action,
                                  [&place](QDialog &box) {
                                      place = box.frameGeometry();
                                      box.reject();
                                  }),
              1);
    return place;
}

QRect CellsOnScreen(const Program &program)
{
    const QWidget &board = *program.Main->Client->Board;
    return {board.mapToGlobal(QPoint(0, 0)), board.size()};
}

constexpr const char *Words = "Cell [D9] contains a 3 which conflicts with [D5].";

TEST(BoxPlace, MessagesOpenBesideTheBoard)
{
    const Program program;
    program.Main->resize(300, 380);
    program.Main->move(10, 10);
    QCoreApplication::processEvents();
    const auto isBesideTheBoard = [&](const QRect &place) {
        return place.isValid() && !place.intersects(CellsOnScreen(program)) &&
               program.Main->screen()->availableGeometry().contains(place);
    };
    EXPECT_TRUE(isBesideTheBoard(PlaceOfBox([] { ShowMessage(Words, "Hint"); })));
    EXPECT_TRUE(isBesideTheBoard(PlaceOfBox([] { EXPECT_FALSE(AskYesNo(Words, "Hint")); })));
}

TEST(BoxPlace, MessageWithoutRoomBesideTheWindowCoversItsMarginAndNotTheBoard)
{
    const Program program;
    const QRect screen = program.Main->screen()->availableGeometry();
    MarginThickness = 130;
    const int height = screen.height() - 150;
    program.Main->setGeometry(screen.left(), screen.bottom() - 20 - height, screen.width(), height);
    QCoreApplication::processEvents();
    const QRect place = PlaceOfBox([] { ShowMessage(Words, "Hint"); });
    EXPECT_FALSE(BoxBeside(program.Main->frameGeometry(), place.size(), screen).has_value());
    EXPECT_EQ(place.topLeft(), BoxBeside(CellsOnScreen(program), place.size(), screen));
}

} // namespace
} // namespace kelvarine::testing
