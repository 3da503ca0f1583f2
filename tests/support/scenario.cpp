#include "support/scenario.h"

#include "game/lifecycle.h"
#include "game/undo.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"

namespace kelvarine::testing {

void SetScenario(CellWord filter)
{
    Restart();
    init_genrand(1);
    StartSavedGame(EasyGame);
    mnuTakeSnapshot();
    for (const CellWord candidates : {0x01EU, 0x1F8U, 0x0AAU}) {
        Grid[3][1] = candidates | SelectedBit;
        Grid[4][1] = candidates << 1 | SelectedBit;
        for (const int column : {4, 5, 6}) {
            Grid[static_cast<std::size_t>(column)][2] |= SelectedBit; // givens, not all needed
        }
        PushUndoState();
    }
    Undo();
    AnchorColumn = 3;
    AnchorRow = 1;
    CursorColumn = 3;
    CursorRow = 1;
    NumberFilter = filter;
    GameModified = False;
    GameFilePath = "/no such folder/game.sdk"; // saving under this name fails and leaves no file
    ForgetRecord();
}

std::string StateAfter(const std::function<void()> &command, CellWord filter)
{
    SetScenario(filter);
    command();
    return ProgramState();
}

} // namespace kelvarine::testing
