#include "outside/paths.h"

#include <array>
#include <cerrno>
#include <climits>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvarine {

namespace {

constexpr int MostLinks = 40; // as many as the system follows

// Whether whoever put a link there could as well write to what it leads to: the player, the one who
// rules the system, the owner of the folder. In a folder of the player's alone everything is his.
bool IsTrusted(const std::string &link, const struct stat &kind)
{
    struct stat folder {};
    if (::stat(FolderOf(link).c_str(), &folder) != 0) {
        return false;
    }
    const bool shared = (folder.st_mode & (S_IWGRP | S_IWOTH)) != 0;
    return !shared || kind.st_uid == ::geteuid() || kind.st_uid == 0 ||
           kind.st_uid == folder.st_uid;
}

bool ReadLink(const std::string &link, std::string &text)
{
    std::array<char, PATH_MAX> room{};
    const ssize_t length = ::readlink(link.c_str(), room.data(), room.size());
    if (length > 0) {
        text.assign(room.data(), static_cast<std::size_t>(length));
    }
    return length > 0;
}

} // namespace

std::string FolderOf(const std::string &path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string NameIn(const std::string &path)
{
    return path.substr(path.rfind('/') + 1);
}

bool FollowLinks(const std::string &path, std::string &target)
{
    target = path;
    for (int links = 0; links <= MostLinks; ++links) {
        struct stat kind {};
        if (::lstat(target.c_str(), &kind) != 0 || !S_ISLNK(kind.st_mode)) {
            return true; // what is wrong with the path, if anything, the writing finds out
        }
        if (!IsTrusted(target, kind)) {
            errno = EACCES;
            return false;
        }
        std::string next;
        if (!ReadLink(target, next)) {
            return false;
        }
        if (!next.starts_with('/')) {
            next.insert(0, FolderOf(target) + "/");
        }
        target = next;
    }
    errno = ELOOP;
    return false;
}

} // namespace kelvarine
