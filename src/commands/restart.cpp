#include "commands/restart.h"

#include "commands/save_question.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/board.h"
#include "outside/messages.h"
#include "outside/window.h"

namespace kelvarine {

void mnuGameBlankGrid()
{
    QuerySaveGame();
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    Grid = {};
    StartGame(NewGame);
    DrawBoard();
    RefreshWindow();
}

void mnuRestartSameGame()
{
    if (!AskYesNo("Are you sure you want to abandon your position and start over?")) {
        return;
    }
    CopyCells(History[StartSlot], Grid);
    StartGame(SameGame);
    DrawBoard();
    RefreshWindow();
}

} // namespace kelvarine
