// The event loop, its timers and the time.
#include "outside/events.h"

#include "files/recovery.h"
#include "outside/timers.h"
#include "ui/outside/yield_pace.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QDate>
#include <QTime>
#include <QTimer>

#include <utility>

namespace kelvarine {

std::chrono::milliseconds YieldInterval{10};

namespace {

constexpr int ClockInterval = 1000; // milliseconds

void SwitchTimer(QTimer &timer, bool on, int milliseconds)
{
    if (on) {
        timer.start(milliseconds);
    } else {
        timer.stop();
    }
}

} // namespace

void YieldToEvents()
{
    static std::chrono::steady_clock::time_point last;
    const auto now = std::chrono::steady_clock::now();
    if (now - last >= YieldInterval) {
        QCoreApplication::processEvents();
        last = std::chrono::steady_clock::now();
    }
}

void RunPendingEvents()
{
    QCoreApplication::processEvents();
}

void SetWaitCursor(bool on)
{
    if (on) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

double SecondsSinceMidnight()
{
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

double SteadySeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

Day Today()
{
    const QDate today = QDate::currentDate();
    return {today.year(), today.month(), today.day()};
}

void CallFromEventLoop(std::function<void()> deed)
{
    auto *turn = new QTimer(Window());
    turn->setSingleShot(true);
    QObject::connect(turn, &QTimer::timeout, turn, [turn, deed = std::move(deed)] {
        turn->deleteLater();
        deed();
    });
    turn->start(0);
}

void SetClockTimer(bool on)
{
    SwitchTimer(Window()->tmrSolveTime, on, ClockInterval);
}

void SetRecoveryTimer(bool on, int milliseconds)
{
    const QString name("tmrRecovery");
    auto *timer = Window()->findChild<QTimer *>(name);
    if (timer == nullptr) {
        timer = new QTimer(Window());
        timer->setObjectName(name);
        timer->setTimerType(Qt::PreciseTimer); // a coarse one may come earlier
        QObject::connect(timer, &QTimer::timeout, timer, RecoveryTick);
    }
    SwitchTimer(*timer, on, milliseconds);
}

void SetWinTimer(bool on, int milliseconds)
{
    SwitchTimer(Window()->tmrGameWon, on, milliseconds);
}

} // namespace kelvarine
