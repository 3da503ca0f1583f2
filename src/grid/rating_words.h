// The ratings of games, which are the levels of techniques too: their numbers, and their words in
// each spelling that a text shows.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kelvarine {

// Values of GameRating. Those from easy to extreme are the levels, the rows of LevelTable.
enum Rating : std::int32_t {
    NotRated,
    RatedEasy,
    RatedMedium,
    RatedHard,
    RatedVeryHard,
    RatedExtreme,
    RatedMultiple, // several solutions
    RatedImpossible,
};

// How many levels there are; they count from 1.
inline constexpr std::int32_t Levels = RatedExtreme;

struct RatingSpelling {
    std::string_view Lower;   // within a sentence
    std::string_view Capital; // alone, as in captions
    std::string_view Title;   // as a heading; levels alone
};

// By rating.
inline constexpr std::array<RatingSpelling, 8> RatingWords{{
    {"none", "None", ""},
    {"easy", "Easy", "Easy"},
    {"medium", "Medium", "Medium"},
    {"hard", "Hard", "Hard"},
    {"very hard", "Very hard", "Very Hard"},
    {"extreme", "Extreme", "Extreme"},
    {"multiple solutions", "Multiple solutions", ""},
    {"impossible", "Impossible", ""},
}};

// Words of a rating; empty for a number that is none.
constexpr RatingSpelling WordsOfRating(std::int32_t rating)
{
    const auto place = static_cast<std::size_t>(rating);
    return place < RatingWords.size() ? RatingWords[place] : RatingSpelling{};
}

} // namespace kelvarine
