// What the Sound tab does: the choice of files, the volumes and the trials.
#pragma once

#include "game/event_sound.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

// The first entry of every list of sounds.
inline constexpr std::string_view NoSoundCaption = "none";

// A sound file as a list shows it: all before its first dot.
std::string_view SoundCaption(std::string_view file);

// A volume's bar goes through its range in steps of so much.
inline constexpr std::int32_t VolumeStep = 256;
inline constexpr std::int32_t VolumeBarMost = VolumeRange.Most / VolumeStep;

// Position 0..VolumeBarMost of the bar of a volume, 0..3.
std::int32_t VolumeBar(std::size_t index);

// Sets a volume, 0..3, from its bar.
void SetVolume(std::size_t index, std::int32_t bar);

// Play the sound of the alert and of the win once, even while all sounds are disabled.
void TestAlertSound();
void TestWinSound();

} // namespace kelvarine
