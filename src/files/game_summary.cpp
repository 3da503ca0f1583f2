#include "files/game_summary.h"

#include "files/game_file.h"
#include "game/game_in_hand.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "outside/board.h"

#include <memory>

namespace kelvarine {

namespace {

// What reading and rating change beside the game itself, put back at the end of a scope.
struct KeptResults {
    KeptResults() = default;
    KeptResults(const KeptResults &) = delete;
    KeptResults &operator=(const KeptResults &) = delete;
    ~KeptResults()
    {
        GivenCount = givens;
        GameRating = rating;
        SolutionCount = solutions;
        UsedMask = used;
    }

private:
    decltype(GivenCount) givens = GivenCount;
    decltype(GameRating) rating = GameRating;
    decltype(SolutionCount) solutions = SolutionCount;
    decltype(UsedMask) used = UsedMask;
};

std::optional<GameSummary> Summarise(std::string_view contents)
{
    GameSummary summary;
    if (!ReadCells(contents, summary.Seconds)) {
        return std::nullopt;
    }
    CountGivens();
    summary.Cells = Grid;
    summary.Givens = GivenCount;
    RateGame();
    summary.Rating = GameRating;
    return summary;
}

// The cells alone, while another game than the one in hand is on the board.
std::optional<GameSummary> SummariseUnrated(std::string_view contents)
{
    const GridTable cells = Grid;
    const GridTable safeCopy = History[SafeCopySlot];
    const KeptResults kept;
    GameSummary summary;
    const bool isGame = ReadCells(contents, summary.Seconds);
    if (isGame) {
        CountGivens();
        summary.Cells = Grid;
        summary.Givens = GivenCount;
    }
    Grid = cells;
    History[SafeCopySlot] = safeCopy;
    return isGame ? std::optional(summary) : std::nullopt;
}

} // namespace

std::optional<GameSummary> SummaryOf(std::string_view contents)
{
    if (GameAside != nullptr || RunUnderWay != False) {
        return SummariseUnrated(contents);
    }
    const KeptResults kept;
    const auto game = std::make_unique<GameInHand>();
    const std::optional<GameSummary> summary = Summarise(contents);
    const Flag modified = GameModified; // the game's own file may have been deleted meanwhile
    GiveBack(*game);
    GameModified = modified;
    // A long run has painted the other game when it took its banner down, and whoever else wanted
    // to paint was refused meanwhile.
    DrawBoard();
    return summary;
}

} // namespace kelvarine
