#include "outside/whole_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace kelvarine {

namespace {

std::string SystemWords()
{
    return std::error_code(errno, std::generic_category()).message();
}

// An open file that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number)
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (number_ >= 0) {
            ::close(number_);
        }
    }

    [[nodiscard]] int Number() const
    {
        return number_;
    }

    // True when closing reported no late error.
    bool Close()
    {
        return ::close(std::exchange(number_, -1)) == 0;
    }

private:
    int number_;
};

bool WriteAll(int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// Whether something is a file with bytes of its own; the reason stands in errno when not.
bool IsPlainFile(const struct stat &kind)
{
    errno = S_ISDIR(kind.st_mode) ? EISDIR : EINVAL;
    return S_ISREG(kind.st_mode);
}

// Whether nothing stands there, or a file that may be written.
bool MayReplace(const std::string &path)
{
    struct stat old {};
    if (::stat(path.c_str(), &old) != 0) {
        return true; // what is wrong with the path, if anything, the writing finds out
    }
    return IsPlainFile(old) && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

// Where a path leads once its links are followed; the path itself where that cannot be told.
std::string TargetOf(const std::string &path)
{
    std::error_code failure;
    const std::filesystem::path target = std::filesystem::weakly_canonical(path, failure);
    return failure ? path : target.string();
}

std::string FolderOf(const std::string &path)
{
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

// A new file takes what the user's mask leaves of reading and writing for all.
mode_t PermissionsFor(const std::string &path)
{
    struct stat old {};
    if (::stat(path.c_str(), &old) == 0) {
        return old.st_mode & 07777U;
    }
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666U & ~mask;
}

// The rename itself lasts only once the folder is on the disk. Some file systems cannot flush a
// folder; the file is whole all the same.
void FlushFolder(const std::string &path)
{
    const Descriptor folder(::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Number() >= 0) {
        [[maybe_unused]] const int flushed = ::fsync(folder.Number());
    }
}

bool WriteBeside(const std::string &target, std::string_view bytes)
{
    // A short name of its own, so that a long name of the target stands in nobody's way.
    std::string beside = FolderOf(target) + "/.kelvarine-XXXXXX";
    Descriptor file(::mkostemp(beside.data(), O_CLOEXEC));
    if (file.Number() < 0) {
        return false;
    }
    const bool done = ::fchmod(file.Number(), PermissionsFor(target)) == 0 &&
                      WriteAll(file.Number(), bytes) && ::fsync(file.Number()) == 0 &&
                      file.Close() && ::rename(beside.c_str(), target.c_str()) == 0;
    if (!done) {
        const int reason = errno;
        ::unlink(beside.c_str());
        errno = reason;
    }
    return done;
}

} // namespace

bool ReadWholeFile(const std::string &path, std::string &bytes, std::string &error,
                   std::size_t longest)
{
    bytes.clear();
    error.clear();
    // Without waiting: a pipe nobody writes to must not hold the program.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat kind {};
    if (file.Number() < 0 || ::fstat(file.Number(), &kind) != 0 || !IsPlainFile(kind)) {
        error = SystemWords();
        return false;
    }
    std::array<char, 65536> piece{};
    while (bytes.size() < longest) {
        const ssize_t got =
            ::read(file.Number(), piece.data(), std::min(piece.size(), longest - bytes.size()));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            error = SystemWords();
            bytes.clear();
            return false;
        }
        if (got == 0) {
            break;
        }
        bytes.append(piece.data(), static_cast<std::size_t>(got));
    }
    return true;
}

bool ReplaceWholeFile(const std::string &path, std::string_view bytes, std::string &error,
                      MissingFolders missing)
{
    error.clear();
    const std::string target = TargetOf(path);
    std::error_code failure;
    if (missing == MissingFolders::Made) {
        std::filesystem::create_directories(FolderOf(target), failure);
    }
    if (failure) {
        error = failure.message();
        return false;
    }
    if (!MayReplace(target) || !WriteBeside(target, bytes)) {
        error = SystemWords();
        return false;
    }
    FlushFolder(target);
    return true;
}

bool FileExists(const std::string &path)
{
    struct stat kind {};
    return ::stat(path.c_str(), &kind) == 0;
}

} // namespace kelvarine
