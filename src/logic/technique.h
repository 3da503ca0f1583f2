// What all techniques share: the modes that they are called with, what happens at a target in
// each mode, and the words and marks of houses.
//
// A technique is an operation (mode, found, ...). It searches in an order that a faster search must
// keep, since it decides what the player is told first, and hands over at every target of a
// conclusion to ActOnTarget, which does what the mode asks for and says whether the call is over.
// Mode 0 alone writes found, and only as true. Scratch marks belong to a technique during its call
// and may be left set.
#pragma once

#include "grid/grid.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kelvarine {

inline constexpr std::int32_t ModeChange = 0;      // change the grid
inline constexpr std::int32_t ModeAlert = 1;       // mark the contradicted cells
inline constexpr std::int32_t ModeExplain = 2;     // explain the alert on the selected cell
inline constexpr std::int32_t ModeTeaser = 3;      // first hint stage: one line
inline constexpr std::int32_t ModeTeaserPlace = 4; // second hint stage: the line and where
inline constexpr std::int32_t ModeFull = 5;        // third hint stage: everything

// What a technique does at one target, by mode. The four callables say what is the technique's
// own: change(target word) takes the conclusion into the grid; tease() writes the one-line teaser
// to HintText; locate() appends the second line; explain() writes title, words and marks. Returns
// true when the call is over and the technique must return. A target in mode 5 gets SelectedBit
// before explain runs.
template <typename Change, typename Tease, typename Locate, typename Explain>
[[nodiscard]] inline bool ActOnTarget(std::int32_t mode, Flag &found, Cell target,
                                      const Change &change, const Tease &tease,
                                      const Locate &locate, const Explain &explain)
{
    CellWord &word = WordAt(target);
    switch (mode) {
    case ModeChange:
        change(word);
        found = True;
        return false;
    case ModeAlert:
        word |= AlertBit;
        return false;
    case ModeTeaser:
        tease();
        return true;
    case ModeTeaserPlace:
        tease();
        locate();
        return true;
    case ModeExplain:
        if ((word & SelectedBit) == 0) {
            return false;
        }
        explain();
        return true;
    case ModeFull:
        word |= SelectedBit;
        explain();
        return true;
    default:
        return false;
    }
}

// A line end inside a message.
inline constexpr std::string_view MessageLineEnd = "\r";

// Sets bits in the words of all nine cells of a house.
void MarkHouse(const House &house, CellWord bits);

// Sets bits in the words of a cell's column, row and box.
void MarkDomain(Cell cell, CellWord bits);

// "column", "row" or "box".
std::string_view HouseWord(HouseKind kind);

// "column A", "row 1" or "the upper-left box", in the player's style of names.
std::string HouseName(const House &house);

// CellName of a cell.
std::string NameOf(Cell cell);

// CellName of every cell of a list, each followed by a blank.
std::string NamesOf(std::span<const Cell> cells);

// Writes the one line of the first hint stage over HintText.
void Tease(std::string_view line);

// Appends "It's in a column." to HintText as a new line, with the word for the kind of house.
void LocateInHouse(std::string_view houseWord);

// The numbers of a mask in ascending order: "7", "2 and 7", "2,4 and 7".
std::string JoinNumbers(CellWord numbers);

} // namespace kelvarine
