#include "outside/folders.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <system_error>
#include <unistd.h>

namespace kelvarine {

namespace {

// The desktop's convention: a variable may name the place, and only an absolute path counts.
std::string FolderFrom(const char *variable, const char *belowHome)
{
    const char *chosen = std::getenv(variable);
    const bool usable = chosen != nullptr && chosen[0] == '/';
    return (usable ? std::string(chosen) : HomeFolder() + belowHome) + "/kelvarine/";
}

} // namespace

std::string HomeFolder()
{
    const char *home = std::getenv("HOME");
    std::string folder = "/";
    if (home != nullptr && home[0] == '/') {
        folder = home;
    } else if (const passwd *user = ::getpwuid(::getuid());
               user != nullptr && user->pw_dir != nullptr) {
        folder = user->pw_dir;
    }
    return folder.ends_with('/') ? folder : folder + '/';
}

std::string SettingsFolder()
{
    return FolderFrom("XDG_CONFIG_HOME", ".config");
}

std::string DataFolder()
{
    return FolderFrom("XDG_DATA_HOME", ".local/share");
}

std::string ProgramDataFolder(const std::string &programFolder)
{
    for (const char *place : {"data/", "../share/kelvarine/"}) {
        std::error_code failure;
        if (std::filesystem::is_directory(programFolder + place, failure)) {
            return programFolder + place;
        }
    }
    return {};
}

std::string ProgramDataFolder()
{
    std::error_code failure;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failure);
    return failure ? std::string() : ProgramDataFolder(program.parent_path().string() + "/");
}

} // namespace kelvarine
