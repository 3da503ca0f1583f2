// Runs a piece of a test in a process of its own, so that limits, rights and mounts end with it.
#pragma once

#include <functional>
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

} // namespace kelvarine::testing
