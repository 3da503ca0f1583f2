#include "game/search.h"

#include "game/win_display.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "outside/messages.h"
#include "outside/sound.h"

namespace kelvarine {

void QueryStopSearch()
{
    StopSound();
    if (AskYesNo("Would you like to stop searching?")) {
        SearchActive = False;
        StopRequested = True;
    }
}

bool IsBusy()
{
    return SearchActive != False || RunUnderWay != False;
}

bool ReadyForCommand()
{
    if (IsBusy()) {
        if (SearchActive != False && (SearchKind == SearchingGame || RunIsLong != False)) {
            QueryStopSearch();
        }
        return false;
    }
    StopWinDisplay();
    return true;
}

} // namespace kelvarine
