// One call of a technique on a drawn position, and all that it left behind, as text.
#pragma once

#include "grid/grid.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace kelvarine::testing {

using Technique = std::function<void(std::int32_t mode, Flag &found)>;

// Cells stand as in CellsWith. What a call did not touch is empty or false.
struct Left {
    bool Found = false;
    std::string Text = {};      // HintText
    std::string Title = {};     // HintTitle
    std::string Changed = {};   // such as "A1 123>13 C4 12>."
    std::string Alerts = {};    // cells with AlertBit
    std::string Selected = {};  // cells with SelectedBit
    std::string HintCells = {}; // cells with HintCellBit
    std::string Domain = {};    // cells with HintDomainBit
    std::string Marks = {};     // cells with a scratch mark
    std::string List = {};      // the work list from element 1
    std::string Other = {};     // cells of which any other bit changed, or a written element 0

    friend bool operator==(const Left &, const Left &) = default;
};

void PrintTo(const Left &left, std::ostream *out);

// Reads a position as SetPencilmarks does, with "*" for all nine candidates. Replaces Grid.
void SetPosition(std::string_view drawing);

// Draws a position with SetPosition, selects some cells, calls the technique on it with no words
// and no list standing, and tells what it left.
Left Call(const Technique &technique, std::int32_t mode, std::string_view drawing,
          std::string_view selected = "");

// A style of names other than the one at the start: cells are called (R4,6) in it.
void UseOtherNames();

// The cells of some houses in scan order: "B" is a column, "4" a row, "B4" the box of that cell.
std::string CellsOf(std::string_view houses);

// Adds bits to the words of cells such as "A1 C4".
void AddBits(std::string_view cells, CellWord bits);

} // namespace kelvarine::testing
