#include "files/recovered_folder.h"

#include "outside/folders.h"
#include "outside/paths.h"
#include "outside/whole_file.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <filesystem>
#include <functional>
#include <sys/stat.h>
#include <system_error>
#include <vector>

namespace kelvarine {

namespace {

constexpr std::string_view Extension = ".sdk";
constexpr std::string_view DateForm = "0000-00-00 00.00.00"; // a nought for each digit
constexpr const char *DateFormat = "%Y-%m-%d %H.%M.%S";

// The time of a file's last change where the player lives, such as "2026-11-22 09.40.00".
std::string DateOf(const std::string &path)
{
    struct stat state {};
    std::tm time{};
    std::array<char, 64> text{};
    if (::stat(path.c_str(), &state) != 0 || ::localtime_r(&state.st_mtime, &time) == nullptr) {
        return std::string(DateForm);
    }
    return {text.data(), std::strftime(text.data(), text.size(), DateFormat, &time)};
}

bool IsDated(std::string_view name)
{
    return name.size() >= DateForm.size() && name.ends_with(Extension) &&
           std::equal(DateForm.begin(), DateForm.end(), name.begin(), [](char form, char letter) {
               return form == '0' ? letter >= '0' && letter <= '9' : letter == form;
           });
}

// A name that is free, with a number behind it where there are others.
std::string FreePath(const std::string &beginning, std::string_view end)
{
    std::string path = beginning + std::string(end);
    for (int number = 2; FileExists(path); ++number) {
        path = beginning + " " + std::to_string(number) + std::string(end);
    }
    return path;
}

void RemoveOldest()
{
    std::error_code failure;
    std::vector<std::string> games;
    std::filesystem::directory_iterator entry(RecoveredFolder(), failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        if (const std::string name = entry->path().filename().string(); IsDated(name)) {
            games.push_back(name);
        }
        entry.increment(failure);
    }
    std::ranges::sort(games, std::greater());
    for (std::size_t game = MostRecoveredGames; game < games.size(); ++game) {
        std::filesystem::remove(RecoveredFolder() + games[game], failure);
    }
}

} // namespace

std::string RecoveredFolder()
{
    return DataFolder() + "recovered/";
}

bool KeepRecoveredGame(const std::string &path)
{
    std::error_code failure;
    std::filesystem::create_directories(RecoveredFolder(), failure);
    std::filesystem::rename(path, FreePath(RecoveredFolder() + DateOf(path), Extension), failure);
    if (!failure) {
        RemoveOldest();
    }
    return !failure;
}

std::string CopyToRecovered(const std::string &path, std::string &error)
{
    std::string bytes;
    if (!ReadWholeFile(path, bytes, error)) {
        return {};
    }
    std::string copy = FreePath(RecoveredFolder() + "before " + NameIn(path), "");
    if (!ReplaceWholeFile(copy, bytes, error)) {
        std::error_code unseen;
        std::filesystem::remove(copy, unseen); // it may stand there all the same
        return {};
    }
    return copy;
}

} // namespace kelvarine
