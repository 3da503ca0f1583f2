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
    std::uint32_t Pushes = UndoStatesPushed;
    std::uint32_t Files = FilesBegun;
    std::uint32_t Snapshots = SnapshotsTaken;
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

bool hasCome = false; // to the board, since the last look

std::optional<double> searchTold; // when the search was last told of; empty without one
bool longRunTold = false;

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
    HintTitle.clear();
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

// Words of alerts with their reason, if that can be told and is the same for all of the cells.
std::string AlertOf(const std::vector<Cell> &cells, const std::string &words)
{
    if (IsPaused()) {
        return words;
    }
    const std::string reason = ReasonOfAlert(cells.front());
    const bool agree = std::all_of(cells.begin() + 1, cells.end(),
                                   [&](Cell cell) { return ReasonOfAlert(cell) == reason; });
    return words + (reason.empty() || !agree ? "" : ": " + reason);
}

// The cells that carry an alert now and did not before; that of the player first.
std::string NewAlerts(const GridTable &before)
{
    std::vector<Cell> cells = CellsThatDiffer(before, AlertBit);
    std::erase_if(cells, [](Cell cell) { return (WordAt(cell) & AlertBit) == 0; });
    const std::optional<Cell> place = SpokenPlace();
    const bool mine = place && std::erase(cells, *place) > 0;
    std::string words = mine ? AlertOf({*place}, "alert") : "";
    if (cells.size() > MostNames) {
        Append(words,
               "alert in " + std::to_string(cells.size()) + (mine ? " other cells" : " cells"));
    } else if (!cells.empty()) {
        std::string others = "alert in " + NamesOf(cells);
        others.pop_back();
        Append(words, mine ? others : AlertOf(cells, others));
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

// Words of a cell, with its name if the player is elsewhere.
std::string AtCell(Cell cell, const std::string &words)
{
    return cell == SpokenPlace() ? words : NameOf(cell) + ": " + words;
}

// What the player did to the position: "5", "[B2]: empty" or "12 cells changed". What one cell
// holds is hidden while the clock is paused.
std::string NewPosition(const std::vector<Cell> &cells)
{
    if (cells.size() > 1) {
        return std::to_string(cells.size()) + " cells changed";
    }
    return IsPaused() ? "" : AtCell(cells.front(), SpokenNumbers(cells.front()));
}

// What an undo took back.
std::string FormerPosition(const std::vector<Cell> &cells, const GridTable &before)
{
    if (cells.size() > 1 || IsPaused()) {
        return NewPosition(cells);
    }
    return NameOf(cells.front()) + " was " + NumbersOf(WordIn(before, cells.front()));
}

// What the player did to the colors: "cyan", "[B2]: no color" or "colors of 12 cells changed".
std::string NewColours(const std::vector<Cell> &cells)
{
    if (cells.empty()) {
        return {};
    }
    const std::string colour = SpokenColour(cells.front());
    const std::string words = colour.empty() ? "no color" : colour;
    if (cells.size() == 1) {
        return AtCell(cells.front(), words);
    }
    const std::string count = std::to_string(cells.size()) + " cells";
    return std::ranges::all_of(cells, [&](Cell cell) { return SpokenColour(cell) == colour; })
               ? count + ": " + words
               : "colors of " + count + " changed";
}

// "undone" or "redone" with what that did to the position; nothing without a step in the history.
std::string StepInHistory(const Look &before, const std::vector<Cell> &cells)
{
    const bool recorded = UndoStatesPushed != before.Pushes;
    const bool sameLevels =
        HistoryCount == before.Levels && !PositionsDiffer(before.Newest, History[NewestSlot]);
    if (recorded || !sameLevels || HistoryPosition == before.Level) {
        return {};
    }
    const bool back = HistoryPosition > before.Level;
    std::string words = back ? "undone" : "redone";
    const std::string what = cells.empty() ? ""
                             : back        ? FormerPosition(cells, before.Cells)
                                           : NewPosition(cells);
    return words + (what.empty() ? "" : ": " + what);
}

std::string ChangeOfPosition(const Look &before)
{
    const bool restarted = HistoryCount == 1 && before.Levels > 1;
    const bool opened = FilesBegun != before.Files; // be it the game that was there
    if (restarted || opened || PositionsDiffer(before.Start, History[StartSlot])) {
        return GameOnBoard();
    }
    const std::vector<Cell> cells = CellsThatDiffer(before.Cells, PositionBits);
    std::string words = StepInHistory(before, cells);
    if (!cells.empty()) {
        return words.empty() ? NewPosition(cells) : words;
    }
    Append(words, NewColours(CellsThatDiffer(before.Cells, CellColour)));
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
    } else if (HasSign() && !signFollowsKey && before.Sign != ToolSign) {
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
    return SnapshotsTaken != before.Snapshots ? "snapshot taken" : "";
}

PlaceChange ChangeOfPlace(const Look &before, const Look &now)
{
    if (std::exchange(hasCome, false)) {
        return PlaceChange::Place;
    }
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
    Append(words, ChangeOfPosition(before));
    Append(words, NewAlerts(before.Cells));
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
    hasCome = false;
    searchTold.reset();
    longRunTold = false;
}

void TellPlaceAgain()
{
    hasCome = true;
    if (last) {
        last->Place.reset(); // who is told of it knows that it is selected
    }
}

Told NextTold(bool signFollowsKey)
{
    searchTold.reset();
    longRunTold = false;
    Look now;
    if (!last) {
        now.Sign = signFollowsKey || !HasSign() ? Replace : ToolSign;
        last = now;
        const bool tells = std::exchange(hasCome, false) || now.Place;
        return {tells ? PlaceChange::Place : PlaceChange::None, SelectionChange::None, {}};
    }
    const Look &before = *last;
    if (signFollowsKey || !HasSign()) {
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

std::string NextToldOfLongRun()
{
    return std::exchange(longRunTold, true) ? "" : "at work; a key asks whether to stop";
}

} // namespace kelvarine
