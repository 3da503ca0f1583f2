#include "game/event_sound.h"

#include "outside/sound.h"

#include <cassert>

namespace kelvarine {

SoundList AnnouncerFiles;
SoundList AlertFiles;
SoundList WinFiles;
std::int32_t AnnouncerSound;
std::int32_t AlertSound;
std::int32_t WinSound;
Flag SoundDisabled;
std::array<std::int32_t, 4> SoundVolumes{};

namespace {

// The hexadecimal digits of a volume, written twice in a row and read as one number. From 0x1000
// on that is the same volume left and right; below, the digits slide and the channels differ,
// which is intended.
std::uint32_t DoubledDigits(std::int32_t volume)
{
    const auto digits = static_cast<std::uint32_t>(volume) & 0xFFFF;
    std::uint32_t high = digits;
    for (std::uint32_t rest = digits; rest > 0; rest >>= 4) {
        high <<= 4;
    }
    return high | digits;
}

} // namespace

void SetSoundDefaults()
{
    AnnouncerFiles.clear();
    AlertFiles.clear();
    WinFiles.clear();
    AnnouncerSound = 0;
    AlertSound = 0;
    WinSound = 0;
    SoundDisabled = False;
    SoundVolumes.fill(32000);
}

std::string_view SoundFile(const SoundList &list, std::int32_t index)
{
    const auto place = static_cast<std::size_t>(index);
    return index > 0 && place < list.size() ? std::string_view(list[place]) : std::string_view();
}

void PlayEventSound(std::string_view file, std::size_t volumeIndex, bool loop)
{
    assert(volumeIndex < SoundVolumes.size());
    if (file.empty()) {
        return;
    }
    SetSoundVolume(DoubledDigits(SoundVolumes[volumeIndex]));
    PlaySound(file, loop);
}

} // namespace kelvarine
