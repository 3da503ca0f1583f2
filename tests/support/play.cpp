#include "support/play.h"

#include "board/look.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "game/win_display.h"
#include "generator/game_number.h"
#include "grid/history.h"
#include "input/mouse.h"
#include "input/toolbar.h"
#include "support/outside_double.h"
#include "support/positions.h"

#include <algorithm>
#include <sstream>

namespace kelvarine::testing {

void StartSavedGame(std::string_view drawing)
{
    SetGame(drawing);
    StartGame(NewGame);
    GameModified = False;
    ForgetRecord();
}

void ForgetRecord()
{
    Seen.Calls.clear();
    Seen.Messages.clear();
    Seen.Titles.clear();
    Seen.Questions.clear();
    Seen.BoardPaints = 0;
    Seen.WindowRefreshes = 0;
}

std::vector<std::string> Acts()
{
    std::vector<std::string> acts;
    std::ranges::copy_if(Seen.Calls, std::back_inserter(acts),
                         [](const std::string &call) { return call != "captions: "; });
    return acts;
}

std::string ProgramState()
{
    std::ostringstream text;
    text << "history " << HistoryPosition << " of " << HistoryCount << "\nrating " << GameRating
         << " givens " << GivenCount << "\nfilter " << NumberFilter << " chain " << ChainColumns[0]
         << "\nanchor " << AnchorColumn << ' ' << AnchorRow << " cursor " << CursorColumn << ' '
         << CursorRow << " click " << ClickX << ' ' << ClickY << "\nmodified " << GameModified
         << " snapshot " << SnapshotAvailable << " counted " << StatsCounted << " answer "
         << LastAnswer << " file " << GameFilePath << " number " << GameNumber << "\nclock "
         << SolveSeconds << ' ' << ClockRunning << ' ' << TimeCaption << ' ' << PauseCaption
         << "\nwin " << WinDisplayRunning << ' ' << WinStage << "\nmargin " << MarginThickness
         << ' ' << CoordinatesVisible << "\ntoolbar " << ToolbarVisible << ' ' << ToolTipsVisible
         << ' ' << ToolMode << ' ' << ToolSign << " links " << StrongLinkMode << "\nmasks "
         << SolveMask << ' ' << AlertMask << "\ntitle " << Seen.WindowTitle << "\nclipboard "
         << Seen.Clipboard << '\n';
    for (const std::string &call : Seen.Calls) {
        text << "call " << call << '\n';
    }
    for (const std::string &title : Seen.Titles) {
        text << "titled " << title << '\n';
    }
    for (const Cell cell : Cells) {
        text << WordAt(cell) << ' ';
    }
    for (const int slot : {StartSlot, NewestSlot, 2, 3, 4, SnapshotSlot}) {
        text << "\nslot " << slot << ": ";
        for (const Cell cell : Cells) {
            text << Level(slot)[cell.Column][cell.Row] << ' ';
        }
    }
    return text.str();
}

std::string Dots(std::size_t count)
{
    std::string dots;
    return dots.append(count, '.');
}

bool SameCells(const GridTable &a, const GridTable &b, CellWord fields)
{
    return std::ranges::all_of(Cells, [&](Cell cell) {
        return ((a[cell.Column][cell.Row] ^ b[cell.Column][cell.Row]) & fields) == 0;
    });
}

GridTable &Level(std::int32_t level)
{
    return History[static_cast<std::size_t>(level)];
}

} // namespace kelvarine::testing
