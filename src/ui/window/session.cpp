#include "ui/window/session.h"

#include "program/program.h"
#include "ui/window/main_window.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#include <array>
#include <csignal>
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

void WatchSession()
{
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, Window(),
        [](QSessionManager &manager) {
            KeepBeforeAsking();
            if (manager.allowsInteraction()) {
                if (!Window()->CloseUnlessAsking()) {
                    manager.cancel();
                }
                manager.release();
            }
        },
        Qt::DirectConnection);
}

} // namespace

void WatchForTheEnd()
{
    WatchSignals();
    LetLargeFilesFail();
    WatchSession();
}

} // namespace kelvarine
