// The end of a printed document, where a question about its file may come up.
#include "board/geometry.h"
#include "commands/print_run.h"
#include "game/game_in_hand.h"
#include "generator/random_source.h"
#include "grid/history.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

TEST(PrintEnd, GameInHandIsBackBeforeAnythingIsAsked)
{
    Restart();
    init_genrand(4711);
    BoardPlace = {0, 0, 500, 500};
    StartSavedGame(EasyGame);
    WordAt({3, 1}) = (WordAt({3, 1}) & SolutionMask) | BitTable[4];
    PrintMode = PrintNewGames;
    const GridTable cells = Grid;
    bool asked = false;
    Seen.OnBox = [&] {
        asked = true;
        EXPECT_EQ(Grid, cells);
        EXPECT_EQ(GameAside, nullptr);
        EXPECT_EQ(PrintRunning, False);
    };
    cmdPrint();
    EXPECT_TRUE(asked);
    EXPECT_EQ(Seen.EndedDocuments.size(), 1U);
}

} // namespace
} // namespace kelvarine::testing
