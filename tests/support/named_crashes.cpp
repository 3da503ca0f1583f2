// Names the test in which a test program ends by a signal: a broken assert or a wrong address would
// otherwise end it without a word of where.
#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstring>
#include <string>
#include <unistd.h>

namespace kelvarine::testing {
namespace {

std::array<char, 512> verdict{}; // what is written; made beforehand, since a handler may not
::pid_t testProgram = 0;

extern "C" void TellAndDie(int signal)
{
    // A child of a test may end as it likes.
    if (::getpid() == testProgram) {
        const ssize_t written = ::write(STDOUT_FILENO, verdict.data(), std::strlen(verdict.data()));
        static_cast<void>(written); // there is nobody to tell
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

// Takes the signals that nobody takes so far: sanitizers have handlers of their own. They run on a
// stack of their own, for the usual one may be what has overflowed.
void TakeSignals()
{
    static std::array<char, 65536> stack;
    const stack_t place{.ss_sp = stack.data(), .ss_flags = 0, .ss_size = stack.size()};
    ::sigaltstack(&place, nullptr);
    for (const int signal : {SIGABRT, SIGSEGV, SIGILL, SIGFPE, SIGBUS}) {
        struct sigaction now {};
        ::sigaction(signal, nullptr, &now);
        if (now.sa_handler == SIG_DFL) {
            now.sa_handler = TellAndDie;
            now.sa_flags = SA_ONSTACK;
            ::sigaction(signal, &now, nullptr);
        }
    }
}

class CrashNames : public ::testing::EmptyTestEventListener {
    void OnTestProgramStart(const ::testing::UnitTest & /*program*/) override
    {
        testProgram = ::getpid();
        Blame("BeforeTheTests");
        TakeSignals();
    }

    void OnTestStart(const ::testing::TestInfo &test) override
    {
        Blame(std::string(test.test_suite_name()) + "." + test.name());
    }

    void OnTestProgramEnd(const ::testing::UnitTest & /*program*/) override
    {
        Blame("AfterTheTests");
    }

    static void Blame(const std::string &name)
    {
        const std::string words = "\n[  FAILED  ] " + name + "\n";
        verdict.fill('\0');
        words.copy(verdict.data(), verdict.size() - 1);
    }
};

// Each program of tests that this file is linked into has the listener; gtest deletes it.
const bool listening = [] {
    ::testing::UnitTest::GetInstance()->listeners().Append(new CrashNames);
    return true;
}();

} // namespace
} // namespace kelvarine::testing
