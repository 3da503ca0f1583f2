// The device that sounds are played on: the desktop's own choice of one.
#pragma once

#include <memory>

class QAudioFormat;
class QIODevice;

namespace kelvarine {

// False where there is no sound.
bool HasSoundDevice();

// Begins to play samples of a form at a volume, 0..1; nothing plays before. The device reads them
// as it needs them, and closes a while after there are no more of them, which only happens where
// they end. Without a device this is silence.
void PlayOnDevice(std::unique_ptr<QIODevice> samples, const QAudioFormat &form, double volume,
                  bool ends);

// Stops what plays at once, if anything does, and lets its samples go.
void StopDevice();

} // namespace kelvarine
