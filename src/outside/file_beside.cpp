#include "outside/file_beside.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <utility>

namespace kelvarine {

namespace {

constexpr std::string_view Prefix = ".kelvarine-";
constexpr std::string_view Letters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
constexpr std::size_t RandomLetters = 6;
constexpr int MostNames = 100; // that may be taken before the folder counts as full
constexpr std::time_t Day = std::time_t{24} * 60 * 60;

// A short name of its own, so that a long name of the target stands in nobody's way, and one that
// nobody can foresee.
std::string NewName()
{
    std::array<std::uint8_t, RandomLetters> draws{};
    [[maybe_unused]] const int drawn = ::getentropy(draws.data(), draws.size());
    std::string name(Prefix);
    for (const std::uint8_t draw : draws) {
        name += Letters[draw % Letters.size()];
    }
    return name;
}

bool IsSuchAName(std::string_view name)
{
    return name.size() == Prefix.size() + RandomLetters && name.starts_with(Prefix) &&
           name.find_first_not_of(Letters, Prefix.size()) == std::string_view::npos;
}

// Whoever writes a file holds it, so that others can tell it from a leftover. False when somebody
// is looking whether it is one; a disk that knows no locks hinders nobody.
bool Hold(int file)
{
    return ::flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

// Between its making and its holding a file may have been taken for a leftover.
bool HasAName(int file)
{
    struct stat kind {};
    return ::fstat(file, &kind) == 0 && kind.st_nlink > 0;
}

bool IsOldOrNobodys(const struct stat &kind, int file)
{
    // A lock that is shared is given for a file open for reading on every disk.
    return kind.st_mtime < std::time(nullptr) - Day ||
           (file >= 0 && ::flock(file, LOCK_SH | LOCK_NB) == 0);
}

// Removes a file that nobody writes any more, and keeps it from being held while it goes.
void RemoveLeftover(int folder, const char *name)
{
    struct stat kind {};
    if (!IsSuchAName(name) || ::fstatat(folder, name, &kind, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISREG(kind.st_mode) || kind.st_uid != ::geteuid()) {
        return;
    }
    const Descriptor file(::openat(folder, name, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (IsOldOrNobodys(kind, file.Number())) {
        ::unlinkat(folder, name, 0);
    }
}

} // namespace

FileBeside::FileBeside(int folder, mode_t permissions, Beside way)
    : folder_(folder),
      file_(way == Beside::Named ? -1
                                 : ::openat(folder, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC,
                                            static_cast<unsigned int>(permissions)))
{
    if (way == Beside::Named) {
        MakeNamed(permissions);
    } else if (file_.IsOpen()) {
        Hold(file_.Number());
    }
}

FileBeside::~FileBeside()
{
    if (!name_.empty()) {
        const int reason = errno;
        ::unlinkat(folder_, name_.c_str(), 0);
        errno = reason;
    }
}

void FileBeside::MakeNamed(mode_t permissions)
{
    constexpr int flags = O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW;
    for (int tried = 0; tried < MostNames; ++tried) {
        const std::string name = NewName();
        Descriptor file(
            ::openat(folder_, name.c_str(), flags, static_cast<unsigned int>(permissions)));
        if (!file.IsOpen() && errno != EEXIST) {
            return;
        }
        if (file.IsOpen() && Hold(file.Number()) && HasAName(file.Number())) {
            file_ = std::move(file);
            name_ = name;
            return;
        }
    }
}

// Late errors come at each closing; a second opening is closed, since the file stays held until it
// is in its place.
bool FileBeside::EndWriting() const
{
    Descriptor second(::fcntl(file_.Number(), F_DUPFD_CLOEXEC, 0));
    return second.IsOpen() && second.Close();
}

bool FileBeside::TakeName()
{
    const std::string source = "/proc/self/fd/" + std::to_string(file_.Number());
    for (int tried = 0; name_.empty() && tried < MostNames; ++tried) {
        const std::string name = NewName();
        if (::linkat(AT_FDCWD, source.c_str(), folder_, name.c_str(), AT_SYMLINK_FOLLOW) == 0) {
            name_ = name;
        } else if (errno != EEXIST) {
            return false;
        }
    }
    return !name_.empty();
}

bool FileBeside::TakePlace(const std::string &name)
{
    if (::renameat(folder_, name_.c_str(), folder_, name.c_str()) != 0) {
        return false;
    }
    name_.clear();
    return true;
}

bool LacksFilesWithoutName()
{
    constexpr std::array signs{EOPNOTSUPP, EISDIR, EINVAL, ENOENT, ENOSYS};
    return std::ranges::find(signs, errno) != signs.end();
}

void RemoveLeftovers(int folder)
{
    const int again = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(again >= 0 ? ::fdopendir(again) : nullptr,
                                                       ::closedir);
    while (const dirent *entry = entries != nullptr ? ::readdir(entries.get()) : nullptr) {
        RemoveLeftover(folder, entry->d_name);
    }
}

} // namespace kelvarine
