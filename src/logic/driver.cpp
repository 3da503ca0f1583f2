#include "logic/driver.h"

#include "grid/history.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "outside/board.h"
#include "outside/events.h"
#include "outside/messages.h"
#include "outside/screens.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <limits>
#include <set>
#include <utility>
#include <vector>

namespace kelvarine {

std::int32_t SearchKind;
Flag StopRequested;
Flag RunIsLong;
Flag RunUnderWay;
std::function<void()> AfterRun;

namespace {

constexpr int MostTrials = 81;

// Trials after which a run yields though no pass has come: where no technique finds anything, trial
// follows upon trial without one.
constexpr int MostTrialsWithoutYield = 16;

// The numbered steps of the driver that others jump to.
enum class Step : std::uint8_t {
    Pass,          // yield, clear marks, look for a dead end and for a solution
    TryTechniques, // one success at most, then a new pass
    OpenTrial,     // nothing found: guess, if the mask allows
    NextNumber,    // next number of the deepest trial
    Backtrack,     // restore the safe copy and replay the outer trials
    NoSolution,
    Leave,
};

struct Trial {
    Cell Place{};
    int Number = 0;
    CellWord Mask = 0; // the cell's candidates when the trial was opened
};

using Candidates = std::array<std::uint16_t, 81>;

// One run of the driver.
struct Run {
    std::int32_t Mode = 0;
    std::int32_t Result = NotSolved;
    bool Changed = false;
    // Set to false before each pass alone. After a dead end it is still true when the techniques
    // are tried with the next number, so that the first of them ends that round; intended.
    Flag Found = False;
    std::int64_t PassesLeft = 0;
    bool TriedAll = false; // and found no solution
    int TrialsSinceYield = 0;
    double Start = SteadySeconds();
    int TrialDepth = 0;
    std::array<Trial, MostTrials + 1> Trials{}; // 1..81 used
    std::vector<const TechniqueRow *> Order;
    // The memory of mode 0 against going round for ever.
    std::set<Candidates> Seen;      // candidates at the start of passes with the same trials open
    std::vector<Candidates> Opened; // candidates when the open trials were opened, outermost first
};

// Techniques by level first and number second; one that stands in two levels comes twice.
std::vector<const TechniqueRow *> TechniquesInUse()
{
    std::vector<const TechniqueRow *> order;
    for (std::size_t level = 1; level <= Levels; ++level) {
        for (const TechniqueRow &row : Techniques) {
            const std::uint32_t bit = BitOf(row.Number);
            if ((LevelTable[level] & SolveMask & bit) != 0) {
                order.push_back(&row);
            }
        }
    }
    return order;
}

void SetTrialNumber(const Trial &trial)
{
    CellWord &word = WordAt(trial.Place);
    word = (word & ~CandidateMask) | BitOf(trial.Number);
}

// First cell in scan order that passes a test, or null.
template <typename Test>
const Cell *FindCell(const Test &test)
{
    for (const Cell &cell : Cells) {
        if (test(WordAt(cell))) {
            return &cell;
        }
    }
    return nullptr;
}

Step LeaveWith(Run &run, std::int32_t result)
{
    run.Result = result;
    SearchActive = False;
    return Step::Leave;
}

Candidates CandidatesNow()
{
    Candidates now{};
    for (std::size_t k = 0; k < now.size(); ++k) {
        now[k] = static_cast<std::uint16_t>(WordAt(Cells[k]) & CandidateMask);
    }
    return now;
}

// True when the candidates stand as they stood at the start of an earlier pass with the same
// trials open: from here on the run would go round for ever. On contradictory grids the unplaced
// forms of mode 0 add candidates that other techniques take away again. In all other modes every
// success leaves fewer candidates on the grid than there were, so they need no memory.
bool GoesRound(Run &run)
{
    return run.Mode == SolveAsPlayer && !run.Seen.insert(CandidatesNow()).second;
}

// True when a trial about to be opened would be the same one again: a trial that is still open
// was opened on the very same candidates, so the run would open trial after trial for ever. Like
// GoesRound this is for mode 0, where a number that was tried may be taken away without being
// noticed. The limit keeps the list of trials safe; in the other modes every open trial has a cell
// of its own and it is never reached.
bool RepeatsTrial(Run &run)
{
    if (run.TrialDepth == MostTrials) {
        return true;
    }
    if (run.Mode != SolveAsPlayer) {
        return false;
    }
    run.Opened.resize(static_cast<std::size_t>(run.TrialDepth));
    const Candidates now = CandidatesNow();
    if (std::ranges::find(run.Opened, now) != run.Opened.end()) {
        return true;
    }
    run.Opened.push_back(now);
    return false;
}

Step OnSolvedGrid(Run &run)
{
    ++SolutionCount;
    switch (run.Mode) {
    case SolveAsPlayer:
    case SolveForPlayer:
        if (run.Changed) {
            PushUndoState();
        }
        return LeaveWith(run, Solved);
    case SolveForRating:
        return LeaveWith(run, Solved);
    case CountSolutions:
        if (SolutionCount > 1) {
            RestoreSafeCopy();
            return LeaveWith(run, NotSolved);
        }
        return Step::Backtrack;
    default:
        ShowSolutionCount();
        if (SolutionCount > MostSolutionsListed) {
            RestoreSafeCopy();
            return LeaveWith(run, NotSolved);
        }
        RecordSolution();
        return Step::Backtrack;
    }
}

bool bannerStands = false;

// Lets the player stop the run, and tells one that waits for long what it waits for.
bool MayGoOn(Run &run)
{
    run.TrialsSinceYield = 0;
    if (RunIsLong == False && SteadySeconds() - run.Start >= LongRunSeconds) {
        RunIsLong = True;
        if (SearchKind == NotStoppable) {
            DrawBanner(" Standby ");
            bannerStands = true;
        }
        DoAfterRun(); // what waits may ask now
    }
    YieldToEvents();
    if (SearchActive == False) {
        run.Result = Stopped;
    }
    return SearchActive != False;
}

Step StartPass(Run &run)
{
    if (!MayGoOn(run)) {
        return Step::Leave;
    }
    if (--run.PassesLeft < 0) {
        return Step::NoSolution;
    }
    ClearCellBits(PassMarks);
    const bool goesRound = GoesRound(run);
    // In mode 0 a player's empty cell is no dead end.
    if (run.Mode != SolveAsPlayer &&
        FindCell([](CellWord word) { return (word & CandidateMask) == 0; }) != nullptr) {
        return Step::Backtrack;
    }
    run.Found = False;
    if (IsGridSolved() != False) {
        return OnSolvedGrid(run);
    }
    return goesRound ? Step::OpenTrial : Step::TryTechniques;
}

void RunOperations(Run &run, const TechniqueRow &row)
{
    const OperationList &operations = run.Mode == SolveAsPlayer ? row.DriverApply : row.Driver;
    for (const Operation operation : operations) {
        if (operation == nullptr) {
            return;
        }
        operation(ModeChange, run.Found);
        if (run.Found != False && !row.DriverRunsAll) {
            return;
        }
    }
}

Step TryTechniques(Run &run)
{
    for (const TechniqueRow *row : run.Order) {
        RunOperations(run, *row);
        if (run.Found != False) {
            run.Changed = true;
            UsedMask |= BitOf(row->Number);
            return Step::Pass;
        }
    }
    return Step::OpenTrial;
}

Step EndWithoutTrial(Run &run)
{
    switch (run.Mode) {
    case SolveAsPlayer:
    case SolveForPlayer:
        if (run.Changed) {
            PushUndoState();
        }
        break;
    case CountSolutions:
    case ListSolutions25:
        RestoreSafeCopy();
        break;
    default:
        break;
    }
    return LeaveWith(run, NotSolved);
}

Step OpenTrial(Run &run)
{
    if ((SolveMask & TrialBit) == 0) {
        return EndWithoutTrial(run);
    }
    UsedMask |= TrialBit;
    // The order of the scan alone decides, not the number of candidates.
    const Cell *cell = FindCell([](CellWord word) { return CandidatesIn(word) > 1; });
    if (cell == nullptr || RepeatsTrial(run)) {
        return Step::Backtrack;
    }
    if (run.Order.empty()) {
        // Only a pass notices a solution, and only a technique leads to another pass: without
        // techniques the walk through all trials finds nothing, however long it takes.
        return Step::NoSolution;
    }
    ++run.TrialDepth;
    run.Trials[static_cast<std::size_t>(run.TrialDepth)] = {*cell, 0,
                                                            WordAt(*cell) & CandidateMask};
    return Step::NextNumber;
}

Step NextNumber(Run &run)
{
    Trial &trial = run.Trials[static_cast<std::size_t>(run.TrialDepth)];
    do {
        ++trial.Number;
        if (trial.Number == 10) {
            if (run.TrialDepth == 1) {
                return Step::NoSolution;
            }
            --run.TrialDepth;
            return Step::Backtrack;
        }
    } while ((trial.Mask & BitOf(trial.Number)) == 0);
    SetTrialNumber(trial);
    run.Seen.clear();
    // A fresh trial goes straight to the techniques, without a pass and without its tests.
    if (++run.TrialsSinceYield == MostTrialsWithoutYield && !MayGoOn(run)) {
        return Step::Leave;
    }
    return Step::TryTechniques;
}

Step Backtrack(Run &run)
{
    RestoreSafeCopy();
    if (run.TrialDepth < 1) {
        return LeaveWith(run, NotSolved);
    }
    for (int depth = 1; depth < run.TrialDepth; ++depth) {
        SetTrialNumber(run.Trials[static_cast<std::size_t>(depth)]);
    }
    return Step::NextNumber;
}

Step EndWithoutSolution(Run &run)
{
    run.TriedAll = true;
    RestoreSafeCopy();
    return LeaveWith(run, NotSolved);
}

Step Take(Run &run, Step step)
{
    switch (step) {
    case Step::Pass:
        return StartPass(run);
    case Step::TryTechniques:
        return TryTechniques(run);
    case Step::OpenTrial:
        return OpenTrial(run);
    case Step::NextNumber:
        return NextNumber(run);
    case Step::Backtrack:
        return Backtrack(run);
    case Step::NoSolution:
        return EndWithoutSolution(run);
    case Step::Leave:
        break;
    }
    return Step::Leave;
}

} // namespace

void DoAfterRun()
{
    if (AfterRun) {
        CallFromEventLoop(std::exchange(AfterRun, nullptr));
    }
}

void SetDriverDefaults()
{
    SearchKind = NotStoppable;
    StopRequested = False;
    RunIsLong = False;
    RunUnderWay = False;
    AfterRun = nullptr;
    bannerStands = false;
}

bool TakeBannerAway()
{
    const bool stands = std::exchange(bannerStands, false);
    if (stands) {
        DrawBoard();
    }
    return stands;
}

void StartRun()
{
    SearchActive = True;
    RunUnderWay = True;
    RunIsLong = False;
    UsedMask = 0;
    SolutionCount = 0;
    CopyCells(Grid, History[SafeCopySlot]);
}

void EndRun()
{
    RunUnderWay = False;
    DoAfterRun();
}

void RestoreSafeCopy()
{
    CopyCells(History[SafeCopySlot], Grid);
}

void RecordSolution()
{
    for (std::size_t row = 1; row <= 9; ++row) {
        for (std::size_t column = 1; column <= 9; ++column) {
            SolutionList += static_cast<char>('0' + LowestCandidate(Grid[column][row]));
        }
    }
}

std::int32_t ApplyLogic(std::int32_t mode)
{
    return ApplyLogicWithin(std::numeric_limits<std::int64_t>::max(), mode);
}

std::int32_t ApplyLogicWithin(std::int64_t mostPasses, std::int32_t mode)
{
    assert(mode >= SolveAsPlayer && mode <= ListSolutions25);
    StartRun();
    Run run;
    run.Mode = mode;
    run.PassesLeft = mostPasses;
    run.Order = TechniquesInUse();
    Step step = Step::Pass;
    while (step != Step::Leave) {
        step = Take(run, step);
    }
    EndRun();
    if (run.TriedAll && mode == SolveAsPlayer) {
        // When nothing is under way any more that could be stopped instead.
        TakeBannerAway();
        ShowMessage("This sudoku has no solution.");
    }
    return run.Result;
}

} // namespace kelvarine
