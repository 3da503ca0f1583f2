// Game numbers: a number seeds the random stream and so names a game, as long as the settings of
// making are the same.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvarine {

inline constexpr std::int32_t LargestGameNumber = 2147483647;

// 1..LargestGameNumber, or 0 for a game that has none. Kept in the game file.
extern std::int32_t GameNumber;

inline constexpr std::string_view RandomGame = "Random";
inline constexpr std::string_view UserSelected = "User Selected Game";

// Settles GameNumber and seeds the stream with it: drawn for RandomGame, asked of the player for
// UserSelected; any other mode takes the number that stands, and asks when there is none. False,
// with GameNumber as it was, when the player gave up.
bool SelectGameNumber(std::string_view mode);

// Reads a number as far as the text is one: blanks, a sign, digits, a point, digits. Rounded to
// the nearest whole number; 0 when no number stands there.
double TypedNumber(std::string_view text);

} // namespace kelvarine
