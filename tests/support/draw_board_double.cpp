// The painting of the board as the engine's tests see it: it is only recorded.
#include "outside/board.h"
#include "support/outside_double.h"

namespace kelvarine {

void DrawBoard()
{
    testing::Seen.Calls.emplace_back("board: ");
    ++testing::Seen.BoardPaints;
}

void DrawBanner(std::string_view text)
{
    testing::Seen.Calls.push_back("banner: " + std::string(text));
}

void DrawSearchBanner(std::int32_t count)
{
    testing::Seen.Calls.push_back("search banner: " + std::to_string(count));
}

} // namespace kelvarine
