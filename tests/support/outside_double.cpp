#include "support/outside_double.h"

#include "files/file_dialog.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "logic/driver.h"
#include "outside/clipboard.h"
#include "outside/events.h"
#include "outside/file_dialog.h"
#include "outside/help.h"
#include "outside/messages.h"
#include "outside/printer.h"
#include "outside/screens.h"
#include "outside/sound.h"
#include "outside/timers.h"
#include "outside/window.h"
#include "program/defaults.h"
#include "support/empty_folder.h"
#include "support/settings_folder.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

namespace kelvarine {

namespace testing {

OutsideRecord Seen;

namespace {

// Makes a folder the home of this process, in which the program has kept nothing yet.
void UseHome(const std::filesystem::path &home)
{
    std::filesystem::remove_all(home / "data");
    std::filesystem::remove_all(home / "config");
    ::setenv("HOME", home.c_str(), 1);
    ::setenv("XDG_DATA_HOME", (home / "data").c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", (home / "config").c_str(), 1);
}

} // namespace

void Restart()
{
    static const EmptyFolder home; // not the one of the person who runs the tests
    if (SettingsFolders::InUse == 0) {
        UseHome(home.Path());
    }
    SetDefaults();
    Seen = {};
}

namespace {

void Record(std::string_view kind, std::string_view text)
{
    Seen.Calls.push_back(std::string(kind) + ": " + std::string(text));
}

// Takes the next scripted answer, or a fallback when the script has ended.
template <typename T>
T Next(std::deque<T> &script, T fallback)
{
    if (script.empty()) {
        return fallback;
    }
    T answer = script.front();
    script.pop_front();
    return answer;
}

} // namespace

// Whatever happens while a box stands, before the script answers it.
void StandAsBox()
{
    if (const std::function<void()> happening = std::exchange(Seen.OnBox, nullptr)) {
        happening();
    }
}

// True when a call to the printer works. The first one begins the document and its first page.
bool PrinterWorks()
{
    if (Seen.PrintedPages == 0) {
        Seen.PrintedPages = 1;
    }
    if (Seen.PrintsBeforeFailure == 0) {
        return false;
    }
    if (Seen.PrintsBeforeFailure > 0) {
        --Seen.PrintsBeforeFailure;
    }
    return true;
}

bool PrintThing(PrintedThing thing)
{
    if (!PrinterWorks()) {
        return false;
    }
    thing.Page = Seen.PrintedPages;
    thing.Cells = Grid;
    thing.SearchedFor = SearchKind;
    Seen.Printed.push_back(thing);
    if (Seen.OnPrint) {
        Seen.OnPrint(thing);
    }
    return true;
}

} // namespace testing

using testing::Next;
using testing::Record;
using testing::Seen;
using testing::StandAsBox;

void ShowMessage(std::string_view text, std::string_view title)
{
    Record("message", text);
    Seen.Messages.emplace_back(text);
    Seen.Titles.emplace_back(title);
    StandAsBox();
}

bool AskYesNo(std::string_view text, std::string_view title)
{
    Record("question", text);
    Seen.Questions.emplace_back(text);
    Seen.Titles.emplace_back(title);
    StandAsBox();
    return Next(Seen.YesNoAnswers, false);
}

Answer AskYesNoCancel(std::string_view text)
{
    Record("save question", text);
    Seen.Questions.emplace_back(text);
    StandAsBox();
    return Next(Seen.SaveAnswers, Answer::No);
}

std::string AskText(std::string_view prompt)
{
    Record("prompt", prompt);
    Seen.Questions.emplace_back(prompt);
    StandAsBox();
    return Next(Seen.TextAnswers, std::string());
}

void YieldToEvents()
{
    ++Seen.Yields;
    if (Seen.OnYield) {
        Seen.OnYield();
    }
}

void RunPendingEvents()
{
    Record("pending events", "");
}

void SetWaitCursor(bool on)
{
    Seen.WaitCursorDepth += on ? 1 : -1;
}

void CallFromEventLoop(std::function<void()> deed)
{
    Seen.LaterDeeds.push_back(std::move(deed));
}

Day Today()
{
    return {2026, 11, 22};
}

double SecondsSinceMidnight()
{
    return Seen.Now;
}

double SteadySeconds()
{
    return Seen.Steady;
}

void SetClockTimer(bool on)
{
    Seen.ClockTimerOn = on;
}

void SetWinTimer(bool on, int milliseconds)
{
    Seen.WinTimerOn = on;
    Seen.WinInterval = milliseconds;
}

void SetRecoveryTimer(bool on, int milliseconds)
{
    Seen.RecoveryTimerOn = on;
    Seen.RecoveryMilliseconds = milliseconds;
}

void SetSoundVolume(std::uint32_t volume)
{
    Seen.SoundVolume = volume;
}

void PlaySound(std::string_view file, bool loop)
{
    Record(loop ? "sound loop" : "sound", file);
}

void StopSound()
{
    Record("stop sound", "");
}

std::string ClipboardText()
{
    return Seen.Clipboard;
}

void SetClipboardText(std::string_view text)
{
    Seen.Clipboard = text;
}

void MakeMainWindow()
{
    Record("window made", "");
}

void ShowMainWindow()
{
    Record("window shown", "");
}

void CloseMainWindow()
{
    Record("window closed", "");
}

void ActivateMainWindow()
{
    Record("window in front", "");
}

void KeepMainPlace()
{
    Record("place kept", "");
}

void SetWindowTitle(std::string_view title)
{
    Seen.WindowTitle = title;
}

void UpdateCaptions()
{
    Record("captions", "");
}

void RefreshWindow()
{
    Record("refresh", "");
    ++Seen.WindowRefreshes;
}

void UpdateToolbar()
{
    ++Seen.ToolbarUpdates;
}

void FocusBoard()
{
    ++Seen.BoardFocuses;
}

void ResizeWindow()
{
    Record("resize", "");
}

// ---- Screens beside the board --------------------------------------------------------------

void ShowStatisticsScreen()
{
    Record("statistics screen", "");
}

void RefreshStatisticsScreen()
{
    Record("statistics", "");
}

void ShowSolutionsScreen()
{
    Record("solutions screen", "");
}

void RefreshSolutionsScreen()
{
    Record("solutions", SolutionCountText);
}

void ShowSolutionCount()
{
    TakeSolutionCount();
    Record("solution count", SolutionCountText);
}

void ShowAboutScreen()
{
    Record("about screen", "");
}

// ---- Files -----------------------------------------------------------------------------

bool RunFileDialog(std::size_t fileType)
{
    Record("file dialog", DialogCaption);
    Seen.FileTypeSelected = fileType;
    StandAsBox();
    while (!Seen.FileNames.empty()) {
        DialogName = Next(Seen.FileNames, std::string());
        if (AcceptFileName(DialogName)) {
            return true;
        }
    }
    Record("file dialog", "cancelled");
    return false;
}

void ShowHelpTopic(int context)
{
    Record("help", std::to_string(context));
}

// ---- Printer -------------------------------------------------------------------------------

PrinterPage CurrentPrinterPage()
{
    return Seen.Paper;
}

bool ChoosePrinter()
{
    Record("choose printer", "");
    return !Seen.PrinterRefused;
}

bool PrintPicture(PrintedPicture picture, const PagePlace &place)
{
    return testing::PrintThing(
        {0, picture == PrintedPicture::Board ? "board" : "grid", true, place, {}, 0});
}

bool PrintText(double left, double top, std::string_view text)
{
    return testing::PrintThing({0, std::string(text), false, {left, top, 0, 0}, {}, 0});
}

double PrintedTextWidth(std::string_view text)
{
    return 20.0 * static_cast<double>(text.size());
}

bool NewPage()
{
    if (!testing::PrinterWorks()) {
        return false;
    }
    ++Seen.PrintedPages;
    return true;
}

void EndDocument()
{
    Record("end document", "");
    Seen.EndedDocuments.push_back(Seen.PrintsBeforeFailure == 0 ? Seen.PrinterWords : "");
}

std::string HandOverDocument()
{
    Record("hand over document", "");
    StandAsBox(); // writing a file may ask
    return Seen.EndedDocuments.back();
}

std::string DecimalSign()
{
    return ".";
}

// ---- Configuration screen ------------------------------------------------------------------

void ShowConfigureScreen()
{
    Record("configure", std::to_string(CurrentTab));
}

void MoveMarginBar(std::int32_t thickness)
{
    Record("margin bar", std::to_string(thickness));
}

} // namespace kelvarine
