// An outside of the engine for programs without a window: nothing is shown, asked or heard, every
// question is answered by the word that changes nothing, and there is no paper.
#include "outside/board.h"
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

namespace kelvarine {

// clang-format off

void ShowMessage(std::string_view /*text*/, std::string_view /*title*/) {}
bool AskYesNo(std::string_view /*text*/, std::string_view /*title*/) { return false; }
Answer AskYesNoCancel(std::string_view /*text*/) { return Answer::Cancel; }
std::string AskText(std::string_view /*prompt*/) { return {}; }

void YieldToEvents() {}
void RunPendingEvents() {}
void SetWaitCursor(bool /*on*/) {}
void CallFromEventLoop(std::function<void()> deed) { deed = {}; }
Day Today() { return {}; }
double SecondsSinceMidnight() { return 0; }
double SteadySeconds() { return 0; }
void SetClockTimer(bool /*on*/) {}
void SetWinTimer(bool /*on*/, int /*milliseconds*/) {}
void SetRecoveryTimer(bool /*on*/, int /*milliseconds*/) {}

void SetSoundVolume(std::uint32_t /*volume*/) {}
void PlaySound(std::string_view /*file*/, bool /*loop*/) {}
void StopSound() {}

std::string ClipboardText() { return {}; }
void SetClipboardText(std::string_view /*text*/) {}

void MakeMainWindow() {}
void ShowMainWindow() {}
void ActivateMainWindow() {}
void CloseMainWindow() {}
void KeepMainPlace() {}
void SetWindowTitle(std::string_view /*title*/) {}
void UpdateCaptions() {}
void RefreshWindow() {}
void UpdateToolbar() {}
void FocusBoard() {}
void ResizeWindow() {}
void DrawBoard() {}
void DrawBanner(std::string_view /*text*/) {}
void DrawSearchBanner(std::int32_t /*count*/) {}

void ShowStatisticsScreen() {}
void RefreshStatisticsScreen() {}
void ShowSolutionsScreen() {}
void RefreshSolutionsScreen() {}
void ShowSolutionCount() {}
void ShowAboutScreen() {}
void ShowConfigureScreen() {}
void MoveMarginBar(std::int32_t /*thickness*/) {}
void ShowHelpTopic(int /*context*/) {}
bool RunFileDialog(std::size_t /*fileType*/) { return false; }

PrinterPage CurrentPrinterPage() { return {1, 1, 1, 1}; }
bool ChoosePrinter() { return false; }
bool PrintPicture(PrintedPicture /*picture*/, const PagePlace & /*place*/) { return false; }
bool PrintText(double /*left*/, double /*top*/, std::string_view /*text*/) { return false; }
double PrintedTextWidth(std::string_view /*text*/) { return 0; }
bool NewPage() { return false; }
void EndDocument() {}
std::string HandOverDocument() { return {}; }
std::string DecimalSign() { return "."; }

// clang-format on

} // namespace kelvarine
