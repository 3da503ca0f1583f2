// The end of a printed document, where a question about its file may come up.
#include "board/geometry.h"
#include "commands/print_run.h"
#include "generator/random_source.h"
#include "grid/history.h"
#include "outside/window.h"
#include "print/print_settings.h"
#include "program/program.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class PrintEnd : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        init_genrand(4711);
        BoardPlace = {0, 0, 500, 500};
        StartSavedGame(EasyGame);
        PrintMode = PrintNewGames;
    }
};

TEST_F(PrintEnd, ProgramThatIsToldToGoOverAQuestionWaitsForTheGameInHand)
{
    WordAt({3, 1}) = (WordAt({3, 1}) & SolutionMask) | BitTable[4];
    PushUndoState();
    const GridTable cells = Grid;
    Seen.LaterDeeds.clear();
    bool asked = false;
    Seen.OnBox = [&] {
        asked = true;
        EXPECT_TRUE(BoardIsAway());
        ForgetRecord();
        EXPECT_FALSE(EndProgram());
        EXPECT_TRUE(Acts().empty()) << "the board is not the game in hand";
    };
    cmdPrint();
    EXPECT_TRUE(asked);
    EXPECT_FALSE(BoardIsAway());
    EXPECT_EQ(Grid, cells);
    EXPECT_FALSE(Seen.LaterDeeds.empty()) << "the window is closed when the game is back";
}

TEST_F(PrintEnd, ProgramThatIsToldToGoDoesSoWhenTheGameInHandCannotBeRated)
{
    WordAt({1, 1}) = BitTable[5] | GivenBit;
    WordAt({2, 1}) = BitTable[5] | GivenBit;
    Seen.LaterDeeds.clear();
    Seen.OnBox = [] {
        EXPECT_FALSE(EndProgram());
        EXPECT_TRUE(Seen.LaterDeeds.empty());
    };
    cmdPrint();
    EXPECT_EQ(GameRating, RatedImpossible);
    ASSERT_EQ(Seen.LaterDeeds.size(), 1U);
    ForgetRecord();
    Seen.LaterDeeds.front()();
    EXPECT_EQ(Acts(), std::vector<std::string>{"window closed: "});
}

} // namespace
} // namespace kelvarine::testing
