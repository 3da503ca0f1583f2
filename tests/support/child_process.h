// Runs a piece of a test in a process of its own, so that limits, rights and mounts end with it.
#pragma once

#include <csignal>
#include <cstdint>
#include <functional>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelvarine::testing {

// What a child ended with: the value that the action returned, or -1 when a signal ended it.
inline int RunInChild(const std::function<int()> &action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(action());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// What became of a child that was to be killed.
enum class Kill : std::uint8_t { Struck, TooLate, NotPossible };

// Runs an action in a child that is killed on the way into its system call of a number, from 1 on.
// TooLate when the action has come to its end before; NotPossible where the machine does not let a
// process be traced.
inline Kill KillAtSystemCall(int number, const std::function<void()> &action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
            ::_exit(1);
        }
        ::raise(SIGSTOP);
        action();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    // The child stops at each call on the way in and on the way out.
    for (int stop = 1; stop < 2 * number && WIFSTOPPED(status); ++stop) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
    }
    if (WIFSTOPPED(status)) {
        ::kill(child, SIGKILL);
        ::waitpid(child, &status, 0);
        return Kill::Struck;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? Kill::TooLate : Kill::NotPossible;
}

} // namespace kelvarine::testing
