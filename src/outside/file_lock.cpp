#include "outside/file_lock.h"

#include "outside/paths.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <future>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <utility>

namespace kelvarine {

namespace {

// Whoever lets go may remove the file; a lock on one that has gone keeps nobody out.
bool StandsAt(const std::string &path, int file)
{
    struct stat held {};
    struct stat there {};
    return ::fstat(file, &held) == 0 && ::lstat(path.c_str(), &there) == 0 &&
           held.st_dev == there.st_dev && held.st_ino == there.st_ino;
}

// Some disks of other machines give a lock only to who may write: to such a file it is none.
bool DiskKnowsNoLocks()
{
    return errno == ENOLCK || errno == EOPNOTSUPP || errno == ENOSYS || errno == EINVAL ||
           errno == EBADF;
}

// For writing, which some disks ask of who wants a lock, and else for reading.
Descriptor OpenLockFile(const std::string &path)
{
    constexpr int flags = O_CREAT | O_CLOEXEC | O_NOFOLLOW;
    constexpr mode_t permissions = 0644;
    Descriptor file(::open(path.c_str(), O_RDWR | flags, permissions));
    if (!file.IsOpen() && (errno == EACCES || errno == EROFS)) {
        file = Descriptor(::open(path.c_str(), O_RDONLY | flags, permissions));
    }
    return file;
}

} // namespace

FileLock::FileLock(std::string path, int patience, LockFile after)
    : path_(std::move(path)), after_(after)
{
    std::error_code failure;
    std::filesystem::create_directories(FolderOf(path_), failure);
    if (failure) {
        error_ = failure.message();
        return;
    }
    do {
        state_ = Open();
        if (state_ == LockState::Busy && patience > 0) {
            state_ = Wait(patience);
        }
    } while (state_ == LockState::Held && !StandsAt(path_, file_.Number()));
}

FileLock::~FileLock()
{
    if (state_ == LockState::Held && after_ == LockFile::Goes) {
        ::unlink(path_.c_str());
    }
}

LockState FileLock::Fail()
{
    error_ = std::error_code(errno, std::generic_category()).message();
    return LockState::Failed;
}

LockState FileLock::Open()
{
    file_ = OpenLockFile(path_);
    if (!file_.IsOpen()) {
        return Fail();
    }
    if (::flock(file_.Number(), LOCK_EX | LOCK_NB) == 0 || DiskKnowsNoLocks()) {
        return LockState::Held;
    }
    return errno == EWOULDBLOCK || errno == EINTR ? LockState::Busy : Fail();
}

// The system itself wakes who waits, but knows no limit. So a thread waits, which outlives this
// when the limit comes first, and lets go of what it gets then.
LockState FileLock::Wait(int patience)
{
    std::packaged_task<bool()> waiting(
        [file = Descriptor(::fcntl(file_.Number(), F_DUPFD_CLOEXEC, 0))] {
            return ::flock(file.Number(), LOCK_EX) == 0;
        });
    std::future<bool> granted = waiting.get_future();
    try {
        std::thread(std::move(waiting)).detach();
    } catch (const std::system_error &failure) { // the system has none left
        error_ = failure.code().message();
        return LockState::Failed;
    }
    const bool inTime =
        granted.wait_for(std::chrono::milliseconds(patience)) == std::future_status::ready;
    return inTime && granted.get() ? LockState::Held : LockState::Busy;
}

} // namespace kelvarine
