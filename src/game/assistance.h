// The commands with which the program helps the player: each is a short flow over the logic, which
// leaves its words, and the messages that show them.
#pragma once

namespace kelvarine {

// A hint in three stages, each asked for: that there is one, where it is, and all of it with its
// cells marked on the board. Changes no candidate.
void mnuHint();

// Tells why the one selected cell carries an alert.
void mnuShowAlertReason();

// Runs the player's selected techniques on the grid as it stands.
void mnuApplyLogic();

// Solves the game. It then no longer counts in the statistics.
void mnuSolveGame();

// Asks, and then makes givens of the selected cells with the numbers of their solution.
void mnuExposeSelectedCells();

// Makes every "a 8" of HintText an "an 8": the texts of the techniques always say "a". Characters
// alone count, so the end of a longer word is taken for the article too; intended.
void MendArticles();

} // namespace kelvarine
