// The game in one table: the grid of cell words, and the tables and settings that every room
// shares. All of it is global and single, for one game, one player and one thread.
#pragma once

#include "grid/cell_word.h"
#include "grid/houses.h"
#include "grid/range.h"
#include "grid/rating_words.h"

#include <array>
#include <cassert>
#include <cstdint>
#include <string>

namespace kelvarine {

// One grid, indexed [column][row], both 1..9; line 0 of either exists and is not used.
using GridTable = std::array<std::array<CellWord, 10>, 10>;

// ---- The game: whole in the game file ---------------------------------------

extern GridTable Grid; // starts empty

extern std::int32_t GivenCount; // cells with GivenBit; kept by CountGivens
extern std::int32_t GameRating; // one of Rating

// ---- The session: reset by a new game, never stored ----------------------------------------

// A series of cells: element 0 of ChainColumns is its length, 0 for none; element 0 of ChainRows
// tells how the board reads it: 0 a plain path, N a chain on number N, -N an XY chain on N.
// Elements 1 up also serve the techniques as a work list, with element 0 left at 0.
extern std::array<std::int32_t, 82> ChainColumns;
extern std::array<std::int32_t, 82> ChainRows;
extern CellWord NumberFilter; // numbers in view, in the shape of CandidateMask

// ---- One run of the logic ------------------------------------------------------------------

extern std::uint32_t UsedMask;     // techniques that the last run of the driver used
extern std::int32_t SolutionCount; // solutions that the last run found
extern std::string SolutionList;   // 81 digits for each solution, cleared by the caller
extern Flag SearchActive;          // true while the driver runs; cleared from outside to stop it
extern std::string HintText;       // words of the last technique in a reporting mode
extern std::string HintTitle;

// ---- Settings: whole in the configuration file ---------------------------------------------

extern std::uint32_t SolveMask; // techniques that the driver may use, by BitTable
extern std::uint32_t AlertMask; // techniques that the alert scan runs
// Rows 1..Levels: the techniques of the levels; RequiredRow: those a new game must use.
extern std::array<std::uint32_t, 10> LevelTable;
inline constexpr std::size_t RequiredRow = 6;
inline constexpr Range LinkLimitRange{0, 81}; // the default is the most
extern std::int32_t MaxSinglesLinks;          // link limits of the chain searches
extern std::int32_t MaxRPLinks;
extern std::int32_t MaxXYLinks;
extern Flag IncludeSingles; // group techniques take cells with one candidate in

// ---- Operations ----------------------------------------------------------------------------

// Puts everything declared in this header and in names.h back to the state of program start. The
// levels follow from the techniques: LevelTable is left empty for SetLevelDefaults.
void SetGridDefaults();

// The word of a cell.
inline CellWord &WordAt(Cell cell)
{
    assert(cell.Column <= 9 && cell.Row <= 9);
    return Grid[cell.Column][cell.Row];
}

// The candidates of a cell as a mask.
inline CellWord CandidatesOf(Cell cell)
{
    return WordAt(cell) & CandidateMask;
}

// Number of candidates, 0..9, of the cell at column and row, both 1..9.
int CountCandidates(int column, int row);

// Clears the bits of mask in all 81 cells.
void ClearCellBits(CellWord mask);

// Gives all nine candidates to every cell that is not a given.
void FillPencilmarks();

// Counts GivenCount anew.
void CountGivens();

// True when every cell holds one number and every column, row and box holds all nine.
Flag IsGridSolved();

// Copies the 81 cells of one grid to another and leaves its unused lines as they are.
void CopyCells(const GridTable &from, GridTable &to);

} // namespace kelvarine
