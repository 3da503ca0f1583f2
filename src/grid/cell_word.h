// The word that holds the whole state of one cell, and the masks that take it apart.
//
//   31   28 27   24 23 22 21 20 19      11 10 9        1 0
//  +-------+-------+--+--+--+--+----------+--+----------+-+
//  |scratch|colour |  |d |h |a | solution |s |candidates|g|
//  +-------+-------+--+--+--+--+----------+--+----------+-+
//
//  g given, s selected, a alert, h hint cell, d hint domain. Candidate n is bit n, the solution
//  n is bit n + 10. Bit 23 has no use.
#pragma once

#include <array>
#include <cassert>
#include <cstdint>

namespace kelvarine {

using CellWord = std::uint32_t;

// Truth values that cross files and contracts: all bits set, or none.
using Flag = std::int32_t;
inline constexpr Flag True = -1;
inline constexpr Flag False = 0;

constexpr Flag FlagOf(bool truth)
{
    return truth ? True : False;
}

inline constexpr CellWord GivenBit = 0x1;
inline constexpr CellWord CandidateMask = 0x3FE;
inline constexpr CellWord SelectedBit = 0x400;
inline constexpr CellWord SolutionMask = 0xFF800;
inline constexpr CellWord AlertBit = 0x100000;
inline constexpr CellWord HintCellBit = 0x200000;
inline constexpr CellWord HintDomainBit = 0x400000;
inline constexpr CellWord CellColour = 0xF000000;
inline constexpr CellWord ScratchMark0 = 0x10000000;
inline constexpr CellWord ScratchMark1 = 0x20000000;
inline constexpr CellWord ScratchMark2 = 0x40000000;
inline constexpr CellWord ScratchMark3 = 0x80000000;
inline constexpr CellWord ScratchMarks = ScratchMark0 | ScratchMark1 | ScratchMark2 | ScratchMark3;

// Shifts that bring a field down to its plain value: SolutionMask to the shape of CandidateMask,
// CellColour to 0..15.
inline constexpr int SolutionShift = 10;
inline constexpr int ColourShift = 24;

// The combinations that ClearCellBits is called with.
inline constexpr CellWord PassMarks = ScratchMarks | SelectedBit;
inline constexpr CellWord ScanMarks = ScratchMarks | AlertBit;
inline constexpr CellWord SelectionMarks = HintDomainBit | HintCellBit | SelectedBit;
inline constexpr CellWord SolvedMarks = ScratchMarks | CellColour | AlertBit | SelectionMarks;

static_assert((GivenBit ^ CandidateMask ^ SelectedBit ^ SolutionMask ^ AlertBit ^ HintCellBit ^
               HintDomainBit ^ CellColour ^ ScratchMarks) == 0xFF7FFFFF,
              "the fields of the word overlap or leave it");
static_assert((GivenBit | CandidateMask | SelectedBit | SolutionMask | AlertBit | HintCellBit |
               HintDomainBit | CellColour | ScratchMarks) == 0xFF7FFFFF,
              "the fields of the word do not fill it");
static_assert(PassMarks == 0xF0000400 && ScanMarks == 0xF0100000 && SelectionMarks == 0x600400 &&
              SolvedMarks == 0xFF700400);
static_assert(CandidateMask << SolutionShift == SolutionMask);

// BitTable[n] is 2 to the power n: the bit of candidate n and of technique n. n is 0..31.
inline constexpr auto BitTable = [] {
    std::array<std::uint32_t, 32> bits{};
    for (std::uint32_t n = 0; n < bits.size(); ++n) {
        bits[n] = std::uint32_t{1} << n;
    }
    return bits;
}();

// The bit of a number, a technique or a level, 0..31.
constexpr std::uint32_t BitOf(std::int32_t n)
{
    assert(n >= 0 && n < 32);
    return BitTable[static_cast<std::size_t>(n)];
}

// Number of candidates by a word's candidate field; see CandidatesIn.
inline constexpr auto CandidateCounts = [] {
    std::array<std::int8_t, 512> counts{};
    for (std::uint32_t mask = 1; mask < counts.size(); ++mask) {
        counts[mask] = static_cast<std::int8_t>(counts[mask / 2] + static_cast<int>(mask % 2));
    }
    return counts;
}();

// Number of candidates, 0..9, in a word or mask; bits outside CandidateMask do not count.
constexpr int CandidatesIn(CellWord word)
{
    return CandidateCounts[(word & CandidateMask) >> 1];
}

// Lowest candidate of a word or mask as a number 1..9, or 0 when it has none.
constexpr int LowestCandidate(CellWord word)
{
    const CellWord candidates = word & CandidateMask;
    return candidates == 0 ? 0 : CandidatesIn((candidates & (~candidates + 1)) - 1) + 1;
}

// The number of a cell's solution as a candidate; 0 where none is known.
constexpr CellWord SolutionOf(CellWord word)
{
    return (word & SolutionMask) >> SolutionShift;
}

// Makes a cell the given that its solution says.
constexpr void ShowDigit(CellWord &word)
{
    word = (word & ~CandidateMask) | SolutionOf(word) | GivenBit;
}

} // namespace kelvarine
