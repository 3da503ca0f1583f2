#include "game/solutions.h"

#include "game/screens.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/filling_runs.h"
#include "logic/kept_settings.h"
#include "logic/technique_masks.h"
#include "outside/board.h"
#include "outside/screens.h"

#include <cassert>

namespace kelvarine {

std::string SolutionsOnView;
std::string SolutionCountText;

namespace {

constexpr std::string_view Rule = "+-------+-------+-------+\r\n";
constexpr std::string_view TextLineEnd = "\r\n";
constexpr std::size_t SolutionSize = 81;

std::string FramedText(std::string_view list)
{
    std::string text;
    std::size_t i = 0;
    for (const char digit : list) {
        text += i % 27 == 0 ? Rule : "";
        text += i % 3 == 0 ? "| " : "";
        text += digit;
        text += ' ';
        ++i;
        text += i % 9 == 0 ? "|\r\n" : "";
        if (i % SolutionSize == 0) {
            text += Rule;
            text += TextLineEnd;
        }
    }
    return text;
}

std::string LinesText(std::string_view list)
{
    std::string text;
    for (std::size_t k = 0; k < list.size(); k += SolutionSize) {
        text += list.substr(k, SolutionSize);
        text += TextLineEnd;
    }
    return text;
}

} // namespace

void SetSolutionsDefaults()
{
    SolutionsOnView.clear();
    SolutionCountText.clear();
}

std::string SolutionCountWords(std::int32_t count)
{
    if (count == 0) {
        return "No solutions";
    }
    if (count > MostSolutionsListed) {
        return "More than 25 solutions";
    }
    return std::to_string(count) + (count == 1 ? " solution" : " solutions");
}

void TakeSolutionCount()
{
    SolutionCountText = SolutionCountWords(SolutionCount);
}

std::string SolutionsText(std::int32_t format, std::string_view list)
{
    return format == 0 ? LinesText(list) : FramedText(list);
}

void ShowSolutions()
{
    TakeSolutionCount();
    SolutionsOnView = SolutionsText(SolutionsFormat, SolutionList);
    RefreshSolutionsScreen();
}

void ListSolutions()
{
    SearchKind = ListingSolutions;
    History[SolutionsCopySlot] = Grid;
    {
        const KeptSettings kept;
        SolveMask = ListingMask;
        SolutionList.clear();
        FillPencilmarks();
        RunByFillings(ListSolutions25);
        ShowSolutions();
    }
    Grid = History[SolutionsCopySlot];
    SearchKind = NotStoppable;
    DrawBoard();
}

void RefreshSolutions()
{
    if (SolutionsOpen != False) {
        ListSolutions();
    }
}

void mnuShowSolution()
{
    if (SolutionsOpen == False) {
        // Nothing is known of this position yet.
        SolutionsOpen = True;
        SolutionsOnView.clear();
        SolutionCountText.clear();
    }
    ShowSolutionsScreen();
    ListSolutions();
}

void optSolutionsFormat(std::int32_t format)
{
    assert(format == 0 || format == 1);
    SolutionsFormat = format;
    ShowSolutions();
}

} // namespace kelvarine
