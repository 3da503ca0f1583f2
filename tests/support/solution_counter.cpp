#include "support/solution_counter.h"

#include <array>
#include <bit>
#include <cstddef>

namespace kelvarine::testing {

namespace {

struct Board {
    std::array<unsigned, 9> Rows{};
    std::array<unsigned, 9> Columns{};
    std::array<unsigned, 9> Boxes{};
    std::array<bool, 81> Filled{};

    [[nodiscard]] unsigned Free(std::size_t place) const
    {
        return 0x1FFU & ~(Rows[place / 9] | Columns[place % 9] | Boxes[BoxOf(place)]);
    }

    void Toggle(std::size_t place, unsigned bit)
    {
        Rows[place / 9] ^= bit;
        Columns[place % 9] ^= bit;
        Boxes[BoxOf(place)] ^= bit;
        Filled[place] = !Filled[place];
    }

    static std::size_t BoxOf(std::size_t place)
    {
        return place / 27 * 3 + place % 9 / 3;
    }
};

int Count(Board &board, int limit)
{
    std::size_t best = 81;
    int fewest = 10;
    for (std::size_t place = 0; place < 81; ++place) {
        if (!board.Filled[place]) {
            const int choices = std::popcount(board.Free(place));
            if (choices < fewest) {
                fewest = choices;
                best = place;
            }
        }
    }
    if (best == 81) {
        return 1;
    }
    int found = 0;
    for (unsigned free = board.Free(best); free != 0 && found < limit; free &= free - 1) {
        const unsigned bit = free & (~free + 1);
        board.Toggle(best, bit);
        found += Count(board, limit - found);
        board.Toggle(best, bit);
    }
    return found;
}

} // namespace

int CountSolutionsOf(std::string_view marks, int limit)
{
    Board board;
    for (std::size_t place = 0; place < 81; ++place) {
        if (marks[place] != '.') {
            const unsigned bit = 1U << static_cast<unsigned>(marks[place] - '1');
            if ((board.Free(place) & bit) == 0) {
                return 0;
            }
            board.Toggle(place, bit);
        }
    }
    return Count(board, limit);
}

} // namespace kelvarine::testing
