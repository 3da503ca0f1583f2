// Rules that the logic must keep on any position: what it concludes is true, what only reports
// changes nothing, and what it marks it can explain.
#include "game/alert_scan.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/singles_chains.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/random_positions.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

namespace kelvarine::testing {
namespace {

constexpr int Positions = 4000;

// The one technique with an unsound step: its walk goes on at depth 0 after a conflict within a
// chain, looks at the four cells of the top left corner as if they were a box and takes a number
// out of one of them.
constexpr std::int32_t UnsoundTechnique = 18;

class Soundness : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    std::mt19937 Random{20261121};
};

// Whether the number that belongs into a cell is still possible in every cell.
bool HoldsSolution(const Solution &solution)
{
    for (std::size_t place = 0; place < 81; ++place) {
        if ((Grid[place % 9 + 1][place / 9 + 1] & BitTable[solution[place]]) == 0) {
            return false;
        }
    }
    return true;
}

// The candidates on Grid for the counter of solutions.
CandidateField FieldOfGrid()
{
    CandidateField field{};
    for (std::size_t place = 0; place < 81; ++place) {
        field[place] =
            static_cast<std::uint16_t>(Grid[place % 9 + 1][place / 9 + 1] & CandidateMask);
    }
    return field;
}

// A sound position of which the givens alone have one solution, so that conclusions of any kind
// must agree with it.
Solution SetSoundPosition(std::mt19937 &random, int number)
{
    Solution solution{};
    do {
        solution = SetRandomPosition(random, PositionKind::Sound, 20 + number % 40);
        ClearCellBits(~(CandidateMask | GivenBit));
    } while (SolutionsOf(FieldOfGrid(), 2).size() != 1);
    return solution;
}

TEST_F(Soundness, NoTechniqueTakesARightNumberAway)
{
    for (int number = 0; number < Positions; ++number) {
        const Solution solution = SetSoundPosition(Random, number);
        const GridTable position = Grid;
        for (const TechniqueRow &row : Techniques) {
            if (row.Number == UnsoundTechnique) {
                continue;
            }
            for (const OperationList &list : {row.DriverApply, row.Driver, row.AlertScan}) {
                for (const Operation operation : list) {
                    if (operation == nullptr) {
                        break;
                    }
                    Grid = position;
                    Flag found = False;
                    operation(ModeChange, found);
                    ASSERT_TRUE(HoldsSolution(solution)) << row.ReportName << " on\n"
                                                         << PencilmarksOf(position) << "gives\n"
                                                         << PencilmarksOf(Grid);
                }
            }
        }
    }
}

TEST_F(Soundness, NoDriverRunTakesARightNumberAway)
{
    LevelTable[4] &= ~BitTable[UnsoundTechnique];
    for (int number = 0; number < Positions / 4; ++number) {
        const Solution solution = SetSoundPosition(Random, number);
        const GridTable position = Grid;
        for (const std::int32_t mode : {SolveAsPlayer, SolveForRating}) {
            Grid = position;
            SolveMask = RatingMask & ~TrialBit;
            ApplyLogic(mode);
            ASSERT_TRUE(HoldsSolution(solution)) << PencilmarksOf(position);
        }
    }
}

// The unsound step looks at the four cells of the top left corner and at no others.
TEST_F(Soundness, OnlyTheCornerLosesARightNumberToASinglesChain)
{
    for (int number = 0; number < Positions; ++number) {
        const Solution solution = SetSoundPosition(Random, number);
        const GridTable position = Grid;
        Flag found = False;
        SearchSinglesChains(ModeChange, found);
        for (const Cell cell : Cells) {
            if (cell.Column > 2 || cell.Row > 2) {
                const auto place = static_cast<std::size_t>((cell.Row - 1) * 9 + cell.Column - 1);
                ASSERT_NE(WordAt(cell) & BitTable[solution[place]], 0U) << PencilmarksOf(position);
            }
        }
    }
}

// The known game on which the unsound step goes wrong, and the proof that nothing else does:
// without the technique the same logic solves it.
TEST_F(Soundness, OnlyTheWalkOnDepthZeroIsUnsound)
{
    constexpr std::string_view game =
        "..............1..2..3....4.........1..4.3..5...6..7......5.6.8..1..9....27.......";
    SetGame(game);
    const GridTable full = Grid;
    const Solution solution = SolutionsOf(FieldOf(game), 2).front();
    SolveMask = RatingMask;
    EXPECT_EQ(ApplyLogic(SolveForRating), NotSolved) << "the unsound step does no harm any more";
    LevelTable[4] &= ~BitTable[UnsoundTechnique];
    Grid = full;
    EXPECT_EQ(ApplyLogic(SolveForRating), Solved);
    EXPECT_TRUE(HoldsSolution(solution));
}

TEST_F(Soundness, ReportingModesChangeNoCandidateAndNoSolution)
{
    constexpr CellWord lasting = GivenBit | CandidateMask | SolutionMask | CellColour;
    for (int number = 0; number < Positions; ++number) {
        const PositionKind kind = PositionKinds[static_cast<std::size_t>(number) % 4];
        SetRandomPosition(Random, kind, number % 82);
        AlertMask = RatingMask;
        MaxSinglesLinks = 6;
        MaxRPLinks = 6;
        MaxXYLinks = 6;
        const GridTable position = Grid;
        for (std::int32_t mode = ModeAlert; mode <= ModeFull; ++mode) {
            ScanAlerts(mode);
            for (const Cell cell : Cells) {
                ASSERT_EQ(WordAt(cell) & lasting, position[cell.Column][cell.Row] & lasting)
                    << "mode " << mode;
            }
        }
    }
}

TEST_F(Soundness, ThreeHintStagesSpeakOfOneConclusion)
{
    int hints = 0;
    for (int number = 0; number < Positions; ++number) {
        SetSoundPosition(Random, number);
        const GridTable position = Grid;
        ScanAlerts(ModeTeaser);
        const std::string teaser = HintText;
        ScanAlerts(ModeTeaserPlace);
        const std::string place = HintText;
        ASSERT_EQ(place.substr(0, teaser.size()), teaser);
        ASSERT_TRUE(teaser.empty() == (place.size() == teaser.size()));
        if (teaser.empty()) {
            continue;
        }
        ++hints;
        ClearCellBits(PassMarks);
        ScanAlerts(ModeFull);
        const std::string words = HintText;
        const std::string title = HintTitle;
        const std::string target = CellsWith(SelectedBit);
        ASSERT_EQ(target.size(), 2U) << words;
        // The same technique explains the same cell in the same words when it is asked about it.
        Grid = position;
        AlertMask = RatingMask;
        WordAt(CellNamed(target)) |= SelectedBit;
        HintTitle.clear();
        ScanAlerts(ModeExplain);
        ASSERT_EQ(HintText, words);
        ASSERT_EQ(HintTitle, title);
    }
    EXPECT_GT(hints, Positions / 2);
}

TEST_F(Soundness, EveryAlertOfOneTechniqueCanBeExplained)
{
    int alerts = 0;
    for (int number = 0; number < Positions / 2; ++number) {
        const PositionKind kind = PositionKinds[static_cast<std::size_t>(number) % 3];
        SetRandomPosition(Random, kind, 20 + number % 40);
        ClearCellBits(~(CandidateMask | GivenBit));
        MaxSinglesLinks = 8;
        MaxRPLinks = 8;
        MaxXYLinks = 8;
        const GridTable position = Grid;
        const auto &row = Techniques[static_cast<std::size_t>(number) % Techniques.size()];
        AlertMask = BitOf(row.Number);
        ScanAlerts(ModeAlert);
        const GridTable marked = Grid;
        for (const Cell cell : Cells) {
            if ((marked[cell.Column][cell.Row] & AlertBit) == 0) {
                continue;
            }
            ++alerts;
            Grid = position;
            WordAt(cell) |= SelectedBit;
            ScanAlerts(ModeExplain);
            ASSERT_FALSE(HintText.empty())
                << row.ReportName << " at " << CellsWith(SelectedBit) << " on\n"
                << PencilmarksOf(position);
        }
    }
    EXPECT_GT(alerts, 1000);
}

// The technique that a game was made to need is the hardest that its rating uses.
TEST_F(Soundness, GamesOfEveryLevelRateAsTheyWereMade)
{
    std::ifstream lines(TEST_DATA "/levels.txt");
    int level = 0;
    std::string game;
    int games = 0;
    while (lines >> level >> game) {
        SetGivens(game);
        RateGame();
        ASSERT_EQ(GameRating, level) << game;
        ++games;
    }
    EXPECT_EQ(games, 300);
}

} // namespace
} // namespace kelvarine::testing
