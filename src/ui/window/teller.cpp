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
#include "ui/window/table_focus.h"
#include "ui/window/tools_listen.h"

#include <QAccessible>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>

namespace kelvarine {

namespace {

QString wordsOfStep;

void TellOfTable(QAccessible::Event kind)
{
    QAccessibleEvent event(Window()->Client->Board, kind);
    QAccessible::updateAccessibility(&event);
}

// An event of the cell at which the player is; of the board where he is at none.
void TellOfPlace(QAccessible::Event kind)
{
    QAccessibleEvent event(Window()->Client->Board, kind);
    if (const std::optional<Cell> place = SpokenPlace()) {
        event.setChild(ChildOf(*place));
    }
    QAccessible::updateAccessibility(&event);
}

// The place reached, with what came of the step; a number that was entered there it tells itself.
void TellStep(const std::string &words)
{
    const std::optional<Cell> place = SpokenPlace();
    const bool tellsItself = place && words == SpokenNumbers(*place);
    wordsOfStep = tellsItself ? QString() : Text(words);
    TellOfPlace(QAccessible::Focus);
}

void TellSelection(SelectionChange change)
{
    if (change == SelectionChange::One) {
        TellOfPlace(QAccessible::Selection);
    } else if (change == SelectionChange::Many) {
        TellOfTable(QAccessible::SelectionWithin);
    }
}

void TellOf(const Told &told)
{
    if (told.Place == PlaceChange::Place && Window()->Client->Board->hasFocus()) {
        TellStep(told.Words);
        TellSelection(told.Selection);
        return;
    }
    const bool ofPlace = told.Place != PlaceChange::None && SpokenPlace();
    if (ofPlace || told.Selection != SelectionChange::None || !told.Words.empty()) {
        wordsOfStep.clear();
    }
    if (ofPlace) {
        TellOfPlace(QAccessible::NameChanged);
    }
    TellSelection(told.Selection);
    Tell(Text(told.Words));
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
    const bool tableWasLeftOut = TableFocusWasLeftOut();
    if (!ToolsListen()) {
        return;
    }
    // What is done with the board then is not the player's.
    if (SearchActive != False || RunUnderWay != False || PrintRunning != False) {
        if (tableWasLeftOut) {
            TellOfTable(QAccessible::Focus);
        }
        if (SearchActive != False) {
            TellRun();
        }
        return;
    }
    TellOf(NextTold(Window()->Client->Board->SignFollowsKey()));
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

void TellArrival()
{
    if (!ToolsListen() || Window() == nullptr) {
        return;
    }
    TellPlaceAgain();
    LeaveOutTableFocus();
    TellChanges();
}

const QString &WordsOfStep()
{
    return wordsOfStep;
}

} // namespace kelvarine
