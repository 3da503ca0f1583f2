#include "input/told.h"

#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "grid/names.h"
#include "input/number_keys.h"
#include "input/pattern.h"
#include "input/spoken.h"
#include "input/toolbar.h"
#include "logic/alerts.h"
#include "logic/technique.h"

#include <algorithm>
#include <bit>
#include <cctype>
#include <iterator>
#include <tuple>
#include <utility>
#include <vector>

namespace kelvarine {

namespace {

// What was there at the last look.
struct Look {
    GridTable Cells = Grid;
    GridTable Start = History[StartSlot];
    GridTable Newest = History[NewestSlot];
    GridTable Snapshot = History[SnapshotSlot];
    Flag HasSnapshot = SnapshotAvailable;
    std::int32_t Levels = HistoryCount;
    std::int32_t Level = HistoryPosition;
    CellWord InView = NumberFilter;
    std::int32_t Mode = ToolMode;
    std::int32_t Sign = ToolSign;
    bool Paused = IsPaused();
    std::string Pattern = SpokenPattern();
    bool Won = WinDisplayRunning != False;
    std::optional<Cell> Place = SpokenPlace();
    std::string PlaceText = Place ? SpokenCell(*Place) : std::string();
};

std::optional<Look> last;

constexpr double SearchInterval = 10; // seconds between two announcements of a search

std::optional<double> searchTold; // when the search was last told of; empty without one

constexpr CellWord PositionBits = CandidateMask | GivenBit;
constexpr std::size_t MostNames = 4; // of cells in one announcement

void Append(std::string &words, const std::string &more)
{
    if (!more.empty()) {
        words += (words.empty() ? "" : "; ") + more;
    }
}

CellWord WordIn(const GridTable &grid, Cell cell)
{
    return grid[cell.Column][cell.Row];
}

// Cells in which some bits of the words differ.
std::vector<Cell> CellsThatDiffer(const GridTable &before, CellWord bits)
{
    std::vector<Cell> cells;
    std::ranges::copy_if(Cells, std::back_inserter(cells), [&](Cell cell) {
        return ((WordIn(before, cell) ^ WordAt(cell)) & bits) != 0;
    });
    return cells;
}

bool PositionsDiffer(const GridTable &a, const GridTable &b)
{
    return std::ranges::any_of(Cells, [&](Cell cell) {
        return ((WordIn(a, cell) ^ WordIn(b, cell)) & PositionBits) != 0;
    });
}

// ---- Alerts --------------------------------------------------------------------------------

// Title of the reason why a cell carries an alert, as a word within a sentence.
std::string ReasonOfAlert(Cell cell)
{
    const auto kept = std::tuple(Grid, ChainColumns, ChainRows, HintText, HintTitle);
    ClearCellBits(SelectedBit);
    WordAt(cell) |= SelectedBit;
    RunAlertScan(ModeExplain);
    std::string title = HintTitle;
    std::tie(Grid, ChainColumns, ChainRows, HintText, HintTitle) = kept;
    // Names of techniques such as "X-wing" keep their capitals.
    if (title.size() > 1 && std::islower(static_cast<unsigned char>(title[1])) != 0) {
        title[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(title[0])));
    }
    return title;
}

// An alert with its reason, if that can be told.
std::string AlertOf(Cell cell, const std::string &words)
{
    const std::string reason = ReasonOfAlert(cell);
    return words + (reason.empty() ? "" : ": " + reason);
}

// The cells that carry an alert now and did not before; that of the player first.
std::string NewAlerts(const GridTable &before)
{
    std::vector<Cell> cells = CellsThatDiffer(before, AlertBit);
    std::erase_if(cells, [](Cell cell) { return (WordAt(cell) & AlertBit) == 0; });
    const std::optional<Cell> place = SpokenPlace();
    const bool mine = place && std::erase(cells, *place) > 0;
    std::string words = mine ? AlertOf(*place, "alert") : "";
    if (cells.size() > MostNames) {
        Append(words,
               "alert in " + std::to_string(cells.size()) + (mine ? " other cells" : " cells"));
    } else if (!cells.empty()) {
        std::string others = "alert in " + NamesOf(cells);
        others.pop_back();
        Append(words, mine ? others : AlertOf(cells.front(), others));
    }
    return words;
}

// ---- The position --------------------------------------------------------------------------

std::string NumbersOf(CellWord word)
{
    const CellWord candidates = word & CandidateMask;
    if (candidates == 0) {
        return "empty";
    }
    return (std::has_single_bit(candidates) ? "" : "pencilmarks ") + JoinNumbers(candidates);
}

std::string GameOnBoard()
{
    return "game with " + std::to_string(GivenCount) +
           (GivenCount == 1 ? " given, " : " givens, ") +
           std::string(WordsOfRating(GameRating).Lower);
}

// What the player did to the position: "5", "[B2]: empty" or "12 cells changed".
std::string NewPosition(const std::vector<Cell> &cells)
{
    if (cells.size() > 1) {
        return std::to_string(cells.size()) + " cells changed";
    }
    const Cell cell = cells.front();
    const std::string numbers = SpokenNumbers(cell);
    return cell == SpokenPlace() ? numbers : NameOf(cell) + ": " + numbers;
}

// What an undo took back.
std::string FormerPosition(const std::vector<Cell> &cells, const GridTable &before)
{
    if (cells.size() > 1) {
        return NewPosition(cells);
    }
    return NameOf(cells.front()) + " was " + NumbersOf(WordIn(before, cells.front()));
}

std::string ChangeOfPosition(const Look &before)
{
    if (PositionsDiffer(before.Start, History[StartSlot])) {
        return GameOnBoard();
    }
    const std::vector<Cell> cells = CellsThatDiffer(before.Cells, PositionBits);
    const bool sameLevels =
        HistoryCount == before.Levels && !PositionsDiffer(before.Newest, History[NewestSlot]);
    std::string words;
    if (sameLevels && HistoryPosition > before.Level) {
        words = cells.empty() ? "undone" : "undone: " + FormerPosition(cells, before.Cells);
    } else if (sameLevels && HistoryPosition < before.Level) {
        words = cells.empty() ? "redone" : "redone: " + NewPosition(cells);
    } else if (!cells.empty()) {
        words = NewPosition(cells);
    }
    return words;
}

// ---- What stands round it ------------------------------------------------------------------

std::string NumbersInView()
{
    const CellWord shown = NumberFilter & CandidateMask;
    if (shown == CandidateMask) {
        return "all numbers in view";
    }
    return shown == 0 ? "no numbers in view" : "in view: " + JoinNumbers(shown);
}

std::string ChangesOfTools(const Look &before, bool signFollowsKey)
{
    std::string words;
    if (before.Mode != ToolMode) {
        words = "mode: " + ToolButtons[static_cast<std::size_t>(ModeButton(ToolMode))].Caption;
    } else if (!signFollowsKey && before.Sign != ToolSign) {
        words = SpokenTool(SignButton);
    }
    if (before.InView != NumberFilter) {
        Append(words, NumbersInView());
    }
    return words;
}

std::string ChangeOfClock(const Look &before)
{
    if (before.Paused == IsPaused()) {
        return {};
    }
    return IsPaused() ? "paused" : "resumed";
}

std::string ChangeOfSnapshot(const Look &before)
{
    const bool taken = SnapshotAvailable != False &&
                       (before.HasSnapshot == False || before.Snapshot != History[SnapshotSlot]);
    return taken ? "snapshot taken" : "";
}

PlaceChange ChangeOfPlace(const Look &before, const Look &now)
{
    if (!now.Place) {
        return PlaceChange::None;
    }
    if (now.Place != before.Place) {
        return PlaceChange::Place;
    }
    return now.PlaceText != before.PlaceText ? PlaceChange::Text : PlaceChange::None;
}

// A step to a cell takes it into the selection alone; who is told of the step knows that.
SelectionChange ChangeOfSelection(const Look &before, const Look &now)
{
    if (CellsThatDiffer(before.Cells, SelectedBit).empty()) {
        return SelectionChange::None;
    }
    const auto isSelected = [](Cell cell) {
        return (WordAt(cell) & SelectedBit) != 0;
    };
    const bool one = std::ranges::count_if(Cells, isSelected) == 1;
    if (!one || !now.Place || !isSelected(*now.Place)) {
        return SelectionChange::Many;
    }
    return now.Place == before.Place ? SelectionChange::One : SelectionChange::None;
}

std::string WordsOf(const Look &before, const Look &now, SelectionChange selection,
                    bool signFollowsKey)
{
    if (WinDisplayRunning != False) {
        return before.Won ? "" : "game solved, time " + TimeText(SolveSeconds);
    }
    std::string words = ChangesOfTools(before, signFollowsKey);
    Append(words, ChangeOfClock(before));
    Append(words, ChangeOfSnapshot(before));
    if (!IsPaused()) {
        Append(words, ChangeOfPosition(before));
        Append(words, NewAlerts(before.Cells));
    }
    if (selection == SelectionChange::Many) {
        Append(words, SpokenSelection());
    }
    if (now.Pattern != before.Pattern) {
        Append(words, now.Pattern);
    }
    return words;
}

} // namespace

void SetToldDefaults()
{
    last.reset();
    searchTold.reset();
}

void TellPlaceAgain()
{
    if (last) {
        last->Place.reset();
    }
}

Told NextTold(bool signFollowsKey)
{
    searchTold.reset();
    Look now;
    if (!last) {
        now.Sign = signFollowsKey ? Replace : ToolSign;
        last = now;
        return {now.Place ? PlaceChange::Place : PlaceChange::None, SelectionChange::None, {}};
    }
    const Look &before = *last;
    if (signFollowsKey) {
        now.Sign = before.Sign;
    }
    const SelectionChange selection = ChangeOfSelection(before, now);
    Told told{ChangeOfPlace(before, now), selection,
              WordsOf(before, now, selection, signFollowsKey)};
    last = std::move(now);
    return told;
}

std::string NextToldOfSearch(double seconds)
{
    if (searchTold && seconds < *searchTold + SearchInterval) {
        return {};
    }
    const bool begins = !searchTold;
    searchTold = seconds;
    return begins ? "searching for a game"
                  : "searching, " + std::to_string(GamesScreened) + " games screened";
}

} // namespace kelvarine
