#include "game/lifecycle.h"

#include "game/alert_scan.h"
#include "game/clock.h"
#include "game/event_sound.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/rating.h"
#include "logic/technique.h"
#include "outside/board.h"
#include "outside/events.h"
#include "outside/messages.h"
#include "outside/sound.h"
#include "outside/window.h"

#include <cassert>

namespace kelvarine {

std::string GameFilePath;
Flag FileWasText;
Flag StatsCounted;
std::uint32_t FilesBegun;
std::int32_t LastAnswer;
std::int32_t AnchorColumn;
std::int32_t AnchorRow;
std::int32_t CursorColumn;
std::int32_t CursorRow;

void SetLifecycleDefaults()
{
    GameFilePath.clear();
    FileWasText = False;
    StatsCounted = False;
    FilesBegun = 0;
    LastAnswer = AnsweredNothing;
    ClearPointerState();
}

void ClearPointerState()
{
    AnchorColumn = 0;
    AnchorRow = 0;
    CursorColumn = 0;
    CursorRow = 0;
}

void StartGame(std::int32_t mode)
{
    assert(mode >= NewGame && mode <= GameFromFile);
    StopSound();
    ChainColumns[0] = 0;
    ClearPointerState();
    NumberFilter = CandidateMask;
    if (mode < GameFromFile) {
        HistoryCount = 0;
        HistoryPosition = 0;
        PushUndoState();
        SnapshotAvailable = False;
    } else {
        ++FilesBegun;
    }
    if (mode == NewGame) {
        SaveStartPosition();
        GameFilePath.clear();
        FileWasText = False;
        SetWindowTitle(ProgramName);
        StatsCounted = False;
    }
    CountGivens();
    RateGame();
    ScanAlerts(ModeAlert);
    RefreshSolutions();
    if (mode < GameFromFile) {
        ResetSolveTime();
    }
    UpdateCaptions();
    if (IsGridSolved() != False) {
        UpdateStatistics();
    }
}

void UpdateStatistics()
{
    if (SoundDisabled == False) {
        PlayEventSound(SoundFile(WinFiles, WinSound), WinVolume, true);
    }
    ClearCellBits(SolvedMarks);
    NumberFilter = CandidateMask;
    StartWinDisplay();
    StopClockAtWin();
    if (GameRating >= RatedEasy && GameRating <= RatedExtreme && StatsCounted == False) {
        RecordSolvedGame();
        if (StatisticsOpen != False) {
            LoadStatisticsScreen();
        }
        StatsCounted = True;
    }
}

void ScanAndTestWin()
{
    ScanAlerts(ModeAlert);
    if (IsGridSolved() != False) {
        UpdateStatistics();
    }
}

void FinishChange()
{
    ScanAndTestWin();
    DrawBoard();
    RefreshWindow();
}

} // namespace kelvarine
