// The examples of the help: what the game says on a position, on its own or by one technique alone,
// and what a position that looks like a technique would need to be one.
#pragma once

#include "grid/cell_word.h"
#include "grid/houses.h"
#include "logic/technique_table.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine {

// A position of a page: the text of its first, second and so on <pre>, by which from 1. Empty when
// it has none.
std::string PositionOf(std::string_view page, int which);

// What its <pre> says in an attribute; empty when it says nothing.
std::string PositionAttribute(std::string_view page, int which, const std::string &name);

// What a position lacks to show a technique: that a number is gone from the pencilmarks of a cell,
// or stands in an empty one.
struct Supposition {
    Cell Where;
    int Number; // 1..9; 0 for none
};

inline constexpr Supposition NothingSupposed{MakeCell(1, 1), 0};

// Name of a cell as the pages write it, such as "E4".
std::string ShortName(Cell cell);

// Reads "E4 7", a cell and a number; none where it is no such text.
Supposition SuppositionOf(std::string_view text);

// The same as a text.
std::string TextOf(const Supposition &supposed);

// Puts a supposition on Grid.
void Suppose(const Supposition &supposed);

// Leaves one technique to the hints, or all of them again.
void HintBy(std::int32_t technique);
void HintByAll();

// The cell that is selected; there must be one.
Cell SelectedCell();

// The words of a stage, 3..5, of the first hint on Grid, with line ends as blanks; empty when there
// is none. The marks of stage 5 stay on Grid.
std::string HintWords(std::int32_t stage);

// The technique of the first hint on Grid; 0 when there is none.
std::int32_t TechniqueOfHint();

// The technique whose page of the help has this name; null when none has.
const TechniqueRow *TechniqueOfPage(std::string_view page);

// ---- Games that are played along with a lesson -------------------------------------------------

// The mask of techniques named by their pages, parted by blanks.
std::uint32_t MaskOfPages(const std::string &pages);

// Their captions on the Logic tab, parted by commas.
std::string CaptionsOf(std::uint32_t mask);

// Fills in all pencilmarks and applies the techniques of a mask, as key 0 and Ctrl+L do.
void FillAndApply(std::uint32_t mask);

// The pencilmarks that the words of a whole hint of a technique take from a cell.
CellWord StruckByHint(Cell cell, std::int32_t technique);

// A step that a hint tells, and what the player strikes out after it.
struct WalkStep {
    std::string Title;
    std::string Words;
    std::vector<Supposition> Struck;
};

// Plays Grid to its end: asks for a hint, strikes out what it says, and applies the techniques of a
// mask, over and over. Grid is solved, or hints or the most steps have come to an end.
std::vector<WalkStep> Walk(std::uint32_t mask, std::size_t most);

} // namespace kelvarine
