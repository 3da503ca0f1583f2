#include "ui/window/session.h"

#include "files/file_address.h"
#include "files/game_file.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "program/program.h"
#include "ui/window/main_window.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QSessionManager>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <optional>
#include <sys/socket.h>
#include <unistd.h>

namespace kelvarine {

namespace {

// A signal handler may do next to nothing: it writes a byte here, and the event loop reads it.
std::array<int, 2> signalSockets{-1, -1};

void OnSignal(int /*number*/)
{
    const char mark = 1;
    [[maybe_unused]] const ssize_t written = ::write(signalSockets[0], &mark, sizeof mark);
}

void CloseWindow()
{
    char mark = 0;
    [[maybe_unused]] const ssize_t got = ::read(signalSockets[1], &mark, sizeof mark);
    if (Window() != nullptr) {
        KeepBeforeAsking();
        Window()->CloseUnlessAsking();
    }
}

void WatchSignals()
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalSockets.data()) != 0) {
        return; // without the sockets a signal ends the program at once, as by default
    }
    auto *notifier = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, Window());
    QObject::connect(notifier, &QSocketNotifier::activated, Window(), CloseWindow);
    struct sigaction action {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGTERM, &action, nullptr);
    ::sigaction(SIGINT, &action, nullptr);
    ::sigaction(SIGHUP, &action, nullptr);
}

// A file that grows beyond what the user is allowed ends a program by default. Without the signal
// it is a failing write, which the player is told of.
void LetLargeFilesFail()
{
    struct sigaction action {};
    action.sa_handler = SIG_IGN;
    ::sigaction(SIGXFSZ, &action, nullptr);
}

// ---- The session ---------------------------------------------------------------------------

// The game for which the player has answered the session's question, or could not be asked.
std::optional<GridTable> answeredGame;
bool wasAsked = false;

bool toldToGo = false;

// While the logic works on the board nothing can be asked about the game. When the run may end, the
// session is to come back after all others: it has ended by then, or ends as the program closes.
void AskAboutRun(QSessionManager &manager)
{
    answeredGame.reset();
    if (Window()->IsClosing() || !Window()->AskAsClosingDoes(MayEndRun)) {
        manager.cancel();
    } else if (!manager.isPhase2()) {
        manager.requestPhase2();
    }
}

// A question that stands already decides by itself.
void AskAboutGame(QSessionManager &manager)
{
    if (!Window()->IsClosing() && Window()->AskAsClosingDoes(AskBeforeTheEnd)) {
        KeepSettings();
        answeredGame = Grid;
    } else {
        answeredGame.reset();
        manager.cancel();
    }
}

// The session may end, or only wants to know that all is kept.
void PrepareForTheEnd(QSessionManager &manager)
{
    KeepBeforeAsking();
    wasAsked = manager.allowsInteraction();
    if (!wasAsked) {
        answeredGame = Grid;
        return;
    }
    if (EndMustWait()) {
        AskAboutRun(manager);
    } else {
        AskAboutGame(manager);
    }
    manager.release();
}

// The session takes words of text. A name that is none is told as an address, byte by byte.
QString WordOf(const std::string &path)
{
    const auto name = QString::fromStdString(path);
    return name.toStdString() == path ? name : QString::fromStdString(AddressOf(path));
}

// The toolkit would add a word of its own, which the program does not take.
void TellHowToStart(QSessionManager &manager)
{
    QStringList words{QCoreApplication::applicationFilePath()};
    if (!GameFilePath.empty()) {
        words += WordOf(GameFilePath);
    }
    manager.setRestartCommand(words);
}

// Sees the application being told to go. The toolkit would close the screens before the main
// window, which then could not tell any more which of them were open.
class GoingWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != qApp || event->type() != QEvent::Quit || Window() == nullptr) {
            return false;
        }
        const QScopedValueRollback going(toldToGo, true);
        return !Window()->CloseUnlessAsking();
    }
};

void WatchSession()
{
    answeredGame.reset();
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, Window(), PrepareForTheEnd,
                     Qt::DirectConnection);
    QObject::connect(qGuiApp, &QGuiApplication::saveStateRequest, Window(), TellHowToStart,
                     Qt::DirectConnection);
    qApp->installEventFilter(new GoingWatch(Window()));
}

} // namespace

void WatchForTheEnd()
{
    WatchSignals();
    LetLargeFilesFail();
    WatchSession();
}

bool EndAsAgreed()
{
    if (!toldToGo || !answeredGame) {
        return false;
    }
    if (RunUnderWay != False && !wasAsked) {
        // It ends with the program, and all that would follow with it: a search for a game, or what
        // is done with a grid that the run has left half way.
        SearchActive = False;
        StopRequested = True;
        RunIsLong = True;
    } else if (RunUnderWay != False || answeredGame != Grid) {
        return false;
    }
    if (wasAsked) {
        EndProgramAnswered();
    } else {
        EndProgramUnasked();
    }
    return true;
}

} // namespace kelvarine
