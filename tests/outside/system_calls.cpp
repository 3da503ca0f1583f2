#include "outside/system_calls.h"

#include <atomic>
#include <cstdarg>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/types.h>
#include <thread>

namespace kelvarine::testing {

namespace {

std::atomic<SystemCalls *> current = nullptr;
std::atomic<int> made = 0;
std::thread::id maker; // of the current one

} // namespace

SystemCalls::SystemCalls()
{
    maker = std::this_thread::get_id();
    ++made;
    current = this;
}

SystemCalls::~SystemCalls()
{
    current = nullptr;
}

SystemCalls *SystemCalls::OfThisThread()
{
    thread_local const int madeAtFirstCall = made;
    SystemCalls *calls = current;
    const bool isOurs =
        calls != nullptr && (madeAtFirstCall == made || std::this_thread::get_id() == maker);
    return isOurs ? calls : nullptr;
}

void SystemCalls::Fail(int number, int error, const std::string &name)
{
    countdown_ = number;
    error_ = error;
    name_ = name;
    always_ = false;
}

void SystemCalls::FailAlways(const std::string &name, int error)
{
    Fail(1, error, name);
    always_ = true;
}

std::vector<std::string> SystemCalls::Names() const
{
    std::vector<std::string> names;
    for (const SystemCall &call : Calls) {
        names.push_back(call.Name);
    }
    return names;
}

bool SystemCalls::Fails(const std::string &name)
{
    if (countdown_ == 0 || (!name_.empty() && name != name_)) {
        return false;
    }
    if (!always_) {
        --countdown_;
    }
    if (always_ || countdown_ == 0) {
        errno = error_;
        return true;
    }
    return false;
}

int SystemCalls::OpenFile(int descriptor)
{
    if (descriptor < 0) {
        return -1;
    }
    const auto place = static_cast<std::size_t>(descriptor);
    if (files_.size() <= place) {
        files_.resize(place + 1, -1);
    }
    files_[place] = opened_++;
    return files_[place];
}

int SystemCalls::FileOf(int descriptor)
{
    const auto place = static_cast<std::size_t>(descriptor);
    return descriptor >= 0 && place < files_.size() ? files_[place] : -1;
}

namespace {

// Records a call and does it, unless it is to fail.
template <typename Do>
auto Through(SystemCall call, const Do &doIt) -> decltype(doIt())
{
    SystemCalls *calls = SystemCalls::OfThisThread();
    if (calls == nullptr) {
        return doIt();
    }
    call.Failed = calls->Fails(call.Name);
    const int reason = errno;
    const auto result = call.Failed ? decltype(doIt())(-1) : doIt();
    if (call.Name == "openat") {
        call.File = calls->OpenFile(static_cast<int>(result));
    }
    calls->Calls.push_back(call);
    if (call.Failed) {
        errno = reason;
    }
    return result;
}

int FileOf(int descriptor)
{
    SystemCalls *calls = SystemCalls::OfThisThread();
    return calls != nullptr ? calls->FileOf(descriptor) : -1;
}

// The file behind a name such as "/proc/self/fd/7".
int FileBehind(const char *path)
{
    const std::string name(path);
    return FileOf(std::atoi(name.substr(name.rfind('/') + 1).c_str()));
}

} // namespace

extern "C" {

// The names are the linker's.
// NOLINTBEGIN(clang-diagnostic-reserved-identifier)
int __real_openat(int folder, const char *path, int flags, mode_t permissions);
ssize_t __real_write(int file, const void *bytes, size_t count);
int __real_fsync(int file);
int __real_close(int file);
int __real_fchmod(int file, mode_t permissions);
int __real_ftruncate(int file, off_t length);
int __real_linkat(int oldFolder, const char *from, int newFolder, const char *to, int flags);
int __real_renameat(int oldFolder, const char *from, int newFolder, const char *to);
int __real_unlinkat(int folder, const char *path, int flags);
int __real_flock(int file, int operation);

int __wrap_openat(int folder, const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto permissions = static_cast<mode_t>(va_arg(rest, unsigned int));
    va_end(rest);
    return Through({.Name = "openat", .To = path},
                   [&] { return __real_openat(folder, path, flags, permissions); });
}

ssize_t __wrap_write(int file, const void *bytes, size_t count)
{
    return Through({.Name = "write",
                    .File = FileOf(file),
                    .Bytes = std::string(static_cast<const char *>(bytes), count)},
                   [&] { return __real_write(file, bytes, count); });
}

int __wrap_fsync(int file)
{
    if (SystemCalls *calls = SystemCalls::OfThisThread(); calls != nullptr && calls->BeforeFlush) {
        calls->BeforeFlush();
    }
    return Through({.Name = "fsync", .File = FileOf(file)}, [&] { return __real_fsync(file); });
}

int __wrap_close(int file)
{
    // What fails to be closed is closed all the same, as the system has it.
    return Through({.Name = "close", .File = FileOf(file)}, [&] { return __real_close(file); });
}

int __wrap_fchmod(int file, mode_t permissions)
{
    return Through({.Name = "fchmod", .File = FileOf(file)},
                   [&] { return __real_fchmod(file, permissions); });
}

int __wrap_ftruncate(int file, off_t length)
{
    return Through({.Name = "ftruncate", .File = FileOf(file)},
                   [&] { return __real_ftruncate(file, length); });
}

int __wrap_linkat(int oldFolder, const char *from, int newFolder, const char *to, int flags)
{
    return Through({.Name = "linkat", .File = FileBehind(from), .To = to},
                   [&] { return __real_linkat(oldFolder, from, newFolder, to, flags); });
}

int __wrap_renameat(int oldFolder, const char *from, int newFolder, const char *to)
{
    return Through({.Name = "renameat", .From = from, .To = to},
                   [&] { return __real_renameat(oldFolder, from, newFolder, to); });
}

int __wrap_unlinkat(int folder, const char *path, int flags)
{
    return Through({.Name = "unlinkat", .To = path},
                   [&] { return __real_unlinkat(folder, path, flags); });
}

int __wrap_flock(int file, int operation)
{
    const SystemCalls *calls = SystemCalls::OfThisThread();
    if (calls != nullptr && calls->LocksNeedWriting && (operation & LOCK_EX) != 0 &&
        (::fcntl(file, F_GETFL) & O_ACCMODE) == O_RDONLY) {
        errno = EBADF;
        return -1;
    }
    return __real_flock(file, operation);
}
// NOLINTEND(clang-diagnostic-reserved-identifier)

} // extern "C"

} // namespace kelvarine::testing
