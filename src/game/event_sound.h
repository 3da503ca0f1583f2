// The sounds of the game's events: the lists of sound files, the player's choice among them and
// the volumes.
#pragma once

#include "grid/cell_word.h"
#include "grid/range.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine {

// A list of sound files by bare name with extension. Element 0 is not used, as index 0 of a
// setting means none.
using SoundList = std::vector<std::string>;

extern SoundList AnnouncerFiles;
extern SoundList AlertFiles;
extern SoundList WinFiles;

// Settings, kept in the configuration file.
extern std::int32_t AnnouncerSound; // index into its list, 0 for none
extern std::int32_t AlertSound;
extern std::int32_t WinSound;
extern Flag SoundDisabled;

// The sound of a snapshot, which is no choice.
inline constexpr std::string_view SnapshotSound = "snapshot.wav";

// Volumes, and what each is for.
inline constexpr Range VolumeRange{0, 65280};
inline constexpr std::size_t AnnouncerVolume = 0; // no event has these two
inline constexpr std::size_t ClicksVolume = 1;
inline constexpr std::size_t AlertVolume = 2;
inline constexpr std::size_t WinVolume = 3;
inline constexpr std::size_t VolumeCount = 4;
extern std::array<std::int32_t, VolumeCount> SoundVolumes;

// Empties the lists and puts the settings to their defaults.
void SetSoundDefaults();

// File of a list at an index, or an empty text for an index that names none.
std::string_view SoundFile(const SoundList &list, std::int32_t index);

// Sets the volume of an event, volumeIndex 0..3, and plays a file; an empty name is silence and
// changes nothing. Does not ask whether sound is disabled.
void PlayEventSound(std::string_view file, std::size_t volumeIndex, bool loop);

} // namespace kelvarine
