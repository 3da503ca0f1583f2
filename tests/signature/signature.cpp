#include "signature/signature.h"

#include "game/alert_scan.h"
#include "generator/generator.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "support/outside_double.h"

#include <string_view>

namespace kelvarine::testing {

namespace {

constexpr int SoundPositions = 240;
constexpr int AbsurdPositions = 120;

// FNV-1a over 64 bits, by Fowler, Noll and Vo.
class Sum {
public:
    void Add(std::uint64_t value)
    {
        for (int byte = 0; byte < 8; ++byte) {
            AddByte(static_cast<unsigned char>(value >> 8 * byte));
        }
    }

    void Add(std::string_view text)
    {
        for (const char mark : text) {
            AddByte(static_cast<unsigned char>(mark));
        }
        AddByte(0);
    }

    void AddGrid()
    {
        for (const Cell cell : Cells) {
            Add(std::uint64_t{WordAt(cell)});
        }
    }

    [[nodiscard]] std::uint64_t Value() const
    {
        return value_;
    }

private:
    void AddByte(unsigned char byte)
    {
        value_ = (value_ ^ byte) * 1099511628211ULL;
    }

    std::uint64_t value_ = 14695981039346656037ULL;
};

std::uint32_t Draw()
{
    return static_cast<std::uint32_t>(genrand_int31());
}

// A game with one solution after some rounds of the player's logic, with pencilmarks of wrong
// numbers taken out at random, so that every technique finds something somewhere.
void MakeSoundPosition(int number)
{
    Restart();
    init_genrand(static_cast<std::uint32_t>(number) + 1);
    RevealPattern = number % 10 == 8 ? 0 : number % 10;
    MakeSolvedGrid();
    RemoveCells();
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        word &= GivenBit | CandidateMask | SolutionMask;
        const CellWord digit = (word & SolutionMask) >> SolutionShift;
        if ((word & GivenBit) == 0 && number % 3 != 0) {
            word &= ~(Draw() & Draw() & CandidateMask) | digit;
        }
    }
    ApplyLogic(SolveForRating); // with no technique selected this only cleans the marks
}

// Words of any bits, some of them thinned out to few candidates.
void MakeAbsurdPosition(int number)
{
    Restart();
    init_genrand(static_cast<std::uint32_t>(number) + 100000);
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        word = Draw() << 1; // in two steps: the order of the draws must be settled
        word ^= Draw();
        for (int k = 0; k < number % 4; ++k) {
            word &= ~(Draw() & CandidateMask);
        }
    }
    // The walks of the chains are exponential where any link is as good as any other.
    MaxSinglesLinks = 4;
    MaxRPLinks = 4;
    MaxXYLinks = 4;
}

void AddScan(Sum &sum, std::int32_t mode)
{
    HintText.clear();
    HintTitle.clear();
    ScanAlerts(mode);
    sum.Add(HintText);
    sum.Add(HintTitle);
    sum.AddGrid();
    for (std::int32_t k = 0; k <= ChainColumns[0]; ++k) {
        sum.Add(static_cast<std::uint64_t>(ChainColumns[static_cast<std::size_t>(k)]));
        sum.Add(static_cast<std::uint64_t>(ChainRows[static_cast<std::size_t>(k)]));
    }
}

void AddScans(Sum &sum)
{
    const GridTable position = Grid;
    AlertMask = RatingMask;
    AddScan(sum, ModeAlert);
    for (const Cell cell : Cells) {
        if ((WordAt(cell) & AlertBit) != 0) {
            const GridTable alerts = Grid;
            WordAt(cell) |= SelectedBit;
            AddScan(sum, ModeExplain);
            Grid = alerts;
            break;
        }
    }
    Grid = position;
    for (const std::int32_t mode : {ModeTeaser, ModeTeaserPlace, ModeFull}) {
        AddScan(sum, mode);
    }
    Grid = position;
}

void AddRun(Sum &sum, std::int32_t mode, std::uint32_t mask)
{
    const GridTable position = Grid;
    SolveMask = mask;
    SolutionList.clear();
    sum.Add(static_cast<std::uint64_t>(ApplyLogic(mode)));
    sum.Add(std::uint64_t{UsedMask});
    sum.Add(static_cast<std::uint64_t>(SolutionCount));
    sum.Add(SolutionList);
    sum.AddGrid();
    Grid = position;
}

void AddRating(Sum &sum)
{
    RateGame();
    sum.Add(static_cast<std::uint64_t>(GameRating));
    sum.Add(std::uint64_t{UsedMask});
    sum.AddGrid();
}

} // namespace

std::uint64_t LogicSignature()
{
    Sum sum;
    for (int number = 0; number < SoundPositions; ++number) {
        MakeSoundPosition(number);
        AddScans(sum);
        AddRun(sum, SolveAsPlayer, RatingMask & ~TrialBit);
        AddRun(sum, SolveForPlayer, CountingMask);
        AddRun(sum, SolveForRating, RatingMask);
        AddRun(sum, CountSolutions, CountingMask);
        AddRun(sum, ListSolutions25, ListingMask);
        AddRating(sum);
    }
    for (int number = 0; number < AbsurdPositions; ++number) {
        MakeAbsurdPosition(number);
        AddScans(sum);
        AddRun(sum, SolveAsPlayer, RatingMask & ~TrialBit);
    }
    return sum.Value();
}

} // namespace kelvarine::testing
