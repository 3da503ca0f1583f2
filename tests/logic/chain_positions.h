// Random positions for the tests of the chain searches: sound ones as they come up in the middle
// of a game, sound ones rich in cells with two candidates, and absurd ones.
#pragma once

#include "grid/grid.h"

#include <algorithm>
#include <bit>
#include <random>

namespace kelvarine::testing::chains {

using Random = std::mt19937;

inline int Below(Random &random, int count)
{
    return static_cast<int>(random() % static_cast<unsigned>(count));
}

inline bool Chance(Random &random, int percent)
{
    return Below(random, 100) < percent;
}

inline CellWord RandomNumber(Random &random, CellWord from)
{
    for (int skip = Below(random, CandidatesIn(from)); skip > 0; --skip) {
        from &= from - 1;
    }
    return from & (~from + 1);
}

// Leaves one number in each cell so that all houses hold all nine. Grid holds all candidates.
inline bool FillGrid(Random &random)
{
    const Cell *best = nullptr;
    for (const Cell &cell : Cells) {
        const int count = CandidatesIn(WordAt(cell));
        const bool open = (WordAt(cell) & ScratchMark3) == 0;
        if (open && (best == nullptr || count < CandidatesIn(WordAt(*best)))) {
            best = &cell;
        }
    }
    if (best == nullptr) {
        return true;
    }
    const GridTable before = Grid;
    CellWord left = WordAt(*best) & CandidateMask;
    while (left != 0) {
        const CellWord number = RandomNumber(random, left);
        left &= ~number;
        for (const Cell cell : Cells) {
            if (ArePeers(*best, cell)) {
                WordAt(cell) &= ~number;
            }
        }
        WordAt(*best) = number | ScratchMark3;
        if (FillGrid(random)) {
            return true;
        }
        Grid = before;
    }
    return false;
}

// A random solved grid, one number in each cell and nothing else.
inline GridTable RandomSolution(Random &random)
{
    Grid = {};
    FillPencilmarks();
    FillGrid(random);
    ClearCellBits(ScratchMarks);
    return Grid;
}

// Keeps some numbers of the solution, most of them as givens, pencils the other cells by them and
// takes out some wrong candidates.
inline void MakeMidGame(Random &random)
{
    const GridTable solution = RandomSolution(random);
    const int keep = 25 + Below(random, 50);
    const int takeOut = Below(random, 60);
    for (const Cell cell : Cells) {
        const bool kept = Chance(random, keep);
        const CellWord given = Chance(random, 80) ? GivenBit : 0;
        WordAt(cell) = kept ? solution[cell.Column][cell.Row] | given : CandidateMask;
    }
    const GridTable placed = Grid;
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        const CellWord right = solution[cell.Column][cell.Row];
        if (CandidatesIn(word) == 1) {
            continue;
        }
        for (const Cell other : Cells) {
            const CellWord number = placed[other.Column][other.Row];
            if (ArePeers(cell, other) && CandidatesIn(number) == 1) {
                word &= ~(number & CandidateMask);
            }
        }
        for (CellWord rest = word; rest != 0; rest &= rest - 1) {
            const CellWord number = rest & (~rest + 1);
            if (number != right && Chance(random, takeOut)) {
                word &= ~number;
            }
        }
    }
}

// Gives most cells the right number and one of a few wrong ones.
inline void MakePairRich(Random &random)
{
    const GridTable solution = RandomSolution(random);
    const int pairs = 20 + Below(random, 75);
    const CellWord wrong = static_cast<CellWord>(random()) & CandidateMask;
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        word = solution[cell.Column][cell.Row];
        const int others = Chance(random, pairs) ? 1 : Below(random, 5);
        for (int k = 0; k < others; ++k) {
            word |= RandomNumber(random, wrong != 0 ? wrong : CandidateMask);
        }
        if (others == 0 && Chance(random, 50)) {
            word |= GivenBit;
        }
    }
}

// One of the numbers 1 up to a highest one.
inline CellWord NumberUpTo(Random &random, int highest)
{
    return BitTable[static_cast<std::size_t>(1 + Below(random, highest))];
}

// Two of the numbers from 1 to a highest one in most cells, in some percent of them three and in
// some one or none: as a rule the grid contradicts itself many times, and there are more chains
// than anyone could walk along.
inline void MakePairsUpTo(Random &random, int highest, int threes, int fewer)
{
    for (const Cell cell : Cells) {
        const int count = Chance(random, fewer) ? Below(random, 2) : Chance(random, threes) ? 3 : 2;
        CellWord &word = WordAt(cell);
        word = 0;
        while (CandidatesIn(word) < std::min(count, highest)) {
            word |= NumberUpTo(random, highest);
        }
    }
}

inline void MakeContradictoryPairs(Random &random)
{
    const int highest = 2 + Below(random, 5);
    const int threes = Chance(random, 50) ? 0 : Below(random, 60);
    MakePairsUpTo(random, highest, threes, Chance(random, 40) ? 0 : Below(random, 40));
}

// The numbers of two solutions laid over each other, with a few cells of three numbers and a few
// wrong numbers: long chains, many of them without anything to hit.
inline void MakeTwoSolutions(Random &random)
{
    const GridTable one = RandomSolution(random);
    const GridTable other = RandomSolution(random);
    const int more = Below(random, 30);
    const int wrong = Chance(random, 50) ? 0 : Below(random, 20);
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        word = one[cell.Column][cell.Row] | other[cell.Column][cell.Row];
        word |= Chance(random, more) ? RandomNumber(random, CandidateMask) : 0;
        if (Chance(random, wrong)) {
            word = NumberUpTo(random, 9);
            word |= NumberUpTo(random, 9);
        }
    }
}

// Random words in all 32 bits, the candidates thinned out to some degree.
inline void MakeAbsurd(Random &random)
{
    const int thin = Below(random, 4);
    const CellWord numbers = Chance(random, 50) ? CandidateMask : static_cast<CellWord>(random());
    const int givens = Below(random, 101);
    for (const Cell cell : Cells) {
        auto word = static_cast<CellWord>(random());
        for (int k = 0; k < thin; ++k) {
            word &= ~(static_cast<CellWord>(random()) & CandidateMask);
        }
        word &= ~CandidateMask | numbers;
        WordAt(cell) = Chance(random, givens) ? word & ~GivenBit : word;
    }
}

// Leaves one number in some cells, so that there are many strong links, and a few givens.
inline void MakeOneNumber(Random &random)
{
    const int percent = 15 + Below(random, 25);
    const int givens = Chance(random, 50) ? 0 : 5;
    for (const Cell cell : Cells) {
        WordAt(cell) = BitTable[2] | BitTable[3] | BitTable[4];
        if (Chance(random, percent)) {
            WordAt(cell) |= BitTable[1] | (Chance(random, givens) ? GivenBit : 0);
        }
    }
}

// Random bits outside of the candidates and the given mark, as a player's game gathers them.
inline void AddMarks(Random &random)
{
    const int percent = Chance(random, 50) ? 0 : Below(random, 60);
    for (const Cell cell : Cells) {
        if (Chance(random, percent)) {
            WordAt(cell) |= static_cast<CellWord>(random()) & ~(CandidateMask | GivenBit);
        }
    }
}

} // namespace kelvarine::testing::chains
