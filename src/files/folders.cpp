#include "files/folders.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace kelvarine {

namespace {

std::string HomeFolder()
{
    const char *home = std::getenv("HOME");
    if (home != nullptr && home[0] == '/') {
        return home;
    }
    const passwd *user = ::getpwuid(::getuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

// The desktop's convention: a variable may name the place, and only an absolute path counts.
std::string FolderFrom(const char *variable, const char *belowHome)
{
    const char *chosen = std::getenv(variable);
    const bool usable = chosen != nullptr && chosen[0] == '/';
    return (usable ? std::string(chosen) : HomeFolder() + belowHome) + "/kelvarine/";
}

} // namespace

std::string SettingsFolder()
{
    return FolderFrom("XDG_CONFIG_HOME", "/.config");
}

std::string DataFolder()
{
    return FolderFrom("XDG_DATA_HOME", "/.local/share");
}

} // namespace kelvarine
