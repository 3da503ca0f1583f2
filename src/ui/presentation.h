// The one seam between the engine and the world: every message, question, sound, timer and
// caption goes through these plain functions. The desktop library implements them over the
// toolkit, the tests as a recorder with scripted answers; which one is chosen when linking. All
// texts are UTF-8; a carriage return in a message is a line break.
#pragma once

#include "grid/cell_word.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

inline constexpr std::string_view ProgramName = "Kelvarine";

enum class Answer : std::uint8_t { Yes, No, Cancel };

// ---- Messages and questions; each returns when the player has answered ---------------------

// Shows a text with an OK button.
void ShowMessage(std::string_view text, std::string_view title = ProgramName);

// Asks a question with Yes and No, No the default. True for Yes.
bool AskYesNo(std::string_view text, std::string_view title = ProgramName);

// Asks a question with Yes, No and Cancel, Yes the default.
Answer AskYesNoCancel(std::string_view text);

// Asks for a line of text. Empty when the player cancels.
std::string AskText(std::string_view prompt);

// ---- Event loop ----------------------------------------------------------------------------

// Lets pending events run. Cheap to call often: it looks at the clock first.
void YieldToEvents();

// Lets all pending events run now.
void RunPendingEvents();

// Shows the wait cursor while on, the usual one when off. Calls nest.
void SetWaitCursor(bool on);

// Seconds since midnight, with their fraction.
double SecondsSinceMidnight();

// ---- Timers --------------------------------------------------------------------------------

// Switches the clock's timer, which calls ClockTick once a second.
void SetClockTimer(bool on);

// Switches the win display's timer, which calls WinDisplayTick every so many milliseconds.
void SetWinTimer(bool on, int milliseconds);

// ---- Sound: one at a time, never waited for; failures are silence --------------------------

// Sets the volume of all sounds from now on. The low 16 bits are the left channel, the high 16
// bits the right one, each 0..65535.
void SetSoundVolume(std::uint32_t volume);

// Plays a sound file of the program, given by its bare name, instead of whatever plays.
void PlaySound(std::string_view file, bool loop);

// Stops whatever plays.
void StopSound();

// ---- Clipboard -----------------------------------------------------------------------------

std::string ClipboardText();
void SetClipboardText(std::string_view text);

// ---- Window --------------------------------------------------------------------------------

void SetWindowTitle(std::string_view title);

// Brings the captions of the clock's menu and its entries, and the enabled state of the snapshot
// entry, up to date.
void UpdateCaptions();

// Repaints the margin with its texts.
void RefreshWindow();

// Brings the toolbar's buttons in line with ToolButtons.
void UpdateToolbar();

// Gives the keyboard to the board.
void FocusBoard();

// Lays the window out anew, paints the board and refreshes the window.
void ResizeWindow();

// ---- Screens beside the board --------------------------------------------------------------

// Opens the statistics screen, or brings it to the front.
void ShowStatisticsScreen();

// Brings the labels of the statistics screen up to date, when it is open.
void RefreshStatisticsScreen();

// Opens the solutions screen, or brings it to the front. It never waits.
void ShowSolutionsScreen();

// Brings text, count and format of the solutions screen up to date, when it is open.
void RefreshSolutionsScreen();

// Brings the count of the solutions screen alone up to date, when it is open.
void ShowSolutionCount();

// Shows name, version and licence of the program until the player has read them.
void ShowAboutScreen();

// ---- Files and help ------------------------------------------------------------------------

// Shows the file dialog, with a type of files/file_dialog.h selected, until the player has chosen a
// file or given up; that header holds its rules and its results.
void RunFileDialog(std::size_t fileType);

// Opens the help at a topic.
void ShowHelpTopic(int topic);

} // namespace kelvarine
