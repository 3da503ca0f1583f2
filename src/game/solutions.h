// Listing the solutions of the position on the board, up to 25 of them, and the texts of the screen
// that shows them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// What txtSolutions holds, lines ended by carriage return and line feed.
extern std::string SolutionsOnView;

// Count of solutions in words, as the solutions screen shows it; while they are listed it follows.
extern std::string SolutionCountText;

// A count of solutions in words; 26 stands for more than 25.
std::string SolutionCountWords(std::int32_t count);

// Puts SolutionCount, which goes up while solutions are listed, into SolutionCountText.
void TakeSolutionCount();

// Puts the texts above to their default, which is empty.
void SetSolutionsDefaults();

// Solutions, 81 digits each, as text: format 0 a line for each, format 1 a frame of 13 lines and an
// empty line for each.
std::string SolutionsText(std::int32_t format, std::string_view list);

// Shows SolutionCount and SolutionList in the form of SolutionsFormat.
void ShowSolutions();

// Lists the solutions of the position on Grid into SolutionList and shows them. Grid and SolveMask
// are as before afterwards. The player may stop it; what was found so far stands then.
void ListSolutions();

// Lists them anew if the solutions screen is open, which then speaks of the position on the board.
void RefreshSolutions();

// Opens the solutions screen and lists.
void mnuShowSolution();

// Changes the format, 0 or 1, of what is listed.
void optSolutionsFormat(std::int32_t format);

} // namespace kelvarine
