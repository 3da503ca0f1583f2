#include "sounds/sound_device_double.h"

#include "ui/outside/sound_device.h"

#include <algorithm>

namespace kelvarine {

namespace testing {

std::vector<PlayedSound> Heard;

QByteArray TakenByTheDevice(qsizetype most)
{
    constexpr qsizetype piece = 333;
    QByteArray taken;
    QByteArray part("begin");
    while (taken.size() < most && !part.isEmpty()) {
        part = Heard.back().Samples->read(std::min(piece, most - taken.size()));
        taken += part;
    }
    return taken;
}

} // namespace testing

bool HasSoundDevice()
{
    return true;
}

void PlayOnDevice(std::unique_ptr<QIODevice> samples, const QAudioFormat &form, double volume,
                  bool ends)
{
    testing::Heard.push_back({std::move(samples), form, volume, ends});
}

void StopDevice()
{
    if (!testing::Heard.empty()) {
        testing::Heard.pop_back();
    }
}

} // namespace kelvarine
