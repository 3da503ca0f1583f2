// The configuration file: all settings that outlast a run, in one small file of fixed records that
// is read once at the start and written at the end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// "config.sdu" is so many records of so many signed 32-bit little-endian words.
inline constexpr std::size_t ConfigurationRecords = 11;
inline constexpr std::size_t WordsInRecord = 10;
inline constexpr std::size_t BytesInRecord = 4 * WordsInRecord;
inline constexpr std::size_t ConfigurationSize = ConfigurationRecords * BytesInRecord;

inline constexpr std::int32_t ConfigurationVersion = 1;

// Read and written, and used by nothing.
extern std::int32_t ReservedSetting;

// Puts the number above to its default, and forgets any file.
void SetConfigurationDefaults();

// Reads "config.sdu" from the folder of settings. Called once, after the defaults are set and the
// sound files are found and before the first game starts. What cannot be read leaves the defaults
// as they stand, silently.
void ReadConfiguration();

// Writes "config.sdu" whole, as the last step of the program. What another program has written
// there since, and the player has not changed here, stays. A failure is told in the system's words.
void WriteConfiguration();

// The same, when the program may be ended without another word: a failure is returned, not told.
bool KeepConfiguration(std::string &error);

// Takes the settings out of the bytes of a file. Bytes of another version are not looked at; of a
// file cut short, the records that are whole count. A value that would break the program leaves
// its setting as it stands, or corrects it as the file's table says.
void TakeConfiguration(std::string_view bytes);

// The bytes of a file that holds the settings as they stand.
std::string ConfigurationBytes();

} // namespace kelvarine
