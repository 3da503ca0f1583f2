#include "support/widget_session.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QTimer>
#include <gtest/gtest.h>

namespace kelvarine::testing {

SessionTable SessionTold;

extern "C" {

// The names are the linker's.
// NOLINTBEGIN(clang-diagnostic-reserved-identifier)
bool __wrap__ZN15QSessionManager17allowsInteractionEv(QSessionManager * /*manager*/)
{
    return SessionTold.MayAsk;
}

bool __wrap__ZNK15QSessionManager8isPhase2Ev(const QSessionManager * /*manager*/)
{
    return SessionTold.IsSecondPhase;
}

void __wrap__ZN15QSessionManager7releaseEv(QSessionManager * /*manager*/)
{
    ++SessionTold.Released;
}

void __wrap__ZN15QSessionManager6cancelEv(QSessionManager * /*manager*/)
{
    ++SessionTold.Cancelled;
}

void __wrap__ZN15QSessionManager13requestPhase2Ev(QSessionManager * /*manager*/)
{
    ++SessionTold.WantedSecondPhase;
}
// NOLINTEND(clang-diagnostic-reserved-identifier)

} // extern "C"

void AskToLogOut()
{
    auto *manager = qGuiApp->findChild<QSessionManager *>();
    ASSERT_NE(manager, nullptr);
    emit qGuiApp->commitDataRequest(*manager);
}

void TellToGo()
{
    // In a loop of its own: the toolkit would take the end for that of whatever is opened later.
    QTimer::singleShot(0, [] {
        QCoreApplication::quit();
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
    // The last window to close has the toolkit go as well, somewhat later.
    QCoreApplication::removePostedEvents(qApp, QEvent::Quit);
}

} // namespace kelvarine::testing
