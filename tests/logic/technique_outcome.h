// One run of a technique on a drawn position and everything that it left.
#pragma once

#include "grid/grid.h"
#include "support/positions.h"

#include <string>
#include <string_view>

namespace kelvarine::testing {

using Technique = void (*)(std::int32_t mode, Flag &found);

struct Outcome {
    Flag Found = False;
    std::string Text;
    std::string Title;
    std::string Changes; // cells with fewer candidates and what is left, such as "A3=5 B7=."
    std::string Alerts;
    std::string Selected;
    std::string HintCells;
    std::string HintDomain;
    std::string Chain; // the cells on exhibit
    std::int32_t ChainNumber = 0;
};

inline std::string ChangesSince(const GridTable &before)
{
    std::string text;
    for (const Cell cell : Cells) {
        const CellWord now = WordAt(cell) & CandidateMask;
        if (now != (before[cell.Column][cell.Row] & CandidateMask)) {
            text += text.empty() ? "" : " ";
            text += PlainName(cell) + "=" + DigitsOf(now);
        }
    }
    return text;
}

inline std::string ChainOnExhibit()
{
    std::string text;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(ChainColumns[0]); ++i) {
        text += i > 1 ? " " : "";
        text += PlainName(ChainColumns[i], ChainRows[i]);
    }
    return text;
}

// Draws the position, selects a cell unless its name is empty, and runs the technique once.
inline Outcome OutcomeOf(std::string_view drawing, Technique technique, std::int32_t mode,
                         std::string_view selected = "")
{
    SetPencilmarks(drawing);
    if (!selected.empty()) {
        WordAt(CellNamed(selected)) |= SelectedBit;
    }
    HintText.clear();
    HintTitle.clear();
    ChainColumns.fill(0);
    ChainRows.fill(0);
    const GridTable before = Grid;
    Outcome outcome;
    technique(mode, outcome.Found);
    outcome.Text = HintText;
    outcome.Title = HintTitle;
    outcome.Changes = ChangesSince(before);
    outcome.Alerts = CellsWith(AlertBit);
    outcome.Selected = CellsWith(SelectedBit);
    outcome.HintCells = CellsWith(HintCellBit);
    outcome.HintDomain = CellsWith(HintDomainBit);
    outcome.Chain = ChainOnExhibit();
    outcome.ChainNumber = ChainRows[0];
    return outcome;
}

} // namespace kelvarine::testing
