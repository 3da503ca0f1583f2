// Runs a piece of a test in a process of its own, so that limits, rights and mounts end with it.
#pragma once

#include <array>
#include <csignal>
#include <cstdint>
#include <functional>
#include <linux/capability.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/syscall.h>
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

// Lets a child make no threads any more, and leaves it its files. For the system's first user a
// limit counts only without two of its rights, and under another name.
inline bool ForbidThreads()
{
    constexpr uid_t somebody = 65534;
    constexpr std::uint32_t rights = 1U << CAP_SYS_RESOURCE | 1U << CAP_SYS_ADMIN;
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets{};
    const rlimit none{0, 0};
    if (::setrlimit(RLIMIT_NPROC, &none) != 0 || ::getuid() != 0) {
        return ::getuid() != 0;
    }
    if (::setresuid(somebody, 0, 0) != 0 || ::syscall(SYS_capget, &header, sets.data()) != 0) {
        return false;
    }
    sets[0].effective &= ~rights;
    return ::syscall(SYS_capset, &header, sets.data()) == 0;
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
