// The patterns by which cells are taken out of a solved grid: for each cell the partners that go
// and come back with it, and how many cells go before the first test.
#pragma once

#include "grid/houses.h"
#include "grid/range.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace kelvarine {

// Cells that go without a test of uniqueness.
enum class FreeStart : std::uint8_t { None, ThreeCells, OneGroup };

struct RevealPatternRow {
    std::string_view Caption; // on the new-games tab; && shows as one &
    FreeStart Start;
};

inline constexpr std::int32_t PatternCount = 10;
inline constexpr std::int32_t ExposeManually = 8; // the pattern that takes nothing out by itself

inline constexpr Range RevealPatternRange{0, PatternCount - 1};

extern const std::array<RevealPatternRow, PatternCount> RevealPatterns;

// The partners of a cell under a pattern 0..9, itself not among them, at most eight.
std::span<const Cell> PartnersOf(std::int32_t pattern, Cell cell);

} // namespace kelvarine
