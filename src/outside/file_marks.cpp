#include "outside/file_marks.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>

namespace kelvarine {

namespace {

constexpr const char *AccessList = "system.posix_acl_access";
constexpr mode_t AllPermissions = 07777U;
constexpr mode_t PlainPermissions = 0777U;

struct Kept {
    bool Owner;
    bool Group;
};

// A file's group may change where its owner may not.
Kept TakeOwner(int file, const struct stat &old)
{
    struct stat now {};
    if (::fstat(file, &now) != 0) {
        return {false, false};
    }
    const bool both = (now.st_uid == old.st_uid && now.st_gid == old.st_gid) ||
                      ::fchown(file, old.st_uid, old.st_gid) == 0;
    const auto sameOwner = static_cast<uid_t>(-1);
    return {both || now.st_uid == old.st_uid,
            both || now.st_gid == old.st_gid || ::fchown(file, sameOwner, old.st_gid) == 0};
}

// Marks that speak of the bytes, or give them rights, end with the bytes.
bool GoesWithTheBytes(std::string_view name)
{
    return name == "security.capability" || name == "security.ima" || name == "security.evm";
}

void CopyAttribute(int file, const std::string &oldPath, const char *name)
{
    const ssize_t size = ::lgetxattr(oldPath.c_str(), name, nullptr, 0);
    if (size < 0) {
        return;
    }
    std::string value(static_cast<std::size_t>(size), '\0');
    const ssize_t got = ::lgetxattr(oldPath.c_str(), name, value.data(), value.size());
    if (got >= 0) {
        ::fsetxattr(file, name, value.data(), static_cast<std::size_t>(got), 0);
    }
}

void CopyAttributes(int file, const std::string &oldPath, bool withAccessList)
{
    // What the folder gives to new files is not what the old one had.
    ::fremovexattr(file, AccessList);
    const ssize_t size = ::llistxattr(oldPath.c_str(), nullptr, 0);
    std::string names(size > 0 ? static_cast<std::size_t>(size) : 0, '\0');
    const ssize_t got = ::llistxattr(oldPath.c_str(), names.data(), names.size());
    names.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    for (std::size_t place = 0; place < names.size();) {
        const char *name = names.c_str() + place;
        if (!GoesWithTheBytes(name) && (withAccessList || std::strcmp(name, AccessList) != 0)) {
            CopyAttribute(file, oldPath, name);
        }
        place += std::strlen(name) + 1;
    }
}

// Another owner's file must not run with his rights, and another group gets no more than everybody.
mode_t PermissionsFor(mode_t old, const Kept &kept)
{
    mode_t permissions = old & (kept.Owner && kept.Group ? AllPermissions : PlainPermissions);
    if (!kept.Group) {
        permissions = (permissions & ~S_IRWXG) | (permissions & S_IRWXO) << 3U;
    }
    return permissions;
}

} // namespace

bool TakeMarks(int file, const std::string &oldPath, const struct stat &old)
{
    const Kept kept = TakeOwner(file, old);
    CopyAttributes(file, oldPath, kept.Group);
    return ::fchmod(file, PermissionsFor(old.st_mode, kept)) == 0;
}

} // namespace kelvarine
