#include "files/sound_files.h"

#include "game/event_sound.h"
#include "outside/folders.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>

namespace kelvarine {

namespace {

// What a player finds when nothing was chosen yet, in lower case.
constexpr std::string_view DefaultAlert = "ring 2.alr";

std::string LowerCase(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return lower;
}

// By name whatever its case; names that differ in case alone have an order, too.
bool StandsBefore(const std::string &a, const std::string &b)
{
    return std::pair(LowerCase(a), a) < std::pair(LowerCase(b), b);
}

bool IsSound(const std::filesystem::directory_entry &entry, std::string_view extension)
{
    std::error_code failure;
    const std::string name = entry.path().filename().string();
    return !name.starts_with('.') && LowerCase(name).ends_with(extension) &&
           entry.is_regular_file(failure) && !failure;
}

void AddSoundsOf(const std::string &folder, std::string_view extension, SoundList &list)
{
    std::error_code failure;
    std::filesystem::directory_iterator entry(folder, failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        if (IsSound(*entry, extension)) {
            list.push_back(entry->path().filename().string());
        }
        entry.increment(failure);
    }
}

// The files of a use, from element 1 on; an empty list when there are none.
SoundList SoundsOf(const std::vector<std::string> &folders, std::string_view extension)
{
    SoundList list;
    for (const std::string &folder : folders) {
        AddSoundsOf(folder, extension, list);
    }
    std::ranges::sort(list, StandsBefore);
    list.erase(std::unique(list.begin(), list.end()), list.end());
    if (!list.empty()) {
        list.insert(list.begin(), std::string());
    }
    return list;
}

std::int32_t FirstOf(const SoundList &list)
{
    return list.empty() ? 0 : 1;
}

std::int32_t DefaultAlertOf(const SoundList &list)
{
    const auto found = std::ranges::find(list, DefaultAlert, LowerCase);
    return found == list.end() ? FirstOf(list)
                               : static_cast<std::int32_t>(std::distance(list.begin(), found));
}

} // namespace

std::vector<std::string> SoundFolders()
{
    std::vector<std::string> folders{DataFolder()};
    if (const std::string data = ProgramDataFolder(); !data.empty()) {
        folders.push_back(data + "sounds/");
    }
    return folders;
}

void FindSoundFiles(const std::vector<std::string> &folders)
{
    AnnouncerFiles = SoundsOf(folders, ".ano");
    AlertFiles = SoundsOf(folders, ".alr");
    WinFiles = SoundsOf(folders, ".win");
    AnnouncerSound = FirstOf(AnnouncerFiles);
    AlertSound = DefaultAlertOf(AlertFiles);
    WinSound = FirstOf(WinFiles);
}

std::string SoundPath(std::string_view file, const std::vector<std::string> &folders)
{
    for (const std::string &folder : folders) {
        std::error_code failure;
        std::string path = folder + std::string(file);
        if (!file.empty() && std::filesystem::is_regular_file(path, failure)) {
            return path;
        }
    }
    return {};
}

} // namespace kelvarine
