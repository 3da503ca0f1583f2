#include "ui/window/teller.h"

#include "commands/print_run.h"
#include "grid/grid.h"
#include "input/spoken.h"
#include "input/told.h"
#include "logic/driver.h"
#include "outside/events.h"
#include "paint/text.h"
#include "ui/window/board_accessible.h"
#include "ui/window/board_widget.h"
#include "ui/window/main_window.h"
#include "ui/window/menus.h"
#include "ui/window/notices.h"
#include "ui/window/tools_listen.h"

#include <QAccessible>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>

namespace kelvarine {

namespace {

void TellPlace(PlaceChange change)
{
    if (change == PlaceChange::None) {
        return;
    }
    BoardWidget *board = Window()->Client->Board;
    const bool goes = change == PlaceChange::Place && board->hasFocus();
    QAccessibleEvent event(board, goes ? QAccessible::Focus : QAccessible::NameChanged);
    event.setChild(ChildOf(*SpokenPlace()));
    QAccessible::updateAccessibility(&event);
}

void TellSelection(SelectionChange change)
{
    if (change == SelectionChange::None) {
        return;
    }
    QAccessibleEvent event(Window()->Client->Board, change == SelectionChange::One
                                                        ? QAccessible::Selection
                                                        : QAccessible::SelectionWithin);
    if (change == SelectionChange::One) {
        event.setChild(ChildOf(*SpokenPlace()));
    }
    QAccessible::updateAccessibility(&event);
}

void TellRun()
{
    if (SearchKind == SearchingGame) {
        Tell(Text(NextToldOfSearch(SteadySeconds())));
    } else if (RunIsLong != False) {
        Tell(Text(NextToldOfLongRun()));
    }
}

void TellNow()
{
    if (!ToolsListen()) {
        return;
    }
    // What is done with the board then is not the player's.
    if (SearchActive != False || RunUnderWay != False || PrintRunning != False) {
        if (SearchActive != False) {
            TellRun();
        }
        return;
    }
    const Told told = NextTold(Window()->Client->Board->SignFollowsKey());
    TellPlace(told.Place);
    TellSelection(told.Selection);
    Tell(Text(told.Words));
    UpdateMenuStates(*Window()->menuBar());
}

} // namespace

void TellChanges()
{
    static QPointer<QTimer> turn; // goes with the window
    if (!ToolsListen() || Window() == nullptr) {
        return;
    }
    if (turn == nullptr) {
        turn = new QTimer(Window());
        turn->setSingleShot(true);
        QObject::connect(turn, &QTimer::timeout, turn, TellNow);
    }
    turn->start(0);
}

} // namespace kelvarine
