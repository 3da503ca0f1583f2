// Fields of candidates drawn at random, in families that are hard for one search or another.
#pragma once

#include "logic/number_board.h"
#include "support/solution_counter.h"

#include <array>
#include <cstdint>
#include <random>
#include <string_view>

namespace kelvarine::testing {

enum class FieldFamily : std::uint8_t {
    Sparse,             // up to 19 givens of a complete grid
    Dense,              // 30 to 79 of them
    OneWrongGiven,      // 12 to 31, one of them any number
    TwoClashingGivens,  // a number twice in a column
    LateContradictions, // givens that only do not clash, mostly without a filling
    Pairs,              // two numbers to a cell, with or without a filling
    PatternedPairs,     // every number of a complete grid with its partner
    ThreeCandidates,    // three or four numbers to a cell, with or without a filling
};

inline constexpr std::array FieldFamilies{
    FieldFamily::Sparse,
    FieldFamily::Dense,
    FieldFamily::OneWrongGiven,
    FieldFamily::TwoClashingGivens,
    FieldFamily::LateContradictions,
    FieldFamily::Pairs,
    FieldFamily::PatternedPairs,
    FieldFamily::ThreeCandidates,
};

// The families of games: one candidate to a given, any number in every other cell.
inline constexpr std::size_t GameFamilies = 5;

std::string_view NameOf(FieldFamily family);

// A field of a family, row by row.
CandidateField DrawField(std::mt19937 &random, FieldFamily family);

// The same in the order of the scan.
Field InScanOrder(const CandidateField &field);

// Puts a field on Grid; a cell with one candidate is a given.
void SetField(const CandidateField &field);

// How many fields a comparison draws: so many, or more where KELVARINE_FIELDS says so.
std::int64_t FieldsToCompare(std::int64_t usual);

} // namespace kelvarine::testing
