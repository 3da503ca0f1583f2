// The life of one game: how it begins, and what happens when it is solved. Every route that puts a
// position on the board ends in StartGame; every route that may finish a game ends in
// UpdateStatistics.
#pragma once

#include "grid/cell_word.h"

#include <cstdint>
#include <string>

namespace kelvarine {

// ---- The game ------------------------------------------------------------------------------

extern std::string GameFilePath; // empty when the game has no file
extern Flag FileWasText;         // that file was read as text, and holds no game of the program's
extern Flag StatsCounted;        // this game has been recorded, or must not be
extern std::uint32_t FilesBegun; // games that began from a file, since the start of the program

// ---- The session ---------------------------------------------------------------------------

// Answer of the latest save question or file dialog.
inline constexpr std::int32_t AnsweredNothing = 0;
inline constexpr std::int32_t AnsweredOk = 1;
inline constexpr std::int32_t AnsweredCancel = 2;
extern std::int32_t LastAnswer;

// Where a selection began and where it stands now, 0 for none.
extern std::int32_t AnchorColumn;
extern std::int32_t AnchorRow;
extern std::int32_t CursorColumn;
extern std::int32_t CursorRow;

// Puts the state above to its defaults.
void SetLifecycleDefaults();

// Sets the four numbers above to 0.
void ClearPointerState();

inline constexpr std::int32_t NewGame = 0;
inline constexpr std::int32_t SameGame = 1;
inline constexpr std::int32_t GameFromFile = 2;

// Begins the game that stands on Grid. NewGame resets history, snapshot, name, title, statistics
// flag and time and saves the start position; SameGame keeps name, start position and statistics
// flag; GameFromFile touches none of these. All three rate the game and scan for alerts, and a
// solved grid goes on to UpdateStatistics. A new game counts as modified.
void StartGame(std::int32_t mode);

// The grid is solved: starts the tune and the win display, stops the clock and counts the game.
void UpdateStatistics();

// What follows a change of the grid: alerts, win test, board and window.
void FinishChange();

// Alerts and win test alone, for callers that repaint by themselves.
void ScanAndTestWin();

} // namespace kelvarine
