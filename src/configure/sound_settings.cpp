#include "configure/sound_settings.h"

#include <cassert>

namespace kelvarine {

namespace {

void TestSound(const SoundList &list, std::int32_t index, std::size_t volumeIndex)
{
    if (index > 0) {
        PlayEventSound(SoundFile(list, index), volumeIndex, false);
    }
}

} // namespace

std::string_view SoundCaption(std::string_view file)
{
    return file.substr(0, file.find('.'));
}

std::int32_t VolumeBar(std::size_t index)
{
    assert(index < SoundVolumes.size());
    return SoundVolumes[index] / VolumeStep;
}

void SetVolume(std::size_t index, std::int32_t bar)
{
    assert(index < SoundVolumes.size());
    assert(bar >= 0 && bar <= VolumeBarMost);
    SoundVolumes[index] = bar * VolumeStep;
}

void TestAlertSound()
{
    TestSound(AlertFiles, AlertSound, AlertVolume);
}

void TestWinSound()
{
    TestSound(WinFiles, WinSound, WinVolume);
}

} // namespace kelvarine
