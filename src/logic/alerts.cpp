#include "logic/alerts.h"

#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "outside/events.h"

#include <algorithm>
#include <cassert>

namespace kelvarine {

namespace {

void ExplainGivenConflict(const House &house, Cell first, Cell other)
{
    HintTitle = "Conflict with given cells";
    HintText = "Cell " + NameOf(other) + " is a given cell" +
               " which conflicts directly with the given cell " + NameOf(first) + " in the same ";
    HintText += HouseWord(house.Kind);
    HintText += ".";
    MarkHouse(house, HintDomainBit);
    WordAt(first) |= HintCellBit;
    WordAt(other) |= HintCellBit;
}

// Runs the operations of one technique; true when one of them left a text.
bool RunOperations(const TechniqueRow &row, std::int32_t mode)
{
    Flag unused = False;
    for (const Operation operation : row.AlertScan) {
        if (operation == nullptr) {
            return false;
        }
        operation(mode, unused);
        if (!HintText.empty()) {
            return true;
        }
    }
    return false;
}

void RunTechniques(std::int32_t mode, std::uint32_t mask)
{
    for (std::size_t level = 1; level <= Levels; ++level) {
        for (const TechniqueRow &row : Techniques) {
            const std::uint32_t bit = BitOf(row.Number);
            if ((LevelTable[level] & mask & bit) != 0 && RunOperations(row, mode)) {
                return;
            }
        }
    }
}

bool MarksMoreThan(const GridTable &before)
{
    return std::ranges::any_of(Cells, [&](Cell cell) {
        return (WordAt(cell) & ~before[cell.Column][cell.Row] & AlertBit) != 0;
    });
}

} // namespace

bool RunAlertScan(std::int32_t mode)
{
    assert(mode >= ModeAlert && mode <= ModeFull);
    ChainColumns[0] = 0;
    const GridTable before = Grid;
    if (mode == ModeAlert) {
        ClearCellBits(ScanMarks);
    }
    // Hints use every technique of the level table, whatever the player chose for alerts.
    const bool isHint = mode >= ModeTeaser;
    if (AlertMask == 0 && !isHint) {
        return false;
    }
    SetWaitCursor(true);
    HintText.clear();
    FindGivenConflicts(mode);
    if (HintText.empty()) {
        RunTechniques(mode, isHint ? RatingMask : AlertMask);
    }
    SetWaitCursor(false);
    return MarksMoreThan(before);
}

bool FindGivenConflicts(std::int32_t mode)
{
    assert(mode >= ModeChange && mode <= ModeFull);
    // Mode 0 asks for the result alone and runs as the mode that looks at a selection.
    const std::int32_t actingMode = mode == ModeChange ? ModeExplain : mode;
    bool conflict = false;
    Flag unused = False;
    for (const Cell first : Cells) {
        if ((WordAt(first) & GivenBit) == 0) {
            continue;
        }
        const CellWord numbers = WordAt(first) & CandidateMask;
        for (const std::uint8_t h : HousesOf(first.Column, first.Row)) {
            const House &house = Houses[h];
            for (const Cell other : house.Cells) {
                const CellWord word = WordAt(other);
                if (other == first || (word & GivenBit) == 0 || (word & numbers) == 0) {
                    continue;
                }
                conflict = true;
                if (ActOnTarget(
                        actingMode, unused, other, [](CellWord &) {},
                        [] { Tease("There's a conflict with given cells."); },
                        [&] { LocateInHouse(HouseWord(house.Kind)); },
                        [&] { ExplainGivenConflict(house, first, other); })) {
                    return true;
                }
            }
        }
    }
    return conflict;
}

} // namespace kelvarine
