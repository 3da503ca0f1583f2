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

// Brings the captions of the clock's menu and its entries up to date. All other entries follow the
// state whenever their menu opens.
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

// ---- Files -----------------------------------------------------------------------------

// Shows the file dialog, with a type of files/file_dialog.h selected, until the player has chosen a
// file or given up; that header holds its rules and what it leaves. True when OK has closed it;
// false in every other case, the program's end among them.
bool RunFileDialog(std::size_t fileType);

// ---- Printer -------------------------------------------------------------------------------

// A page's printable area in the printer's pixels, and how many of them make an inch; all above 0.
struct PrinterPage {
    double Width = 0;
    double Height = 0;
    double PixelsPerInchAcross = 0;
    double PixelsPerInchDown = 0;
};

// A place on a page, from the corner of its printable area. In the printer's pixels, of which
// there are only whole ones: the four numbers are rounded when something is printed there.
struct PagePlace {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    friend constexpr bool operator==(const PagePlace &, const PagePlace &) = default;
};

// What can be printed as a picture: the board as it stands, without the marks that do not belong
// on paper, or Grid as a game of its own.
enum class PrintedPicture : std::uint8_t { Board, Game };

// Page of the printer chosen latest, or of the usual one. Without a printer it is a page of a PDF
// file, of the size that is usual where the player lives.
PrinterPage CurrentPrinterPage();

// Lets the player choose a printer or a file. False when the player would rather not print.
bool ChoosePrinter();

// Print on the page in hand; the first of these calls begins the document. The corner of a text is
// the top left one. False when that failed, and nothing more comes of the document.
bool PrintPicture(PrintedPicture picture, const PagePlace &place);
bool PrintText(double left, double top, std::string_view text);

// Width in the printer's pixels that a text takes.
double PrintedTextWidth(std::string_view text);

// Begins a new page. False when that failed.
bool NewPage();

// Ends the document and hands it over. Returns the system's own words when that or anything before
// failed, and nothing when all went well. A document on which nothing was printed is none.
std::string EndDocument();

// The sign between whole numbers and decimals where the player lives.
std::string DecimalSign();

// ---- Configuration screen ------------------------------------------------------------------

// Opens the configuration screen on CurrentTab, or switches it there and brings it up.
void ShowConfigureScreen();

// Moves the bar of the margin's thickness, 0..100, on the open configuration screen, as the player
// would; its change sets MarginThickness and lays the window out anew. Nothing while the screen is
// closed.
void MoveMarginBar(std::int32_t thickness);

// ---- Help ----------------------------------------------------------------------------------

// Shows the help at the topic of a context number: 202, 204 to 216 the tabs of the configuration
// screen, 600 the file window; any other number is the default topic.
void ShowHelpTopic(int context);

} // namespace kelvarine
