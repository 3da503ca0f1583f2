#include "support/random_grids.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kelvarine::testing {

namespace {

using Digits = std::array<std::array<std::uint32_t, 10>, 10>;

std::uint32_t Below(std::mt19937 &random, std::uint32_t bound)
{
    return static_cast<std::uint32_t>(random() % bound);
}

// The nine lines in an order that keeps the bands together.
std::array<std::uint32_t, 9> ShuffledLines(std::mt19937 &random)
{
    std::array<std::uint32_t, 3> bands{0, 1, 2};
    std::shuffle(bands.begin(), bands.end(), random);
    std::array<std::uint32_t, 9> lines{};
    for (std::size_t band = 0; band < 3; ++band) {
        std::array<std::uint32_t, 3> inside{0, 1, 2};
        std::shuffle(inside.begin(), inside.end(), random);
        for (std::size_t k = 0; k < 3; ++k) {
            lines[band * 3 + k] = bands[band] * 3 + inside[k];
        }
    }
    return lines;
}

// A solved grid: a regular one with its digits, lines and bands shuffled.
Digits SolvedDigits(std::mt19937 &random)
{
    std::array<std::uint32_t, 9> names{};
    std::iota(names.begin(), names.end(), 1U);
    std::shuffle(names.begin(), names.end(), random);
    const auto columns = ShuffledLines(random);
    const auto rows = ShuffledLines(random);
    const bool turned = Below(random, 2) == 0;
    Digits digits{};
    for (std::size_t c = 0; c < 9; ++c) {
        for (std::size_t r = 0; r < 9; ++r) {
            const std::uint32_t name = names[(rows[r] * 3 + rows[r] / 3 + columns[c]) % 9];
            (turned ? digits[r + 1][c + 1] : digits[c + 1][r + 1]) = name;
        }
    }
    return digits;
}

void TakePlacedNumbersOut(const GridTable &start)
{
    for (const Cell cell : Cells) {
        for (const Cell other : Cells) {
            const CellWord number = start[other.Column][other.Row] & CandidateMask;
            if (ArePeers(cell, other) && CandidatesIn(number) == 1 &&
                CandidatesIn(start[cell.Column][cell.Row]) != 1) {
                WordAt(cell) &= ~number;
            }
        }
    }
}

} // namespace

void SetSoundPosition(std::mt19937 &random, Pencilmarks marks)
{
    const Digits digits = SolvedDigits(random);
    const std::uint32_t givens = 17 + Below(random, 24);
    const std::uint32_t placed = Below(random, 20);
    const std::uint32_t thinning = Below(random, 70);
    Grid = {};
    for (const Cell cell : Cells) {
        const CellWord number = BitTable[digits[cell.Column][cell.Row]];
        const std::uint32_t kind = Below(random, 81);
        WordAt(cell) = kind < givens            ? number | GivenBit
                       : kind < givens + placed ? number
                                                : CandidateMask;
        WordAt(cell) |= number << SolutionShift;
    }
    if (marks == Pencilmarks::Clean) {
        TakePlacedNumbersOut(GridTable(Grid));
    }
    for (const Cell cell : Cells) {
        for (std::size_t number = 1; number <= 9; ++number) {
            if (number != digits[cell.Column][cell.Row] && Below(random, 100) < thinning) {
                WordAt(cell) &= ~BitTable[number];
            }
        }
    }
}

void SetAbsurdPosition(std::mt19937 &random)
{
    const std::uint32_t thinning = Below(random, 6);
    const std::uint32_t empties = Below(random, 3) == 0 ? 10 + Below(random, 60) : 1000;
    const std::uint32_t givens = 1 + Below(random, 8);
    const CellWord allowed =
        Below(random, 3) == 0 ? static_cast<CellWord>(random()) | ~CandidateMask : ~CellWord{0};
    Grid = {};
    for (const Cell cell : Cells) {
        auto word = static_cast<CellWord>(random());
        for (std::uint32_t pass = 0; pass < thinning; ++pass) {
            word &= static_cast<CellWord>(random()) | ~CandidateMask;
        }
        word = Below(random, givens) == 0 ? word | GivenBit : word & ~GivenBit;
        WordAt(cell) = Below(random, empties) == 0 ? word & ~CandidateMask : word & allowed;
    }
}

void ScatterBits(std::mt19937 &random, CellWord bits, unsigned oneIn)
{
    for (const Cell cell : Cells) {
        if (Below(random, oneIn) == 0) {
            WordAt(cell) |= bits;
        }
    }
}

} // namespace kelvarine::testing
