#include "failing/failing_calls.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

// Calls that are counted together.
struct Count {
    std::atomic<int> Failing{0};
    std::atomic<int> Failure{0};
    std::atomic<int> Made{0};
};

Count changes;
Count entriesRead;

void LetFail(Count &calls, int number, int error)
{
    calls.Failing = number;
    calls.Failure = error;
    calls.Made = 0;
}

// Whether the call that is being made is the one that fails.
bool Fails(Count &calls = changes)
{
    const int number = ++calls.Made;
    if (number != calls.Failing) {
        return false;
    }
    errno = calls.Failure;
    return true;
}

template <typename Call>
Call Real(const char *name)
{
    return reinterpret_cast<Call>(::dlsym(RTLD_NEXT, name));
}

} // namespace

// The names of the parameters are those of the house, and types cannot stand in parentheses.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name,bugprone-macro-parentheses)
extern "C" {

void LetCallFail(int number, int error)
{
    LetFail(changes, number, error);
}

int CallsMade()
{
    return changes.Made;
}

void LetReadingFail(int number, int error)
{
    LetFail(entriesRead, number, error);
}

// A call that takes just what it is given.
#define FAILING_CALL(type, name, parameters, arguments)                                            \
    type name parameters                                                                           \
    {                                                                                              \
        static const auto real = Real<type(*) parameters>(#name);                                  \
        return Fails() ? -1 : real arguments;                                                      \
    }

FAILING_CALL(ssize_t, pwrite, (int file, const void *bytes, size_t count, off_t place),
             (file, bytes, count, place))
FAILING_CALL(int, fsync, (int file), (file))
FAILING_CALL(int, ftruncate, (int file, off_t length), (file, length))
FAILING_CALL(int, fchmod, (int file, mode_t permissions), (file, permissions))
FAILING_CALL(int, fchown, (int file, uid_t owner, gid_t group), (file, owner, group))
FAILING_CALL(int, mkdir, (const char *path, mode_t permissions), (path, permissions))
FAILING_CALL(int, rename, (const char *from, const char *to), (from, to))
FAILING_CALL(int, renameat, (int oldFolder, const char *from, int newFolder, const char *to),
             (oldFolder, from, newFolder, to))
FAILING_CALL(int, linkat,
             (int oldFolder, const char *from, int newFolder, const char *to, int flags),
             (oldFolder, from, newFolder, to, flags))
FAILING_CALL(int, unlink, (const char *path), (path))
FAILING_CALL(int, unlinkat, (int folder, const char *path, int flags), (folder, path, flags))

#undef FAILING_CALL

// A disk that fails in the middle has taken some of the bytes; an interrupted call has done
// nothing.
ssize_t write(int file, const void *bytes, size_t count)
{
    static const auto real = Real<ssize_t (*)(int, const void *, size_t)>("write");
    if (!Fails()) {
        return real(file, bytes, count);
    }
    if (changes.Failure != EINTR) {
        static_cast<void>(real(file, bytes, count / 2));
    }
    errno = changes.Failure;
    return -1;
}

// A file that fails to be closed is closed all the same, as the system has it.
int close(int file)
{
    static const auto real = Real<int (*)(int)>("close");
    const bool fails = Fails();
    const int result = real(file);
    if (fails) {
        errno = changes.Failure;
        return -1;
    }
    return result;
}

int open(const char *path, int flags, ...)
{
    static const auto real = Real<int (*)(const char *, int, mode_t)>("open");
    va_list rest;
    va_start(rest, flags);
    const auto permissions = static_cast<mode_t>(va_arg(rest, unsigned int));
    va_end(rest);
    return Fails() ? -1 : real(path, flags, permissions);
}

int openat(int folder, const char *path, int flags, ...)
{
    static const auto real = Real<int (*)(int, const char *, int, mode_t)>("openat");
    va_list rest;
    va_start(rest, flags);
    const auto permissions = static_cast<mode_t>(va_arg(rest, unsigned int));
    va_end(rest);
    return Fails() ? -1 : real(folder, path, flags, permissions);
}

dirent *readdir(DIR *folder)
{
    static const auto real = Real<dirent *(*)(DIR *)>("readdir");
    return Fails(entriesRead) ? nullptr : real(folder);
}

} // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name,bugprone-macro-parentheses)
