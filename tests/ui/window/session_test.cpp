// Ways in which the system tells the program to go, and limits that it sets.
#include "outside/whole_file.h"
#include "support/child_process.h"
#include "support/temporary_folder.h"
#include "support/widget_program.h"
#include "ui/window/session.h"

#include <QtTest>
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <sys/resource.h>

namespace kelvarine::testing {
namespace {

constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP, SIGXFSZ};

class Session : public ::testing::Test {
protected:
    void SetUp() override
    {
        WatchForTheEnd();
    }

    void TearDown() override
    {
        for (const int number : Signals) {
            std::signal(number, SIG_DFL);
        }
    }

    const Program program;
};

class SessionSignal : public Session, public ::testing::WithParamInterface<int> {};

TEST_P(SessionSignal, ClosesTheWindow)
{
    ASSERT_TRUE(program.Main->isVisible());
    std::raise(GetParam());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !program.Main->isVisible(); }, Patience));
}

INSTANTIATE_TEST_SUITE_P(Each, SessionSignal, ::testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_F(Session, FileLargerThanAllowedIsAFailingWriteAndNotTheEnd)
{
    const TemporaryFolder folder;
    folder.Write("file", "old");
    const int result = RunInChild([&] {
        const rlimit nothing{0, 0};
        ::setrlimit(RLIMIT_FSIZE, &nothing);
        std::string error;
        return ReplaceWholeFile(folder.Path("file"), "new", error) || error != "File too large";
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(folder.Read("file"), "old");
}

} // namespace
} // namespace kelvarine::testing
