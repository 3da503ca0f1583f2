#include "files/recovery.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "outside/timers.h"
#include "outside/whole_file.h"
#include "support/widget_program.h"

#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class RecoveryTimer : public ::testing::Test {
protected:
    ~RecoveryTimer() override
    {
        EndRecovery(true);
    }

    [[nodiscard]] QTimer *Timer() const
    {
        return Running.Main->findChild<QTimer *>("tmrRecovery");
    }

    Program Running;
};

TEST_F(RecoveryTimer, KeepsAGameThatIsModified)
{
    SetRecoveryTimer(true, 1);
    GameModified = True;
    EXPECT_TRUE(
        QTest::qWaitFor([] { return FileExists(DataFolder() + "recovery-1.sdk"); }, Patience));
    GameModified = False;
    EXPECT_TRUE(
        QTest::qWaitFor([] { return !FileExists(DataFolder() + "recovery-1.sdk"); }, Patience));
}

TEST_F(RecoveryTimer, NeverComesBeforeItsInterval)
{
    SetRecoveryTimer(true, RecoveryInterval);
    EXPECT_EQ(Timer()->interval(), 2000);
    EXPECT_EQ(Timer()->timerType(), Qt::PreciseTimer) << "a coarse one may come earlier";
    EXPECT_FALSE(Timer()->isSingleShot());
}

TEST_F(RecoveryTimer, IsOneAndIsStoppedAtTheEnd)
{
    SetRecoveryTimer(true, RecoveryInterval);
    SetRecoveryTimer(false, RecoveryInterval);
    EXPECT_FALSE(Timer()->isActive());
    EXPECT_EQ(Running.Main->findChildren<QTimer *>("tmrRecovery").size(), 1);
}

} // namespace
} // namespace kelvarine::testing
