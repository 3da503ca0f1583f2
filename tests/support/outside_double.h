// The seam to the world as the tests see it: every call is recorded, and questions are answered
// from a script.
#pragma once

#include "grid/grid.h"
#include "outside/messages.h"
#include "outside/printer.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace kelvarine::testing {

// A picture or a text that was printed.
struct PrintedThing {
    int Page = 0;     // from 1
    std::string Text; // "board" or "grid" for a picture
    bool Picture = false;
    PagePlace Place;              // a text has only a corner
    GridTable Cells;              // what stood on Grid
    std::int32_t SearchedFor = 0; // SearchKind
};

struct OutsideRecord {
    std::vector<std::string> Calls;    // every call in order, such as "message: text"
    std::vector<std::string> Messages; // texts of ShowMessage
    std::vector<std::string> Titles;   // their titles
    std::vector<std::string> Questions;
    std::deque<bool> YesNoAnswers;  // taken from the front; No when empty
    std::deque<Answer> SaveAnswers; // taken from the front; No when empty
    std::deque<std::string> TextAnswers;
    std::string Clipboard;
    std::string WindowTitle;
    int BoardPaints = 0; // calls of DrawBoard where that is a double, too
    int WindowRefreshes = 0;
    int ToolbarUpdates = 0;
    int BoardFocuses = 0;
    int Yields = 0;
    int WaitCursorDepth = 0;
    double Now = 0;    // seconds since midnight
    double Steady = 0; // seconds on the clock that nobody sets
    bool ClockTimerOn = false;
    bool WinTimerOn = false;
    bool RecoveryTimerOn = false;
    int RecoveryMilliseconds = 0;
    int WinInterval = 0;
    std::uint32_t SoundVolume = 0;
    std::function<void()> OnYield;
    std::vector<std::function<void()>> LaterDeeds; // for the event loop, to be done by the test
    std::function<void()> OnBox;       // runs once, while the next box, question or dialog stands
    std::deque<std::string> FileNames; // typed into the file dialog, OK after each; then Cancel
    std::size_t FileTypeSelected = 0;

    // ---- Printer ----
    bool PrinterRefused = false;                // the player's answer to the print dialog
    PrinterPage Paper{2250, 3000, 300, 300};    // 7.5 by 10 inches
    std::vector<PrintedThing> Printed;          // in order
    int PrintedPages = 0;                       // 0 as long as nothing is printed
    int PrintsBeforeFailure = -1;               // calls that still work; -1 for all
    std::string PrinterWords = "No paper left"; // the system's words for a failure
    std::vector<std::string> EndedDocuments;    // words of each document that was ended
    std::function<void(const PrintedThing &)> OnPrint;
};

extern OutsideRecord Seen;

// Puts the program and the record to the state of a start, with empty folders for what the program
// keeps, unless the test has SettingsFolders of its own.
void Restart();

} // namespace kelvarine::testing
