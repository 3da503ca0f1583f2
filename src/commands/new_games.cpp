#include "commands/new_games.h"

#include "commands/save_question.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "generator/game_number.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "outside/board.h"
#include "outside/messages.h"
#include "outside/window.h"

#include <memory>
#include <string>
#include <utility>

namespace kelvarine {

namespace {

constexpr std::int32_t FewestGivensFound = 17; // no game with one solution has fewer

// ---- Checks of the settings ----------------------------------------------------------------

bool AcceptsNoLevel()
{
    return (DifficultySelection & LevelBits) == 0;
}

// Trial and error makes up the extreme level, so that one always has something.
bool SelectsLevelWithTechniques()
{
    for (std::int32_t level = RatedEasy; level <= Levels; ++level) {
        if (AcceptsLevel(level) &&
            (LevelTable[static_cast<std::size_t>(level)] != 0 || level == RatedExtreme)) {
            return true;
        }
    }
    return false;
}

// Whether the logic that is applied to new games would solve every game of the wished levels.
bool AppliedLogicSolvesAll()
{
    if (SolveOnStart == False || AcceptsLevel(RatedExtreme)) {
        return false;
    }
    for (std::int32_t level = RatedEasy; level <= Levels; ++level) {
        if (AcceptsLevel(level) &&
            (LevelTable[static_cast<std::size_t>(level)] & ~SolveMask) != 0) {
            return false;
        }
    }
    return true;
}

// The notices are shown to the letter: "level's of" here and "area" in the next one are intended.
constexpr std::string_view NoLevelNotice = "Please select one or more level's of difficulty\r"
                                           "on the \"New Games\" tab of the configuration screen.";

constexpr std::string_view NoTechniqueNotice =
    "There area no logic techniques that meet your requested level of difficulty.\r"
    "\r"
    "On the configuration screen:\r"
    "\r"
    "Please select one or more different levels of difficulty on the \"New Games\" tab\r"
    "and/or change the difficulty rating of the logic techniques on the \"Logic\" tab.\r";

constexpr std::string_view AllSolvedNotice =
    "You've chosen to apply selected solve logic to your new games.\r"
    "\r"
    "However, the techniques you've selected for solving on the logic tab will not\r"
    "allow you to generate a game that meets your requested level of difficulty.\r"
    "\r"
    "Please select one or more different levels of difficulty on the \"New Games\" tab\r"
    "and/or change your solve selections on the \"Logic\" tab.";

constexpr std::string_view RangeNotice =
    "A new game cannot be generated because the minimum # of givens exceeds\r"
    "the maximum # of givens on the \"New Games\" tab of the configuration screen.";

std::string FewGivensQuestion()
{
    return "The maximum # of givens is set to " + std::to_string(MaxGivens) +
           " on the \"New Games\" tab of the configuration screen,\r"
           "yet a single-solution game with less than 17 givens has never been found.\r"
           "\r"
           "Would you like to continue searching anyway?";
}

// True when the settings can work, or the player wants to try all the same.
bool SettingsAreAccepted()
{
    if (AcceptsNoLevel()) {
        ShowMessage(NoLevelNotice);
        return false;
    }
    if (!SelectsLevelWithTechniques()) {
        ShowMessage(NoTechniqueNotice);
        return false;
    }
    if (AppliedLogicSolvesAll()) {
        ShowMessage(AllSolvedNotice);
        return false;
    }
    if (MinGivens > MaxGivens) {
        ShowMessage(RangeNotice);
        return false;
    }
    return MaxGivens >= FewestGivensFound || AskYesNo(FewGivensQuestion());
}

// Applies the player's logic to a game that has just been made. It is still the search for a game,
// and stopped like it: games that the logic solves outright could follow each other without an end.
std::int32_t ApplyToNewGame()
{
    SearchKind = SearchingGame;
    const std::int32_t result = ApplyLogic(SolveAsPlayer);
    SearchKind = NotStoppable;
    return result;
}

// Makes games until one is left unsolved by the logic that is applied to it. False when the player
// has stopped the search.
bool SearchForGame()
{
    while (GenerateGame()) {
        FillIfWished();
        const std::int32_t result = SolveOnStart == False ? NotSolved : ApplyToNewGame();
        if (result != Solved) {
            return result == NotSolved;
        }
    }
    return false;
}

// What follows a search: the game that it made, or the one before.
void StartOrBringBack(bool made, std::unique_ptr<GameInHand> before)
{
    if (made) {
        before
            .reset(); // given up, so that nobody keeps it with the name and the time of the new one
        StartGame(NewGame);
    } else {
        BringBack(*before);
    }
    DrawBoard();
    RefreshWindow();
}

} // namespace

void FillIfWished()
{
    if (SolveOnStart != False || FillOnStart != False) {
        FillPencilmarks();
    }
}

void mnuGameRandom()
{
    QuerySaveGame();
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    if (RevealPattern != ExposeManually && !SettingsAreAccepted()) {
        return;
    }
    // The history is too large for the stack.
    auto before = std::make_unique<GameInHand>();
    GamesScreened = 0;
    StartOrBringBack(SearchForGame(), std::move(before));
}

void UserSelectedGame()
{
    QuerySaveGame();
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    auto before = std::make_unique<GameInHand>();
    GamesScreened = 0;
    if (!SelectGameNumber(UserSelected)) {
        return;
    }
    bool made = GenerateGame();
    if (made) {
        FillIfWished();
        made = SolveOnStart == False || ApplyToNewGame() != Stopped;
    }
    StartOrBringBack(made, std::move(before));
}

} // namespace kelvarine
