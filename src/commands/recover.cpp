#include "commands/recover.h"

#include "commands/file_commands.h"
#include "files/recovery.h"
#include "game/lifecycle.h"
#include "outside/board.h"
#include "outside/messages.h"
#include "outside/window.h"

namespace kelvarine {

namespace {

void ShowGameThatCameBack()
{
    if (!GameFilePath.empty()) {
        ShowFileInTitle();
    }
    DrawBoard();
    RefreshWindow();
}

bool GoOnWithIt()
{
    if (!AskYesNo("The last game was not closed. Would you like to go on with it?")) {
        return false;
    }
    if (TakeLostGame()) {
        return true;
    }
    ShowMessage("Unable to go on with this game.\r\r"
                "Its file is kept in the folder of recovered games.");
    return false;
}

} // namespace

void OfferLostGames()
{
    while (FindLostGame()) {
        if (GoOnWithIt()) {
            ShowGameThatCameBack();
            return;
        }
        // A question that went with the program has decided nothing.
        if (RecoveryHasEnded() || !PutLostGameAside()) {
            return; // else it would be offered for ever
        }
    }
}

} // namespace kelvarine
