#include "commands/save_question.h"

#include "commands/file_commands.h"
#include "game/lifecycle.h"
#include "grid/history.h"
#include "outside/events.h"
#include "outside/messages.h"

namespace kelvarine {

void QuerySaveGame()
{
    if (GameModified == False) {
        LastAnswer = AnsweredNothing;
        return;
    }
    RunPendingEvents();
    const Answer answer = AskYesNoCancel("Would you like to save this game first?");
    // A game that should be kept and was not stops the caller as well: nothing is lost.
    const bool goOn = answer == Answer::No || (answer == Answer::Yes && SaveGame());
    LastAnswer = goOn ? AnsweredNothing : AnsweredCancel;
}

} // namespace kelvarine
