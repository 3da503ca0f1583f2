#include "outside/whole_file.h"

#include "outside/descriptor.h"
#include "outside/file_beside.h"
#include "outside/file_marks.h"
#include "outside/paths.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace kelvarine {

namespace {

constexpr mode_t NewFilePermissions = 0666U; // of which the player's mask takes its part
constexpr mode_t PrivatePermissions = 0600U; // until a file has those of the one that it replaces

std::string SystemWords()
{
    return std::error_code(errno, std::generic_category()).message();
}

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

bool Flush(int file)
{
    int result = ::fsync(file);
    while (result != 0 && errno == EINTR) {
        result = ::fsync(file);
    }
    return result == 0;
}

// Whether something is a file with bytes of its own; the reason stands in errno when not.
bool IsPlainFile(const struct stat &kind)
{
    errno = S_ISDIR(kind.st_mode) ? EISDIR : EINVAL;
    return S_ISREG(kind.st_mode);
}

bool MayBeWritten(const std::string &path)
{
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

// ---- Replacing -------------------------------------------------------------------------------

// What is to be replaced: where it stands, and the system's record of it when there is something.
struct Target {
    std::string Path;
    Descriptor Folder;
    std::optional<struct stat> Old;
};

// Looks at a target. False, with the reason in errno, when it cannot be replaced.
bool LookAt(Target &target)
{
    target.Folder =
        Descriptor(::open(FolderOf(target.Path).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!target.Folder.IsOpen()) {
        return false;
    }
    struct stat old {};
    if (::fstatat(target.Folder.Number(), NameIn(target.Path).c_str(), &old, AT_SYMLINK_NOFOLLOW) !=
        0) {
        return errno == ENOENT;
    }
    target.Old = old;
    return IsPlainFile(old) && MayBeWritten(target.Path);
}

// The new name itself lasts only once the folder is on the disk. Where the file system knows no
// flushing of folders, or the folder may not be read, the file is whole all the same.
bool FlushFolder(int folder)
{
    const Descriptor open(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return !open.IsOpen() || Flush(open.Number()) || errno == EINVAL || errno == EOPNOTSUPP;
}

bool WriteBeside(const Target &target, std::string_view bytes, Reach reach, Beside way)
{
    FileBeside file(target.Folder.Number(), target.Old ? PrivatePermissions : NewFilePermissions,
                    way);
    return file.IsOpen() && (!target.Old || TakeMarks(file.Number(), target.Path, *target.Old)) &&
           WriteAll(file.Number(), bytes) && (reach == Reach::System || Flush(file.Number())) &&
           file.EndWriting() && file.TakeName() && file.TakePlace(NameIn(target.Path));
}

bool Replace(Target &target, std::string_view bytes, Reach reach)
{
    if (!LookAt(target)) {
        return false;
    }
    if (!WriteBeside(target, bytes, reach, Beside::WithoutName) &&
        !(LacksFilesWithoutName() && WriteBeside(target, bytes, reach, Beside::Named))) {
        return false;
    }
    RemoveLeftovers(target.Folder.Number());
    return reach == Reach::System || FlushFolder(target.Folder.Number());
}

// ---- Writing in place ------------------------------------------------------------------------

bool HasOtherNames(const Target &target)
{
    return target.Old && target.Old->st_nlink > 1;
}

bool IsMountedOn(const Target &target)
{
    struct statx kind {};
    return ::statx(target.Folder.Number(), NameIn(target.Path).c_str(), AT_SYMLINK_NOFOLLOW, 0,
                   &kind) == 0 &&
           (kind.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
}

// In a folder with the sticky bit a file's name is its owner's and the folder's owner's alone.
bool NameIsAnothers(const Target &target)
{
    struct stat folder {};
    const uid_t player = ::geteuid();
    return ::fstat(target.Folder.Number(), &folder) == 0 && (folder.st_mode & S_ISVTX) != 0 &&
           player != 0 && player != folder.st_uid && target.Old && target.Old->st_uid != player;
}

bool FolderTakesFiles(const Target &target)
{
    return ::faccessat(AT_FDCWD, FolderOf(target.Path).c_str(), W_OK | X_OK, AT_EACCESS) == 0;
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
    if (!file.IsOpen() || ::fstat(file.Number(), &kind) != 0 || !IsPlainFile(kind)) {
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
                      MissingFolders missing, Reach reach)
{
    error.clear();
    Target target;
    if (!FollowLinks(path, target.Path)) {
        error = SystemWords();
        return false;
    }
    std::error_code failure;
    if (missing == MissingFolders::Made) {
        std::filesystem::create_directories(FolderOf(target.Path), failure);
    }
    if (failure) {
        error = failure.message();
        return false;
    }
    if (!Replace(target, bytes, reach)) {
        error = SystemWords();
        return false;
    }
    return true;
}

bool NeedsWritingInPlace(const std::string &path, std::string &error)
{
    error.clear();
    Target target;
    if (!FollowLinks(path, target.Path) || !LookAt(target)) {
        error = SystemWords();
        return false;
    }
    return target.Old && (HasOtherNames(target) || IsMountedOn(target) || NameIsAnothers(target) ||
                          !FolderTakesFiles(target));
}

bool WriteInPlace(const std::string &path, std::string_view bytes, std::string &error)
{
    error.clear();
    Target target;
    if (FollowLinks(path, target.Path) && LookAt(target)) {
        Descriptor file(::openat(target.Folder.Number(), NameIn(target.Path).c_str(),
                                 O_WRONLY | O_CLOEXEC | O_NOFOLLOW));
        if (file.IsOpen() && WriteAll(file.Number(), bytes) &&
            ::ftruncate(file.Number(), static_cast<off_t>(bytes.size())) == 0 &&
            Flush(file.Number()) && file.Close()) {
            return true;
        }
    }
    error = SystemWords();
    return false;
}

bool OverwritePart(const std::string &path, std::size_t place, std::string_view bytes)
{
    const Descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW));
    return file.IsOpen() &&
           ::pwrite(file.Number(), bytes.data(), bytes.size(), static_cast<off_t>(place)) ==
               static_cast<ssize_t>(bytes.size());
}

bool FileExists(const std::string &path)
{
    struct stat kind {};
    return ::stat(path.c_str(), &kind) == 0;
}

} // namespace kelvarine
