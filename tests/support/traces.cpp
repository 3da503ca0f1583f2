#include "support/traces.h"

#include "support/positions.h"

#include <algorithm>

namespace kelvarine::testing {

std::string TracesSince(const GridTable &before, Flag found)
{
    std::string text = found == True ? "found\n" : "";
    for (const Cell cell : Cells) {
        const CellWord old = before[cell.Column][cell.Row];
        if (((old ^ WordAt(cell)) & CandidateMask) != 0) {
            text += PlainName(cell) + " " + DigitsOf(old) + " -> " + DigitsOf(WordAt(cell)) + "\n";
        }
    }
    const auto line = [&](std::string_view name, CellWord bits) {
        const std::string cells = CellsWith(bits);
        text += cells.empty() ? "" : std::string(name) + " " + cells + "\n";
    };
    line("alert", AlertBit);
    line("selected", SelectedBit);
    line("hint cell", HintCellBit);
    line("hint domain", HintDomainBit);
    line("other marks",
         ~(CandidateMask | GivenBit | AlertBit | SelectedBit | HintCellBit | HintDomainBit));
    text += HintTitle.empty() ? "" : "title " + HintTitle + "\n";
    text += HintText.empty() ? "" : "text " + HintText + "\n";
    std::ranges::replace(text, '\r', '|');
    return text;
}

std::string TracesOf(void (*operation)(std::int32_t, Flag &), std::int32_t mode,
                     std::string_view drawing, Cell selected)
{
    SetPencilmarks(drawing);
    WordAt(selected) |= SelectedBit;
    HintText.clear();
    HintTitle.clear();
    const GridTable before = Grid;
    Flag found = False;
    operation(mode, found);
    return TracesSince(before, found);
}

} // namespace kelvarine::testing
