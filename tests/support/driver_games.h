// Games that the tests of the driver run on, with what is known of them.
#pragma once

#include "logic/technique_masks.h"
#include "support/solution_counter.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace kelvarine::testing {

// Techniques by their bits.
inline constexpr std::uint32_t NakedSingleBit = MaskOf({NakedSingle});
inline constexpr std::uint32_t HiddenSingleBit = MaskOf({HiddenSingle});

// Naked singles alone solve it.
inline constexpr std::string_view PlainGame = R"(
    ...31...5
    .3..24...
    7...5.6..
    478.9..2.
    .2.......
    5.34..981
    .9...12..
    .....8.79
    .54.....3
)";

inline constexpr std::string_view PlainSolution =
    "982316745635724198741859632478195326129683457563472981897531264316248579254967813";

inline constexpr std::string_view NeedsBothSingles = R"(
    2...5.4.8
    ...8.1..6
    ..3..9...
    7.2..4.19
    ..5......
    ...7..56.
    .2......1
    .8.1.7.5.
    ....8692.
)";

// Singles alone leave fifty cells of this game open; it has one solution.
inline constexpr std::string_view HardGame = R"(
    ..31.7...
    ..7....98
    .5.6..1..
    ..2.4...7
    1..9.....
    ........1
    .6.7...59
    2...5..6.
    .3.......
)";

inline constexpr std::string_view TwoSolutions = R"(
    7.9.85...
    ...2.....
    ....1..3.
    1......42
    6..12.895
    ....53.7.
    4.3.6..8.
    ..8.41...
    .27.3...4
)";

inline constexpr std::string_view ThreeSolutions = R"(
    5....69..
    ...97..3.
    .6.34.781
    ..2......
    .5.8.9.7.
    6.4......
    .175.3...
    ......159
    92...8..7
)";

inline constexpr std::string_view TwentyFiveSolutions = R"(
    .4813.259
    23.4..8..
    .5628...3
    ....2.9..
    3.5.6...1
    49..1....
    ..3.4.5..
    .......9.
    .7.....3.
)";

inline constexpr std::string_view TwentySixSolutions = R"(
    8.6......
    ......8..
    ..1.8.57.
    ...4...2.
    .3..579.6
    7.93.64..
    .4.8...95
    5189..7..
    .2.....18
)";

inline constexpr std::string_view ThirtySolutions = R"(
    ..96..17.
    6.8..1...
    7.1.....6
    1..2....5
    ...1.792.
    9..5.....
    .....2.4.
    .9..3.6.7
    ...416..8
)";

// The givens do not clash, but no number is left for A1.
inline constexpr std::string_view NoSolution = R"(
    .12345678
    .........
    .........
    .........
    9........
    .........
    .........
    .........
    .........
)";

// Row 1 repeats the 1 and lacks 8 and 9, so its last cell is found at every pass. No other cell
// has candidates.
inline constexpr std::string_view RepeatAmongEight = R"(
    11234567.
    .........
    .........
    .........
    .........
    .........
    .........
    .........
    .........
)";

// The same, and neither of the missing numbers can stay in J1.
inline constexpr std::string_view RepeatAmongEightBlocked = R"(
    11234567.
    .........
    .........
    .........
    ........8
    ........9
    .........
    .........
    .........
)";

// The numbers of a solution as a line.
inline std::string LineOf(const Solution &solution)
{
    std::string line;
    for (const std::uint8_t number : solution) {
        line += std::to_string(number);
    }
    return line;
}

// Removes the blanks of a drawing.
inline std::string Squeezed(std::string_view drawing)
{
    std::string line;
    std::ranges::copy_if(drawing, std::back_inserter(line), [](char mark) { return mark > ' '; });
    return line;
}

} // namespace kelvarine::testing
