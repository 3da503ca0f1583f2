#include "generator/generator.h"

#include "generator/patterns.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "logic/filling_runs.h"
#include "logic/kept_settings.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "outside/board.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kelvarine {

std::int32_t RevealPattern;
std::uint32_t DifficultySelection;
std::int32_t MinGivens;
std::int32_t MaxGivens;
Flag FillOnStart;
Flag SolveOnStart;
std::int32_t GamesScreened;

namespace {

constexpr int MissesPerGrid = 20; // in the range of givens, before a new solved grid is made
constexpr CellWord FinishedBits = GivenBit | CandidateMask | SelectedBit | SolutionMask;
constexpr CellWord TriedMark = ScratchMark2; // the cell has had its turn

static_assert(FinishedBits == 0xFFFFF);

// ---- The solved grid -----------------------------------------------------------------------

// Gives a cell its digit and takes the digit out of the open cells of some of its houses.
void PlaceDigit(Cell cell, CellWord bit, std::span<const std::uint8_t> houses)
{
    for (const std::uint8_t house : houses) {
        for (const Cell other : Houses[house].Cells) {
            WordAt(other) &= ~bit;
        }
    }
    WordAt(cell) = bit | GivenBit;
}

// The centre box is filled without looking at candidates: a digit only has to be new to the box.
void FillCentreBox()
{
    CellWord used = 0;
    for (int column = 4; column <= 6; ++column) {
        for (int row = 4; row <= 6; ++row) {
            CellWord bit = 0;
            do {
                bit = BitOf(DrawDigitBit());
            } while ((used & bit) != 0);
            used |= bit;
            const auto houses = HousesOf(column, row);
            PlaceDigit(MakeCell(column, row), bit, {houses.data(), 2});
        }
    }
}

int DigitsLeft(CellWord word)
{
    return CandidatesIn(SolutionOf(word));
}

// The open cell with the fewest digits left, the first of its kind in scan order, or null when an
// open cell has none.
const Cell *MostConstrainedCell()
{
    const Cell *best = nullptr;
    int fewest = 10;
    for (const Cell &cell : Cells) {
        const CellWord word = WordAt(cell);
        if ((word & GivenBit) != 0) {
            continue;
        }
        const int digits = DigitsLeft(word);
        if (digits == 0) {
            return nullptr;
        }
        if (digits < fewest) {
            fewest = digits;
            best = &cell;
        }
    }
    return best;
}

// One try at a whole grid; false at a dead end, which is rare.
bool TrySolvedGrid()
{
    constexpr int openCells = 72;
    for (const Cell cell : Cells) {
        WordAt(cell) = SolutionMask;
    }
    FillCentreBox();
    for (int k = 0; k < openCells; ++k) {
        const Cell *cell = MostConstrainedCell();
        if (cell == nullptr) {
            return false;
        }
        CellWord bit = 0;
        do {
            bit = BitOf(DrawDigitBit());
        } while ((WordAt(*cell) & bit) == 0);
        const auto houses = HousesOf(cell->Column, cell->Row);
        PlaceDigit(*cell, bit, houses);
    }
    return true;
}

// ---- Taking cells out ----------------------------------------------------------------------

// Runs an action on a cell and its partners; the number of cells is the result.
template <typename Action>
int ForGroup(Cell cell, const Action &action)
{
    const std::span<const Cell> partners = PartnersOf(RevealPattern, cell);
    action(WordAt(cell));
    for (const Cell partner : partners) {
        action(WordAt(partner));
    }
    return static_cast<int>(partners.size()) + 1;
}

void TakeOut(CellWord &word)
{
    word = (word & ~GivenBit) | CandidateMask | TriedMark;
}

Cell DrawCell()
{
    const int column = DrawIndex();
    const int row = DrawIndex();
    return MakeCell(column, row);
}

Cell DrawGiven()
{
    Cell cell{};
    do {
        cell = DrawCell();
    } while ((WordAt(cell) & GivenBit) == 0);
    return cell;
}

Cell DrawUntried()
{
    Cell cell{};
    do {
        cell = DrawCell();
    } while ((WordAt(cell) & TriedMark) != 0);
    return cell;
}

// Takes the first cells out without a test. The number of cells is the result.
int StartFreely(FreeStart start)
{
    constexpr int freeCells = 3;
    int tried = 0;
    switch (start) {
    case FreeStart::None:
        break;
    case FreeStart::ThreeCells:
        for (; tried < freeCells; ++tried) {
            TakeOut(WordAt(DrawGiven()));
        }
        break;
    case FreeStart::OneGroup:
        do {
            tried += ForGroup(DrawGiven(), TakeOut);
        } while (tried == 1);
        break;
    }
    return tried;
}

// ---- The quick proof that one solution stays ----------------------------------------------

using PlacedDigits = std::array<CellWord, 27>; // digits on view by house, as candidate bits

void PlaceInHouses(PlacedDigits &placed, Cell cell, CellWord digit)
{
    for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
        placed[house] |= digit;
    }
}

CellWord DigitsInDomain(const PlacedDigits &placed, Cell cell)
{
    CellWord digits = 0;
    for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
        digits |= placed[house];
    }
    return digits;
}

// Whether no other open cell of a house could take the digit of a cell.
bool IsOnlyPlace(const PlacedDigits &placed, const House &house, Cell cell, CellWord digit)
{
    return std::ranges::all_of(house.Cells, [&](Cell other) {
        return other == cell || (WordAt(other) & GivenBit) != 0 ||
               (DigitsInDomain(placed, other) & digit) != 0;
    });
}

bool IsForced(const PlacedDigits &placed, Cell cell, CellWord digit)
{
    if ((DigitsInDomain(placed, cell) | digit) == CandidateMask) {
        return true;
    }
    const auto &houses = HousesOf(cell.Column, cell.Row);
    return std::ranges::any_of(houses, [&](std::uint8_t house) {
        return IsOnlyPlace(placed, Houses[house], cell, digit);
    });
}

// True when the digits on view force the digits of a cell and its partners one after the other.
// The game then has the solutions that it had before these cells were taken out.
bool GroupIsForced(Cell cell)
{
    PlacedDigits placed{};
    for (const Cell other : Cells) {
        if ((WordAt(other) & GivenBit) != 0) {
            PlaceInHouses(placed, other, WordAt(other) & CandidateMask);
        }
    }
    const auto isForced = [&](Cell member) {
        const CellWord digit = SolutionOf(WordAt(member));
        if (!IsForced(placed, member, digit)) {
            return false;
        }
        PlaceInHouses(placed, member, digit);
        return true;
    };
    return isForced(cell) && std::ranges::all_of(PartnersOf(RevealPattern, cell), isForced);
}

// Whether the game has one solution after a cell and its partners were taken out, known to have
// had one before or not. Empty when the player stopped the search.
std::optional<bool> HasOneSolution(Cell cell, bool hadOne)
{
    if (hadOne && GroupIsForced(cell)) {
        return true;
    }
    if (RunByFillings(CountSolutions) == Stopped) {
        return std::nullopt;
    }
    return SolutionCount == 1;
}

// ---- Screening -----------------------------------------------------------------------------

// Whether the game just rated used every required technique of its own level and of those below.
bool UsedWhatIsRequired()
{
    std::uint32_t reachable = 0;
    for (std::int32_t level = GameRating; level >= RatedEasy; --level) {
        reachable |= LevelTable[static_cast<std::size_t>(level)];
    }
    const std::uint32_t required = reachable & LevelTable[RequiredRow];
    return (required & ~UsedMask) == 0;
}

bool HasWishedDifficulty()
{
    return AcceptsLevel(GameRating) && (LevelTable[RequiredRow] == 0 || UsedWhatIsRequired());
}

bool HasWishedGivens()
{
    CountGivens();
    return GivenCount >= MinGivens && GivenCount <= MaxGivens;
}

// Searches until a game passes; false when the player stopped it.
bool SearchGame()
{
    int misses = 0;
    while (true) {
        ++GamesScreened;
        DrawSearchBanner(GamesScreened);
        if (!RemoveCells()) {
            return false;
        }
        if (!HasWishedGivens()) {
            ++misses;
            if (misses < MissesPerGrid) {
                continue;
            }
        } else {
            RateGame();
            if (StopRequested != False) {
                return false;
            }
            if (HasWishedDifficulty()) {
                return true;
            }
        }
        MakeSolvedGrid();
        misses = 0;
    }
}

void HideAllCells()
{
    for (const Cell cell : Cells) {
        WordAt(cell) &= ~GivenBit;
    }
    GameRating = RatedMultiple;
}

// Cuts the words to what belongs to a game: no marks, and no candidates but those of givens.
void FinishGame()
{
    for (const Cell cell : Cells) {
        CellWord &word = WordAt(cell);
        word &= (word & GivenBit) != 0 ? FinishedBits : FinishedBits & ~CandidateMask;
    }
    CountGivens();
}

} // namespace

bool AcceptsLevel(std::int32_t level)
{
    return (DifficultySelection & BitOf(level)) != 0;
}

void SetGeneratorDefaults()
{
    RevealPattern = 5;
    DifficultySelection = BitTable[RatedEasy];
    MinGivens = 17;
    MaxGivens = 40;
    FillOnStart = False;
    SolveOnStart = False;
    GamesScreened = 0;
}

void MakeSolvedGrid()
{
    while (!TrySolvedGrid()) {
    }
}

bool RemoveCells()
{
    constexpr int allCells = 81;
    for (const Cell cell : Cells) {
        WordAt(cell) &= SolutionMask;
        ShowDigit(WordAt(cell));
    }
    const FreeStart start = RevealPatterns[static_cast<std::size_t>(RevealPattern)].Start;
    int tried = StartFreely(start);
    bool hasOne = start == FreeStart::None; // the cells of a free start go without a test
    SolveMask = CountingMask;
    do {
        const Cell cell = DrawUntried();
        tried += ForGroup(cell, TakeOut);
        const std::optional<bool> one = HasOneSolution(cell, hasOne);
        if (!one) {
            return false;
        }
        if (*one) {
            hasOne = true;
        } else {
            ForGroup(cell, ShowDigit);
        }
    } while (tried < allCells);
    return true;
}

bool GenerateGame()
{
    Grid = {};
    const KeptSettings kept;
    SearchKind = SearchingGame;
    StopRequested = False;
    MakeSolvedGrid();
    bool made = true;
    if (RevealPattern == ExposeManually) {
        HideAllCells();
    } else {
        made = SearchGame();
    }
    if (made) {
        FinishGame();
    }
    SearchKind = NotStoppable;
    return made;
}

} // namespace kelvarine
