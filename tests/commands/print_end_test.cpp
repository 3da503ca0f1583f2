// The end of a printed document, where a question about its file may come up.
#include "board/geometry.h"
#include "commands/print_run.h"
#include "files/game_file.h"
#include "game/game_in_hand.h"
#include "generator/random_source.h"
#include "grid/history.h"
#include "outside/window.h"
#include "print/print_settings.h"
#include "program/program.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

TEST_F(PrintEnd, QuestionAboutTheFileStandsOverTheGameInHand)
{
    WordAt({3, 1}) = (WordAt({3, 1}) & SolutionMask) | BitTable[4];
    PushUndoState();
    const std::string game = GameFileBytes();
    bool asked = false;
    Seen.OnBox = [&] {
        asked = true;
        EXPECT_TRUE(GameFileBytes() == game) << "what is saved now is the player's";
        EXPECT_EQ(GameAside, nullptr);
        EXPECT_EQ(PrintRunning, False);
        cmdPrint();
    };
    ForgetRecord();
    cmdPrint();
    EXPECT_TRUE(asked);
    EXPECT_EQ(Acts(),
              (std::vector<std::string>{"choose printer: ", "search banner: 1", "end document: ",
                                        "board: ", "refresh: ", "hand over document: "}));
    EXPECT_EQ(Seen.EndedDocuments.size(), 1U) << "and no other is begun meanwhile";
}

TEST_F(PrintEnd, ProgramThatIsToldToGoWaitsUntilTheDocumentIsHandedOver)
{
    Seen.LaterDeeds.clear();
    bool asked = false;
    Seen.OnBox = [&] {
        asked = true;
        EXPECT_TRUE(EndMustWait());
        ForgetRecord();
        EXPECT_FALSE(EndProgram());
        EXPECT_TRUE(Acts().empty()) << "one question at a time";
        EXPECT_TRUE(Seen.LaterDeeds.empty());
    };
    cmdPrint();
    EXPECT_TRUE(asked);
    EXPECT_FALSE(EndMustWait());
    EXPECT_FALSE(Seen.LaterDeeds.empty()) << "the window is closed then";
}

TEST_F(PrintEnd, ProgressEndsWithTheLastGame)
{
    Seen.OnYield = [] {
        EXPECT_LE(PrintGameNumber, PrintGameCount);
    };
    cmdPrint();
    EXPECT_EQ(PrintGameNumber, PrintGameCount);
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
