// Sound: one at a time, never waited for; failures are silence.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvarine {

// Sets the volume of all sounds from now on. The low 16 bits are the left channel, the high 16
// bits the right one, each 0..65535.
void SetSoundVolume(std::uint32_t volume);

// Plays a sound file of the program, given by its bare name, instead of whatever plays.
void PlaySound(std::string_view file, bool loop);

// Stops whatever plays.
void StopSound();

} // namespace kelvarine
