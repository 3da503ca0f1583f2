// Messages and questions to the player. Each returns when the player has answered. All texts are
// UTF-8; a carriage return in a message is a line break.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

inline constexpr std::string_view ProgramName = "Kelvarine";

enum class Answer : std::uint8_t { Yes, No, Cancel };

// Shows a text with an OK button.
void ShowMessage(std::string_view text, std::string_view title = ProgramName);

// Asks a question with Yes and No, No the default. True for Yes.
bool AskYesNo(std::string_view text, std::string_view title = ProgramName);

// Asks a question with Yes, No and Cancel, Yes the default.
Answer AskYesNoCancel(std::string_view text);

// Asks for a line of text. Empty when the player cancels.
std::string AskText(std::string_view prompt);

} // namespace kelvarine
