#include "game/assistance.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view OneCellQuestion = "Are you sure you want to expose this cell?";
constexpr std::string_view CellsQuestion = "Are you sure you want to expose these cells?";

class Expose : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }

    static CellWord SolutionBit(std::size_t number)
    {
        return BitTable[number] << SolutionShift;
    }

    static void Select(std::initializer_list<Cell> cells)
    {
        for (const Cell cell : cells) {
            WordAt(cell) |= SelectedBit;
        }
    }

    // Exposes with a yes to the question.
    static void ExposeSelected()
    {
        ForgetRecord();
        Seen.YesNoAnswers = {true};
        mnuExposeSelectedCells();
    }
};

TEST_F(Expose, NeedsSelectedCells)
{
    mnuExposeSelectedCells();
    EXPECT_EQ(Acts(), Texts{"message: There are no cells selected."});
}

TEST_F(Expose, OneCellIsAskedFor)
{
    Select({{3, 1}});
    const GridTable before = Grid;
    mnuExposeSelectedCells();
    EXPECT_EQ(Seen.Questions, Texts{std::string(OneCellQuestion)});
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(HistoryCount, 1);
}

TEST_F(Expose, SeveralCellsAreAskedFor)
{
    Select({{3, 1}, {4, 1}});
    const GridTable before = Grid;
    mnuExposeSelectedCells();
    EXPECT_EQ(Seen.Questions, Texts{std::string(CellsQuestion)});
    EXPECT_EQ(Grid, before);
}

TEST_F(Expose, CellBecomesAGivenWithItsSolution)
{
    Select({{3, 1}});
    WordAt({3, 1}) |= 0x05000000;
    const CellWord solution = WordAt({3, 1}) & SolutionMask;
    const std::int32_t givens = GivenCount;
    ExposeSelected();
    EXPECT_EQ(WordAt({3, 1}), BitTable[4] | GivenBit | solution | 0x05000000)
        << "colour and solution stay";
    EXPECT_EQ(GivenCount, givens + 1);
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(Level(1), Grid);
    EXPECT_EQ(GameModified, True);
}

TEST_F(Expose, SelectionChainAndPointerGo)
{
    Select({{3, 1}, {4, 1}});
    ChainColumns[0] = 5;
    AnchorColumn = AnchorRow = CursorColumn = CursorRow = 3;
    ExposeSelected();
    EXPECT_EQ(CellsWith(SelectedBit), "");
    EXPECT_EQ(ChainColumns[0], 0);
    EXPECT_EQ(AnchorColumn + AnchorRow + CursorColumn + CursorRow, 0);
    EXPECT_EQ(Seen.BoardPaints, 1);
}

TEST_F(Expose, GivenInTheSelectionStaysAsItIs)
{
    Select({{1, 1}, {3, 1}});
    const CellWord given = WordAt({1, 1}) & ~SelectedBit;
    const std::int32_t givens = GivenCount;
    ExposeSelected();
    EXPECT_EQ(WordAt({1, 1}), given);
    EXPECT_EQ(WordAt({3, 1}) & LastingFields, BitTable[4] | GivenBit);
    EXPECT_EQ(GivenCount, givens + 1);
}

TEST_F(Expose, GivenWithAnotherSolutionKeepsItsNumber)
{
    WordAt({1, 1}) = BitTable[5] | GivenBit | SelectedBit | SolutionBit(7);
    ExposeSelected();
    EXPECT_EQ(WordAt({1, 1}) & LastingFields, BitTable[5] | GivenBit);
    EXPECT_EQ(Seen.Questions, Texts{std::string(OneCellQuestion)});
    EXPECT_EQ(HistoryCount, 2) << "recorded although nothing changed";
}

TEST_F(Expose, GameOfUnknownSolutionReportsTheCellAsUnknown)
{
    StartSavedGame(Dots(81));
    EXPECT_EQ(GameRating, 6);
    Select({{3, 1}});
    mnuExposeSelectedCells();
    EXPECT_EQ(Acts(), Texts{"message: This cell is unknown."});
    Select({{9, 9}});
    ForgetRecord();
    mnuExposeSelectedCells();
    EXPECT_EQ(Acts(), Texts{"message: These cells are unknown."});
}

TEST_F(Expose, LastCellInScanOrderSpeaksForAll)
{
    Grid = {};
    WordAt({3, 1}) = SelectedBit | SolutionBit(4);
    WordAt({4, 1}) = SelectedBit; // the last one: columns come first
    ForgetRecord();
    mnuExposeSelectedCells();
    EXPECT_EQ(Acts(), Texts{"message: These cells are unknown."});
    WordAt({2, 9}) = SelectedBit;
    WordAt({4, 1}) = SelectedBit | SolutionBit(6);
    ExposeSelected();
    EXPECT_EQ(Seen.Questions, Texts{std::string(CellsQuestion)});
    EXPECT_EQ(WordAt({2, 9}) & LastingFields, GivenBit) << "exposed as an empty given";
    EXPECT_EQ(WordAt({4, 1}) & LastingFields, BitTable[6] | GivenBit);
}

TEST_F(Expose, GameIsRatedAnewAndScannedForAlerts)
{
    StartSavedGame(EasyGame);
    WordAt({3, 1}) = SelectedBit | SolutionBit(5); // a second 5 in the row
    AlertMask = 0xFFFFFFFF;
    ExposeSelected();
    EXPECT_EQ(GameRating, 7);
    EXPECT_NE(CellsWith(AlertBit), "");
}

TEST_F(Expose, OpenSolutionsScreenListsAnew)
{
    Select({{3, 1}});
    ExposeSelected();
    const auto isListing = [](const std::string &call) {
        return call.starts_with("solutions: ");
    };
    EXPECT_EQ(std::ranges::count_if(Seen.Calls, isListing), 0);
    SolutionsOpen = True;
    Select({{4, 1}});
    ExposeSelected();
    EXPECT_EQ(std::ranges::count_if(Seen.Calls, isListing), 1);
}

TEST_F(Expose, GameIsRatedBeforeTheListingAndScannedBehindIt)
{
    SolutionsOpen = True;
    AlertMask = 0xFFFFFFFF;
    WordAt({3, 1}) = SelectedBit | SolutionBit(5); // a second 5 in the row
    std::int32_t rating = 0;
    std::int32_t levels = 0;
    std::string alerts = "no listing";
    Seen.YesNoAnswers = {true};
    Seen.OnYield = [&] {
        if (SearchKind == ListingSolutions) {
            rating = GameRating;
            levels = HistoryCount;
            alerts = CellsWith(AlertBit);
        }
    };
    mnuExposeSelectedCells();
    EXPECT_EQ(rating, 7);
    EXPECT_EQ(levels, 2);
    EXPECT_EQ(alerts, "");
    EXPECT_NE(CellsWith(AlertBit), "");
}

TEST_F(Expose, LastCellsExposedWinTheGame)
{
    for (const Cell cell : Cells) {
        WordAt(cell) |= SelectedBit;
    }
    ExposeSelected();
    EXPECT_EQ(GivenCount, 81);
    EXPECT_NE(IsGridSolved(), False);
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_EQ(StatsCounted, True);
    EXPECT_EQ(Level(2)[3][1] & GivenBit, 0U) << "and it can be undone";
}

} // namespace
} // namespace kelvarine::testing
