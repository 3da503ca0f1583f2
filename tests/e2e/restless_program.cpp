// The program with a player who never rests: it plays and saves by itself, answers what is asked,
// and tells on standard output what stands on the board, so that whoever kills it knows what was
// lost.
//
// begin MILLISECONDS DIGEST   the player begins; a lost game, if any, has come back
// offered                     a lost game was offered and wanted
// state MILLISECONDS DIGEST   the game has changed
// saved                       the game is in its file
// tick                        the recovery looks at the game
// kept                        and nothing is on its way any more
// busy                        the disk is still at work on an earlier look
// run                         the logic works on the board, and for long unless it is stopped
// ran                         it has ended
#include "commands/file_commands.h"
#include "game/assistance.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "game/search.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "outside/events.h"
#include "outside/later_write.h"
#include "program/defaults.h"
#include "ui/window/main_window.h"
#include "ui/window/program.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <random>
#include <unistd.h>

namespace kelvarine {

namespace {

std::mt19937 draws;
std::string shownState;
bool writing = false;

constexpr CellWord LastingFields = GivenBit | CandidateMask;

std::int32_t Draw(std::int32_t count)
{
    return static_cast<std::int32_t>(draws() % static_cast<std::uint32_t>(count));
}

// One line, which the reader has even if the program is killed right after.
void Tell(const std::string &words)
{
    const std::string line = words + "\n";
    if (::write(STDOUT_FILENO, line.data(), line.size()) < 0) {
        std::abort();
    }
}

std::string Now()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

// ---- What stands there, as a number: all but the time and passing marks ------------------------

void AddTo(std::uint64_t &digest, std::uint32_t word)
{
    digest = (digest ^ word) * 0x100000001B3U;
}

void AddTo(std::uint64_t &digest, const GridTable &grid)
{
    for (const auto &column : grid) {
        for (const CellWord word : column) {
            AddTo(digest, word & LastingFields);
        }
    }
}

std::string Digest()
{
    std::uint64_t digest = 0xCBF29CE484222325U;
    AddTo(digest, Grid);
    for (std::size_t slot = 0; slot <= SnapshotSlot; ++slot) {
        AddTo(digest, History[slot]);
    }
    AddTo(digest, static_cast<std::uint32_t>(HistoryCount));
    AddTo(digest, static_cast<std::uint32_t>(HistoryPosition));
    AddTo(digest, static_cast<std::uint32_t>(SnapshotAvailable));
    return std::to_string(digest);
}

void TellState()
{
    const std::string state = Digest();
    if (state != shownState) {
        shownState = state;
        Tell("state " + Now() + " " + state);
    }
}

// ---- The player --------------------------------------------------------------------------------

bool AnswersBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) {
        return QApplication::activeModalWidget() != nullptr;
    }
    const bool lost = box->text().startsWith(QStringLiteral("The last game was not closed."));
    if (lost) {
        Tell("offered");
        box->button(QMessageBox::Yes)->click();
    } else {
        box->reject();
    }
    return true;
}

void PlaceNumber()
{
    Grid[static_cast<std::size_t>(1 + Draw(9))][static_cast<std::size_t>(1 + Draw(9))] ^=
        BitTable[static_cast<std::size_t>(1 + Draw(9))];
    PushUndoState();
    FinishChange();
}

void Save()
{
    mnuSave();
    if (GameModified == False) {
        Tell("saved");
    }
}

// Every fourth life is one of much saving, the others play on for long.
void PlayOn()
{
    static const std::int32_t turnsPerSave = Draw(4) == 0 ? 6 : 600;
    if (Draw(turnsPerSave) == 0) {
        Save();
        return;
    }
    if (GameModified == False) {
        PlaceNumber(); // to go back and forth in a saved game does not modify it
        return;
    }
    switch (Draw(7)) {
    case 0:
        Undo();
        break;
    case 1:
        Redo();
        break;
    case 2:
        mnuTakeSnapshot();
        break;
    default:
        PlaceNumber();
        break;
    }
}

void TellKept()
{
    if (writing && !IsWriting()) {
        writing = false;
        Tell("kept");
    }
}

// What the logic makes of a board with every number in every cell has no end.
void ApplyLogicForLong()
{
    if (IsBusy()) {
        return;
    }
    for (const Cell cell : Cells) {
        WordAt(cell) = (WordAt(cell) & ~GivenBit) | CandidateMask;
    }
    PushUndoState();
    FinishChange();
    TellState();
    Tell("run");
    mnuApplyLogic();
    TellState();
    Tell("ran");
}

void MayStopRun()
{
    if (SearchActive != False && Draw(150) == 0) {
        SearchActive = False;
        StopRequested = True;
    }
}

void Turn()
{
    TellKept();
    if (IsBusy()) {
        MayStopRun();
        return;
    }
    if (AnswersBox()) {
        return;
    }
    if (Draw(200) == 0) {
        CallFromEventLoop(ApplyLogicForLong); // not from here, for the turns go on meanwhile
        return;
    }
    PlayOn();
    TellState();
}

// What the game on the board looks like during a run is no state of the player's: the recovery
// keeps what was put aside, or nothing where nothing was.
void TellTick()
{
    TellKept();
    if (!IsBusy()) {
        TellState();
    }
    if (writing || IsWriting()) {
        Tell("busy");
    } else if (!IsBusy() || GameAside != nullptr) {
        Tell("tick");
        writing = true;
    }
}

// Tells of a look before the recovery takes it: afterwards nobody may be there to tell of it.
class BeforeTicks : public QObject {
    bool eventFilter(QObject * /*timer*/, QEvent *event) override
    {
        if (event->type() == QEvent::Timer) {
            TellTick();
        }
        return false;
    }
};

// After what the start of the program has put into the event loop before.
void Begin(QTimer *turns)
{
    if (IsBusy() || AnswersBox()) { // the logic is rating the game that was opened
        CallFromEventLoop([turns] { Begin(turns); });
        return;
    }
    shownState = Digest();
    Tell("begin " + Now() + " " + shownState);
    static BeforeTicks ticks;
    Window()->findChild<QTimer *>("tmrRecovery")->installEventFilter(&ticks);
    SolveMask = MaskOf({XWing}) | TrialBit;
    turns->start(15);
}

// The start itself lets events run, while it rates the first game.
void AfterTheStart(QTimer *turns)
{
    QTimer::singleShot(0, [turns] {
        if (Window() != nullptr && Window()->findChild<QTimer *>("tmrRecovery") != nullptr) {
            CallFromEventLoop([turns] { Begin(turns); });
        } else {
            AfterTheStart(turns);
        }
    });
}

} // namespace

} // namespace kelvarine

int main(int argc, char **argv)
{
    using namespace kelvarine;
    const QApplication application(argc, argv);
    if (argc != 3) {
        return 2;
    }
    draws.seed(static_cast<std::mt19937::result_type>(std::atoi(argv[1])));
    SetDefaults();
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, Turn);
    AfterTheStart(&turns);
    return RunProgram(argv[2]);
}
