#include "help_example.h"

#include "game/alert_scan.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "logic/driver.h"
#include "logic/technique_table.h"

#include <algorithm>
#include <sstream>

namespace kelvarine {

namespace {

// Where the <pre> of a position begins.
std::size_t PlaceOfPosition(std::string_view page, int which)
{
    std::size_t start = 0;
    for (int k = 0; k < which && start != std::string_view::npos; ++k) {
        start = page.find("<pre", start + 1);
    }
    return start;
}

} // namespace

std::string PositionOf(std::string_view page, int which)
{
    const std::size_t opened = page.find('>', PlaceOfPosition(page, which));
    const std::size_t end = page.find("</pre>", opened);
    return end == std::string_view::npos ? std::string()
                                         : std::string(page.substr(opened + 1, end - opened - 1));
}

std::string PositionAttribute(std::string_view page, int which, const std::string &name)
{
    const std::size_t start = PlaceOfPosition(page, which);
    const std::string lead = ' ' + name + "=\"";
    const std::size_t place = page.find(lead, start);
    if (place == std::string_view::npos || place > page.find('>', start)) {
        return {};
    }
    const std::size_t first = place + lead.size();
    return std::string(page.substr(first, page.find('"', first) - first));
}

std::string ShortName(Cell cell)
{
    return ColumnName(cell.Column) + RowName(cell.Row);
}

Supposition SuppositionOf(std::string_view text)
{
    for (const Cell cell : Cells) {
        for (int number = 1; number <= 9; ++number) {
            if (TextOf({cell, number}) == text) {
                return {cell, number};
            }
        }
    }
    return NothingSupposed;
}

std::string TextOf(const Supposition &supposed)
{
    return ShortName(supposed.Where) + ' ' + std::to_string(supposed.Number);
}

void Suppose(const Supposition &supposed)
{
    CellWord &word = WordAt(supposed.Where);
    if ((word & CandidateMask) == 0) {
        word |= BitOf(supposed.Number);
    } else {
        word &= ~BitOf(supposed.Number);
    }
}

void HintBy(std::int32_t technique)
{
    LevelTable.fill(0);
    LevelTable[1] = BitOf(technique);
}

void HintByAll()
{
    SetLevelDefaults();
}

Cell SelectedCell()
{
    return *std::find_if(Cells.begin(), Cells.end(),
                         [](Cell cell) { return (WordAt(cell) & SelectedBit) != 0; });
}

std::string HintWords(std::int32_t stage)
{
    ClearCellBits(SelectedBit | HintCellBit | HintDomainBit | ScratchMarks);
    ScanAlerts(stage);
    std::string words = HintText;
    while (!words.empty() && words.back() == '\r') {
        words.pop_back();
    }
    for (char &sign : words) {
        sign = sign == '\r' ? ' ' : sign;
    }
    return words;
}

std::int32_t TechniqueOfHint()
{
    std::int32_t technique = 0;
    for (int level = 1; level <= Levels; ++level) {
        for (const TechniqueRow &row : Techniques) {
            if (row.Level == level && technique == 0) {
                HintBy(row.Number);
                technique = HintWords(3).empty() ? 0 : row.Number;
            }
        }
    }
    HintByAll();
    return technique;
}

const TechniqueRow *TechniqueOfPage(std::string_view page)
{
    const auto row = std::find_if(Techniques.begin(), Techniques.end(),
                                  [&](const TechniqueRow &one) { return one.HelpPage == page; });
    return row == Techniques.end() ? nullptr : &*row;
}

std::uint32_t MaskOfPages(const std::string &pages)
{
    std::uint32_t mask = 0;
    std::istringstream names(pages);
    for (std::string name; names >> name;) {
        const TechniqueRow *row = TechniqueOfPage(name);
        mask |= row != nullptr ? BitOf(row->Number) : 0;
    }
    return mask;
}

std::string CaptionsOf(std::uint32_t mask)
{
    std::string captions;
    for (const TechniqueRow &row : Techniques) {
        if ((mask & BitOf(row.Number)) != 0) {
            captions += captions.empty() ? "" : ", ";
            captions += row.Caption.substr(row.Caption.find_first_not_of(' '));
        }
    }
    return captions;
}

void FillAndApply(std::uint32_t mask)
{
    FillPencilmarks();
    SolveMask = mask;
    ApplyLogic(0);
    ClearCellBits(PassMarks);
}

std::vector<WalkStep> Walk(std::uint32_t mask, std::size_t most)
{
    std::vector<WalkStep> steps;
    SolveMask = mask;
    while (IsGridSolved() == False && steps.size() < most) {
        const std::int32_t technique = TechniqueOfHint();
        WalkStep step{{}, HintWords(5), {}};
        step.Title = HintTitle;
        for (const Cell cell : Cells) {
            const CellWord struck = technique == 0 ? 0 : StruckByHint(cell, technique);
            for (int number = 1; number <= 9; ++number) {
                if ((struck & BitOf(number)) != 0) {
                    step.Struck.push_back({cell, number});
                }
            }
        }
        if (step.Struck.empty()) {
            break;
        }
        for (const Supposition &one : step.Struck) {
            WordAt(one.Where) &= ~BitOf(one.Number);
        }
        steps.push_back(step);
        ApplyLogic(0);
        ClearCellBits(PassMarks);
    }
    return steps;
}

} // namespace kelvarine
