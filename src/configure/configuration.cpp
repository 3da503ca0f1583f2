#include "configure/configuration.h"

#include "board/margin.h"
#include "configure/merged_settings.h"
#include "configure/setting_table.h"
#include "grid/grid.h"
#include "grid/little_endian.h"
#include "logic/kept_settings.h"
#include "logic/technique_masks.h"
#include "outside/file_lock.h"
#include "outside/folders.h"
#include "outside/messages.h"
#include "outside/whole_file.h"

#include <functional>
#include <numeric>
#include <optional>

namespace kelvarine {

std::int32_t ReservedSetting;

namespace {

constexpr std::string_view FileName = "config.sdu";
constexpr std::string_view LockName = "config.lock";
constexpr int LockPatience = 1000; // milliseconds

// The settings when they last went from the file or into it; empty before.
std::string commonBytes;

// The file's very bytes, which may hold what is corrected when it is taken; none once it was
// written.
std::optional<std::string> bytesAsRead;

// What is to stand in the file: all settings where nobody else has written it, else what the player
// changed here among what others changed.
std::string BytesOver(const std::string &standing)
{
    const std::string now = ConfigurationBytes();
    return commonBytes.empty() || bytesAsRead == standing
               ? now
               : MergedSettings(commonBytes, now, standing);
}

std::size_t OffsetOf(const SettingRow &row)
{
    return (row.Record - 1) * BytesInRecord + 4 * row.Element;
}

// The singles stand in a level whatever the file says. On the configuration screen a technique only
// ever goes from level to level, and without these two no count of solutions comes to an end.
void KeepSinglesInALevel()
{
    const std::uint32_t inLevels = std::accumulate(LevelTable.begin() + 1, LevelTable.begin() + 6,
                                                   std::uint32_t{0}, std::bit_or());
    LevelTable[1] |= SinglesMask & ~inLevels;
}

} // namespace

void SetConfigurationDefaults()
{
    ReservedSetting = 0;
    commonBytes.clear();
    bytesAsRead.reset();
}

void TakeConfiguration(std::string_view bytes)
{
    const std::size_t whole = bytes.size() / BytesInRecord * BytesInRecord;
    if (whole == 0 || NumberAt<std::uint32_t>(bytes, 0) != ConfigurationVersion) {
        return;
    }
    for (const SettingRow &row : SettingTable) {
        if (const std::size_t offset = OffsetOf(row); offset < whole) {
            const auto word = NumberAt<std::uint32_t>(bytes, offset);
            TakeSetting(row.Target, word);
        }
    }
    KeepSinglesInALevel();
    PickMarginTextColour();
}

std::string ConfigurationBytes()
{
    const PlayersSettings own; // not those of a run of the logic that is under way
    std::string bytes(ConfigurationSize, '\0');
    for (const SettingRow &row : SettingTable) {
        PutNumber(bytes, OffsetOf(row), WordOfSetting(row.Target));
    }
    return bytes;
}

void ReadConfiguration()
{
    std::string bytes;
    std::string unread;
    if (ReadWholeFile(SettingsFolder() + std::string(FileName), bytes, unread, ConfigurationSize)) {
        TakeConfiguration(bytes);
    }
    bytesAsRead = bytes;
    commonBytes = ConfigurationBytes();
}

bool KeepConfiguration(std::string &error)
{
    const FileLock lock(SettingsFolder() + std::string(LockName), LockPatience, LockFile::Goes);
    if (lock.State() != LockState::Held) {
        error = lock.State() == LockState::Busy ? "Another program is using them." : lock.Error();
        return false;
    }
    const std::string path = SettingsFolder() + std::string(FileName);
    std::string standing;
    // What is there and cannot be read is not written over.
    if ((FileExists(path) && !ReadWholeFile(path, standing, error, ConfigurationSize)) ||
        !ReplaceWholeFile(path, BytesOver(standing), error)) {
        return false;
    }
    bytesAsRead.reset();
    commonBytes = ConfigurationBytes();
    return true;
}

void WriteConfiguration()
{
    std::string error;
    if (!KeepConfiguration(error)) {
        ShowMessage("Unable to save settings.\r\r" + error);
    }
}

} // namespace kelvarine
