#include "files/dialog_folders.h"

#include "files/text_case.h"
#include "outside/folders.h"
#include "outside/messages.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace kelvarine {

std::vector<std::string> RecentFolders;
Flag HiddenFilesShown;

namespace {

constexpr mode_t FolderRights = 0777; // less what the player's mask takes away

bool IsFolder(const std::string &path)
{
    std::error_code failure;
    return std::filesystem::is_directory(path, failure);
}

void TellFailure(const std::string &what, const std::error_code &reason)
{
    ShowMessage(what + "\r\r" + reason.message());
}

// A path without its points and double slashes, with a closing slash.
std::string PlainFolder(const std::string &path)
{
    std::string plain = std::filesystem::path(path).lexically_normal().string();
    if (!plain.ends_with('/')) {
        plain += '/';
    }
    return plain;
}

} // namespace

void SetDialogFolderDefaults()
{
    RecentFolders.clear();
    HiddenFilesShown = False;
}

void RememberFolderOf(const std::string &path)
{
    if (!path.starts_with('/')) {
        return; // one that is told from where the program runs means nothing elsewhere
    }
    const std::string folder = PlainFolder(path.substr(0, path.rfind('/') + 1));
    std::erase(RecentFolders, folder);
    RecentFolders.insert(RecentFolders.begin(), folder);
    RecentFolders.resize(std::min(RecentFolders.size(), MostRecentFolders));
}

std::string WithHomeWrittenOut(std::string_view typed)
{
    return typed.starts_with("~/") ? HomeFolder() + std::string(typed.substr(2))
                                   : std::string(typed);
}

std::string TypedFolder(std::string_view typed, const std::string &folder)
{
    const std::string_view text = WithoutOuterBlanks(typed);
    if (text == "~") {
        return HomeFolder();
    }
    const bool points = text == "." || text == "..";
    if (!points && text.find('/') == std::string_view::npos) {
        return {};
    }
    std::string path = WithHomeWrittenOut(text);
    if (!path.starts_with('/')) {
        path.insert(0, folder);
    }
    return IsFolder(path) ? PlainFolder(path) : std::string();
}

std::string NearestFolder(std::string folder)
{
    while (folder.size() > 1 && !IsFolder(folder)) {
        folder = FolderAbove(folder);
    }
    return folder;
}

std::string FolderAbove(const std::string &folder)
{
    if (folder.size() <= 1) {
        return folder;
    }
    return folder.substr(0, folder.rfind('/', folder.size() - 2) + 1);
}

bool AgreeToEnter(const std::string &folder)
{
    std::error_code failure;
    const std::filesystem::directory_iterator entries(folder, failure);
    if (failure) {
        TellFailure("Unable to open folder.", failure);
    }
    return !failure;
}

std::string MakeFolder(const std::string &folder, std::string_view name)
{
    const std::string path = folder + std::string(WithoutOuterBlanks(name));
    if (path == folder) {
        return {};
    }
    if (::mkdir(path.c_str(), FolderRights) != 0) {
        TellFailure("Unable to make folder.", {errno, std::generic_category()});
        return {};
    }
    return PlainFolder(path);
}

} // namespace kelvarine
