#include "grid/grid.h"
#include "grid/history.h"
#include "input/number_keys.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <bit>
#include <functional>
#include <random>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

// Signs that no key and no button gives, beside the three that they do.
constexpr std::array<std::int32_t, 6> Signs{0, 1, 2, 3, -1, 2147483647};

// Fields of a cell that no number may touch, all set.
constexpr CellWord Bystanders = SolutionMask | AlertBit | ScratchMarks;

class NumberKeys : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        HistoryCount = 1;
        HistoryPosition = 1;
    }
};

bool Press(std::int32_t number, std::int32_t mode, std::int32_t sign)
{
    Flag update = False;
    ProcessNumKey(number, mode, sign, update);
    EXPECT_TRUE(update == True || update == False);
    return update != False;
}

CellWord Bit(std::int32_t number)
{
    return BitOf(number);
}

// What one key does to one cell, worked out anew for each row of a table, and what follows.
using WordChange = std::function<CellWord(CellWord word, std::int32_t number)>;

CellWord RandomWord(std::mt19937 &random)
{
    CellWord word = random() & (Bystanders | SelectedBit | CellColour | SelectionMarks);
    switch (random() % 4) {
    case 0:
        return word | Bit(static_cast<std::int32_t>(random() % 9) + 1) | (random() & GivenBit);
    case 1:
        return word;
    default:
        return word | (random() & CandidateMask);
    }
}

void SetRandomGrid(std::mt19937 &random)
{
    for (const Cell cell : Cells) {
        WordAt(cell) = RandomWord(random);
    }
}

// Presses a key on random grids and compares every cell with the change that is expected of it.
// Words that a change touches are recorded as one level, with nothing painted; without a change
// there is no level and the board is painted so many times.
void ExpectRecordedChange(std::int32_t mode, std::int32_t number, std::int32_t sign,
                          CellWord filter, int paintsWithoutChange, const WordChange &change,
                          CellWord comparedFields)
{
    std::mt19937 random(static_cast<unsigned>(number * 100 + mode));
    for (int round = 0; round < 20; ++round) {
        SetRandomGrid(random);
        const GridTable before = Grid;
        NumberFilter = filter;
        HistoryCount = 1;
        HistoryPosition = 1;
        ForgetRecord();
        const bool update = Press(number, mode, sign);
        bool changed = false;
        for (const Cell cell : Cells) {
            const CellWord old = before[cell.Column][cell.Row];
            const CellWord expected = change(old, number);
            ASSERT_EQ(WordAt(cell), expected)
                << "mode " << mode << " number " << number << " sign " << sign;
            changed = changed || ((old ^ expected) & comparedFields) != 0;
        }
        ASSERT_EQ(update, changed);
        ASSERT_EQ(HistoryCount, changed ? 2 : 1);
        ASSERT_EQ(Seen.BoardPaints, changed ? 0 : paintsWithoutChange);
        ASSERT_EQ(NumberFilter, filter);
        if (changed) {
            ASSERT_EQ(Level(1), Grid);
        }
    }
}

// ---- Mode 0 --------------------------------------------------------------------------------

bool MayBeEdited(CellWord word)
{
    return (word & (SelectedBit | GivenBit)) == SelectedBit;
}

TEST_F(NumberKeys, EditWritesTheCandidatesOfSelectedCells)
{
    const WordChange replace = [](CellWord word, std::int32_t number) {
        if (!MayBeEdited(word)) {
            return word;
        }
        return number == 0 ? word | 0x3FE : (word & ~CellWord{0x3FF}) | Bit(number);
    };
    const WordChange takeAway = [](CellWord word, std::int32_t number) {
        if (!MayBeEdited(word)) {
            return word;
        }
        return number == 0 ? word & ~CellWord{0x3FE} : word & ~Bit(number);
    };
    const WordChange add = [](CellWord word, std::int32_t number) {
        if (!MayBeEdited(word)) {
            return word;
        }
        return number == 0 ? word | 0x3FE : word | Bit(number);
    };
    for (std::int32_t number = 0; number <= 9; ++number) {
        for (const std::int32_t sign : Signs) {
            const WordChange &change = sign == 0 ? replace : sign == 1 ? takeAway : add;
            ExpectRecordedChange(0, number, sign, 0x3FE, 1, change, ~CellWord{0});
        }
    }
}

TEST_F(NumberKeys, EditLeavesNumbersOutsideTheFilterAlone)
{
    for (std::int32_t number = 1; number <= 9; ++number) {
        for (const std::int32_t sign : Signs) {
            ExpectRecordedChange(
                0, number, sign, 0x3FEU & ~Bit(number), 1,
                [](CellWord word, std::int32_t) { return word; }, ~CellWord{0});
        }
    }
}

TEST_F(NumberKeys, ZeroEditsAllNumbersWhateverTheFilter)
{
    Grid[1][1] = SelectedBit | Bit(5);
    NumberFilter = Bit(3);
    EXPECT_TRUE(Press(0, 0, 0));
    EXPECT_EQ(Grid[1][1], SelectedBit | CandidateMask);
    EXPECT_TRUE(Press(0, 0, 1));
    EXPECT_EQ(Grid[1][1], SelectedBit);
    EXPECT_TRUE(Press(0, 0, 2));
    EXPECT_EQ(Grid[1][1], SelectedBit | CandidateMask);
}

TEST_F(NumberKeys, EditWithoutASelectionPaintsOnce)
{
    SetGame(EasyGame);
    const GridTable before = Grid;
    EXPECT_FALSE(Press(5, 0, 0));
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(Seen.Calls, Texts{"board: "});
}

TEST_F(NumberKeys, IsolatedThreesKeepFivesOut)
{
    SetGame(EasyGame);
    Grid[3][1] |= SelectedBit;
    const GridTable before = Grid;
    NumberFilter = Bit(3);
    EXPECT_FALSE(Press(5, 0, 1));
    EXPECT_FALSE(Press(5, 0, 0));
    EXPECT_EQ(Grid, before);
}

TEST_F(NumberKeys, ZeroPutsAllNineBackAndSkipsGivens)
{
    Grid[1][1] = SelectedBit | Bit(4);
    Grid[2][1] = SelectedBit | Bit(5) | GivenBit;
    EXPECT_TRUE(Press(0, 0, 0));
    EXPECT_EQ(Grid[1][1], SelectedBit | CandidateMask);
    EXPECT_EQ(Grid[2][1], SelectedBit | Bit(5) | GivenBit);
}

TEST_F(NumberKeys, NumberThatStandsAloneAlreadyIsNoChange)
{
    Grid[1][1] = SelectedBit | Bit(4);
    EXPECT_FALSE(Press(4, 0, 0));
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(Seen.BoardPaints, 1);
}

TEST_F(NumberKeys, TakingTheLastNumberEmptiesTheCell)
{
    SetGivens(EasySolution);
    Grid[1][1] = SelectedBit | Bit(5);
    EXPECT_TRUE(Press(5, 0, 1));
    EXPECT_EQ(Grid[1][1], SelectedBit);
    EXPECT_EQ(IsGridSolved(), False);
}

TEST_F(NumberKeys, OneChangeIsOneLevelAndTheCallerPaints)
{
    Grid[1][1] = SelectedBit;
    Grid[5][5] = SelectedBit;
    EXPECT_TRUE(Press(5, 0, 0));
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(Seen.Calls, Texts{});
}

// ---- Mode 1 --------------------------------------------------------------------------------

TEST_F(NumberKeys, HighlightColoursSelectedCellsGivensToo)
{
    const WordChange colour = [](CellWord word, std::int32_t number) {
        if ((word & SelectedBit) == 0) {
            return word;
        }
        const CellWord rest = word & ~CellWord{0xF000000} & ~SelectedBit;
        return rest | static_cast<CellWord>(number) * 0x1000000;
    };
    for (std::int32_t number = 0; number <= 9; ++number) {
        for (const std::int32_t sign : Signs) {
            for (const CellWord filter : {CellWord{0x3FE}, CellWord{0}}) {
                ExpectRecordedChange(1, number, sign, filter, 0, colour, CellColour);
            }
        }
    }
}

TEST_F(NumberKeys, ColourThatIsThereAlreadyIsNoChangeButEndsTheSelection)
{
    Grid[1][1] = SelectedBit | CellWord{4} << ColourShift;
    EXPECT_FALSE(Press(4, 1, 0));
    EXPECT_EQ(Grid[1][1], CellWord{4} << ColourShift);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(Seen.Calls, Texts{});
}

TEST_F(NumberKeys, ColourThatWasTakenAwayIsInTheLevelBefore)
{
    Grid[1][1] = SelectedBit | CellWord{4} << ColourShift;
    Level(1) = Grid;
    EXPECT_TRUE(Press(0, 1, 0));
    EXPECT_EQ(Grid[1][1], 0U);
    EXPECT_EQ(Level(1)[1][1], 0U);
    EXPECT_EQ(Level(2)[1][1], SelectedBit | CellWord{4} << ColourShift);
}

// ---- Modes 10, 12 and 13 -------------------------------------------------------------------

using Test = std::function<bool(CellWord word, std::int32_t number)>;

void ExpectSelection(std::int32_t mode, const Test &qualifies)
{
    std::mt19937 random(static_cast<unsigned>(mode));
    for (std::int32_t number = 0; number <= 9; ++number) {
        for (const std::int32_t sign : Signs) {
            SetRandomGrid(random);
            const GridTable before = Grid;
            NumberFilter = random() & CandidateMask;
            const CellWord filter = NumberFilter;
            ForgetRecord();
            ASSERT_TRUE(Press(number, mode, sign));
            for (const Cell cell : Cells) {
                CellWord expected = before[cell.Column][cell.Row];
                const bool chosen = qualifies(expected, number);
                if (sign == 0) {
                    expected &= ~CellWord{0x600400};
                }
                if (chosen && (sign == 0 || sign == 2)) {
                    expected |= SelectedBit;
                }
                if (chosen && sign == 1) {
                    expected &= ~SelectedBit;
                }
                ASSERT_EQ(WordAt(cell), expected)
                    << "mode " << mode << " number " << number << " sign " << sign;
            }
            ASSERT_EQ(Seen.Calls, Texts{});
            ASSERT_EQ(HistoryCount, 1);
            ASSERT_EQ(NumberFilter, filter);
        }
    }
}

TEST_F(NumberKeys, SinglesAreSelectedByTheirNumber)
{
    ExpectSelection(10, [](CellWord word, std::int32_t number) {
        return CandidatesIn(word) == 1 && (number == 0 || LowestCandidate(word) == number);
    });
}

TEST_F(NumberKeys, CellsAreSelectedByTheirCount)
{
    ExpectSelection(12, [](CellWord word, std::int32_t number) {
        return std::popcount(word & 0x3FE) == number;
    });
}

TEST_F(NumberKeys, CellsAreSelectedByACandidate)
{
    ExpectSelection(13, [](CellWord word, std::int32_t number) {
        return (word & (number == 0 ? CellWord{0x3FE} : Bit(number))) != 0;
    });
}

TEST_F(NumberKeys, SinglesTakenAwayLeaveTheRestSelected)
{
    Grid[1][1] = SelectedBit | Bit(7);
    Grid[2][1] = SelectedBit | Bit(7) | Bit(8) | HintCellBit;
    Grid[3][1] = SelectedBit | Bit(6);
    EXPECT_TRUE(Press(7, 10, 1));
    EXPECT_EQ(CellsWith(SelectedBit), "B1 C1");
    EXPECT_EQ(CellsWith(HintCellBit), "B1");
}

TEST_F(NumberKeys, CountZeroWithoutAnEmptyCellClearsTheSelection)
{
    SetGame(EasyGame);
    Grid[4][4] |= SelectedBit;
    EXPECT_TRUE(Press(0, 12, 0));
    EXPECT_EQ(CellsWith(SelectedBit), "");
}

// ---- Mode 11 -------------------------------------------------------------------------------

TEST_F(NumberKeys, DomainsOfSinglesReplaceTheSelection)
{
    for (const std::int32_t sign : Signs) {
        Grid = {};
        Grid[5][5] = Bit(7) | GivenBit;
        Grid[1][1] = Bit(7) | Bit(8) | SelectedBit;
        Grid[9][1] = Bit(6) | HintCellBit | HintDomainBit;
        EXPECT_TRUE(Press(7, 11, sign));
        EXPECT_EQ(CellsWith(SelectedBit), "A5 B5 C5 D4 D5 D6 E1 E2 E3 E4 E5 E6 E7 E8 E9 F4 F5 F6 "
                                          "G5 H5 J5");
        EXPECT_EQ(CellsWith(HintCellBit | HintDomainBit), "");
        EXPECT_EQ(Seen.Calls, Texts{});
        EXPECT_EQ(HistoryCount, 1);
    }
}

TEST_F(NumberKeys, ZeroTakesTheDomainOfAnyCellWithCandidates)
{
    Grid[1][1] = Bit(3) | Bit(4);
    Grid[9][9] = Bit(2);
    EXPECT_TRUE(Press(0, 11, 0));
    EXPECT_EQ(CellsWith(SelectedBit),
              "A1 A2 A3 A4 A5 A6 A7 A8 A9 B1 B2 B3 B9 C1 C2 C3 C9 D1 D9 E1 E9 F1 F9 G1 G7 G8 G9 "
              "H1 H7 H8 H9 J1 J2 J3 J4 J5 J6 J7 J8 J9");
}

TEST_F(NumberKeys, NoCellWithSevenAloneSelectsNothing)
{
    Grid[1][1] = Bit(7) | Bit(8);
    Grid[4][4] = SelectedBit;
    EXPECT_TRUE(Press(7, 11, 0));
    EXPECT_EQ(CellsWith(SelectedBit), "");
}

// ---- Mode 20 -------------------------------------------------------------------------------

TEST_F(NumberKeys, ViewChangesTheFilterAlone)
{
    for (CellWord before = 0; before <= 0x3FE; before += 2) {
        for (std::int32_t number = 0; number <= 9; ++number) {
            for (const std::int32_t sign : Signs) {
                CellWord expected = before;
                if (number == 0) {
                    expected = 0x3FE;
                } else if (sign == 0) {
                    expected = Bit(number);
                } else if (sign == 1) {
                    expected = before & ~Bit(number);
                } else if (sign == 2) {
                    expected = before | Bit(number);
                }
                NumberFilter = before;
                ASSERT_EQ(Press(number, 20, sign), expected != before);
                ASSERT_EQ(NumberFilter, expected) << number << ' ' << sign;
            }
        }
    }
    EXPECT_EQ(Seen.Calls, Texts{});
    EXPECT_EQ(Grid, GridTable{});
    EXPECT_EQ(HistoryCount, 1);
}

TEST_F(NumberKeys, NumberOutOfViewCannotBeTakenAwayAgain)
{
    NumberFilter = Bit(3);
    EXPECT_FALSE(Press(5, 20, 1));
    EXPECT_TRUE(Press(3, 20, 1));
    EXPECT_EQ(NumberFilter, 0U);
    EXPECT_TRUE(Press(0, 20, 1));
    EXPECT_EQ(NumberFilter, 0x3FEU);
}

// ---- All modes -----------------------------------------------------------------------------

TEST_F(NumberKeys, OtherModesDoNothing)
{
    SetGame(EasyGame);
    Grid[3][1] |= SelectedBit;
    const std::string before = ProgramState();
    for (const std::int32_t mode : {-1, 2, 9, 14, 19, 21, 100}) {
        for (const std::int32_t sign : Signs) {
            EXPECT_FALSE(Press(5, mode, sign));
        }
    }
    EXPECT_EQ(ProgramState(), before);
}

TEST_F(NumberKeys, UpdateIsNeverTakenBack)
{
    for (const std::int32_t mode : {0, 1, 10, 11, 12, 13, 20, 99}) {
        Flag update = True;
        ProcessNumKey(0, mode, 0, update);
        EXPECT_EQ(update, True) << mode;
    }
}

} // namespace
} // namespace kelvarine::testing
