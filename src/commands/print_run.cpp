#include "commands/print_run.h"

#include "board/margin.h"
#include "commands/new_games.h"
#include "game/game_in_hand.h"
#include "game/search.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "outside/board.h"
#include "outside/messages.h"
#include "outside/printer.h"
#include "outside/window.h"
#include "print/page_layout.h"
#include "print/print_settings.h"

#include <array>
#include <memory>
#include <string_view>
#include <vector>

namespace kelvarine {

Flag PrintRunning;
Flag BatchUnderWay;
std::int32_t PrintGameNumber;
std::int32_t PrintGameCount;

namespace {

// A solved grid: the digit of each cell, in the order of Cells.
using SolvedGrid = std::array<std::uint8_t, 81>;

// Prints two texts under a picture, at its left and its right edge; the right one only when both
// fit side by side. False when printing failed.
bool PrintLabels(const PagePlace &place, std::string_view left, std::string_view right)
{
    const double top = place.Top + place.Height;
    const double width = PrintedTextWidth(right);
    if (!PrintText(place.Left, top, left)) {
        return false;
    }
    return PrintedTextWidth(left) + width > place.Width ||
           PrintText(place.Left + place.Width - width, top, right);
}

std::string GameLabel(int number)
{
    return "Game #" + std::to_string(number);
}

void HandOverAndReport()
{
    if (const std::string words = HandOverDocument(); !words.empty()) {
        ShowMessage(words);
    }
}

void PrintCurrentGame()
{
    if (!HasSize() || !ChoosePrinter()) {
        return;
    }
    TakePrintableArea();
    const PrinterPage page = CurrentPrinterPage();
    const PagePlace place = CurrentGamePlace(page.PixelsPerInchAcross, page.PixelsPerInchDown);
    if (PrintPicture(PrintedPicture::Board, place)) {
        PrintLabels(place, WordsOfRating(GameRating).Capital, GivenCountText());
    }
    EndDocument();
    HandOverAndReport();
}

// ---- Batches -------------------------------------------------------------------------------

// Leaves a game on Grid that the logic applied to new games doesn't solve outright. False when the
// player stopped the search.
bool MakeGame()
{
    while (true) {
        GamesScreened = 0;
        if (!GenerateGame()) {
            return false;
        }
        SearchKind = SearchingGame; // as long as the batch runs, which is longer than one game
        FillIfWished();
        if (SolveOnStart == False) {
            return true;
        }
        const std::int32_t result = ApplyLogic(SolveAsPlayer);
        if (result != Solved) {
            return result != Stopped;
        }
    }
}

SolvedGrid SolutionOfGrid()
{
    SolvedGrid solution{};
    for (std::size_t k = 0; k < solution.size(); ++k) {
        const CellWord digits = SolutionOf(WordAt(Cells[k]));
        solution[k] = static_cast<std::uint8_t>(LowestCandidate(digits));
    }
    return solution;
}

void ShowSolution(const SolvedGrid &solution)
{
    for (std::size_t k = 0; k < solution.size(); ++k) {
        WordAt(Cells[k]) = BitTable[solution[k]] | GivenBit;
    }
}

// Prints the game on Grid, on a page of its own when the one before is full.
bool PrintGame(const PageLayout &layout, int number)
{
    const int index = (number - 1) % (layout.Columns * layout.Rows);
    if (index == 0 && number > 1 && !NewPage()) {
        return false;
    }
    const PagePlace place = PlaceOf(layout, index);
    return PrintPicture(PrintedPicture::Game, place) &&
           PrintLabels(place, WordsOfRating(GameRating).Capital, GameLabel(number));
}

// Makes and prints all games of the batch and collects their solutions. False when the player
// stopped it or printing failed.
bool PrintGames(const PrinterPage &page, std::vector<SolvedGrid> &solutions)
{
    const auto index = static_cast<std::size_t>(PrintGamesPerPage);
    const PageLayout layout = LayoutOfGames(index, page.Width, page.Height);
    PrintGameCount = GamesInBatch();
    for (int number = 1; number <= PrintGameCount; ++number) {
        PrintGameNumber = number;
        if (!MakeGame() || !PrintGame(layout, number)) {
            return false;
        }
        solutions.push_back(SolutionOfGrid());
    }
    return true;
}

void PrintSolutions(const PrinterPage &page, const std::vector<SolvedGrid> &solutions)
{
    const PageLayout layout = LayoutOfSolutions(page.Width, page.Height);
    for (std::size_t k = 0; k < solutions.size(); ++k) {
        const int index = static_cast<int>(k) % SolutionsPerPage;
        if (index == 0 && !NewPage()) {
            return;
        }
        ShowSolution(solutions[k]);
        const PagePlace place = PlaceOf(layout, index);
        if (!PrintPicture(PrintedPicture::Game, place) ||
            !PrintLabels(place, "", GameLabel(static_cast<int>(k) + 1))) {
            return;
        }
    }
}

// Prints the batch, ends its document and puts the game in hand back.
void PrintAllOf(const PrinterPage &page)
{
    const auto before = std::make_unique<GameInHand>();
    const Flag withSolutions = PrintIncludeSolutions;
    std::vector<SolvedGrid> solutions;
    PrintRunning = True;
    SearchKind = SearchingGame;
    if (PrintGames(page, solutions) && withSolutions != False) {
        PrintSolutions(page, solutions);
    }
    EndDocument();
    // From here on there is nothing to be stopped, not even the rating of the game in hand.
    SearchKind = NotStoppable;
    BringBack(*before);
    PrintRunning = False;
}

void PrintBatch()
{
    if (PrintPages <= 0) {
        ShowMessage("Please enter the number of pages you'd like to print.");
        return;
    }
    if (!ChoosePrinter()) {
        return;
    }
    TakePrintableArea();
    BatchUnderWay = True;
    PrintAllOf(CurrentPrinterPage());
    DrawBoard();
    RefreshWindow();
    HandOverAndReport(); // what it may ask is asked over the game in hand
    BatchUnderWay = False;
    DoAfterRun();
}

} // namespace

void SetPrintRunDefaults()
{
    PrintRunning = False;
    BatchUnderWay = False;
    PrintGameNumber = 0;
    PrintGameCount = 0;
}

void cmdPrint()
{
    // A batch at work is a search like others, which this asks about.
    if (!ReadyForCommand() || BatchUnderWay != False) {
        return;
    }
    if (PrintMode == PrintNewGames) {
        PrintBatch();
    } else {
        PrintCurrentGame();
    }
}

std::string BatchProgressText()
{
    return " Game " + std::to_string(PrintGameNumber) + " of " + std::to_string(PrintGameCount) +
           " ";
}

} // namespace kelvarine
