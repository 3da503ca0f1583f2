// The device that sounds are played on.
#pragma once

#include <QAudioDevice>

namespace kelvarine {

// The desktop's own choice; a null device where there is no sound.
QAudioDevice SoundDevice();

} // namespace kelvarine
