// Choosing a file by the player.
#pragma once

#include <string>
#include <string_view>

namespace kelvarine {

// Full path of the file that was chosen last.
extern std::string ChosenFilePath;

// The types of files that a player chooses from when saving, by number.
inline constexpr int SudokuFiles = 0;
inline constexpr int TextFiles = 1;
inline constexpr int AllFiles = 2;

// Lets the player name a file to save to, firstType being the type that is selected first. False
// when the player cancels; otherwise the path is in ChosenFilePath. Part of the seam to the world.
bool ChooseFileToSave(std::string_view title, int firstType);

} // namespace kelvarine
