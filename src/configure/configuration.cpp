#include "configure/configuration.h"

#include "board/margin.h"
#include "configure/setting_table.h"
#include "grid/grid.h"
#include "grid/little_endian.h"
#include "logic/technique_masks.h"
#include "outside/folders.h"
#include "outside/messages.h"
#include "outside/whole_file.h"

#include <functional>
#include <numeric>

namespace kelvarine {

std::int32_t ReservedSetting;

namespace {

constexpr std::string_view FileName = "config.sdu";

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
}

void WriteConfiguration()
{
    std::string error;
    if (!ReplaceWholeFile(SettingsFolder() + std::string(FileName), ConfigurationBytes(), error)) {
        ShowMessage("Unable to save settings.\r\r" + error);
    }
}

} // namespace kelvarine
