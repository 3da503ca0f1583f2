// Sound over the toolkit: one effect at a time, started without waiting.
#include "files/sound_files.h"
#include "ui/presentation.h"

#include <QCoreApplication>
#include <QFile>
#include <QSoundEffect>
#include <QUrl>

#include <algorithm>
#include <string>

namespace kelvarine {

namespace {

double volumeInForce = 1.0; // 0..1

// The effect is made when a first sound is played: an audio device costs time and memory. It goes
// with the application.
QSoundEffect *&Effect()
{
    static QSoundEffect *effect = nullptr;
    return effect;
}

} // namespace

void SetSoundVolume(std::uint32_t volume)
{
    // The toolkit has one volume for both channels.
    const std::uint32_t left = volume & 0xFFFF;
    const std::uint32_t right = volume >> 16;
    volumeInForce = std::max(left, right) / 65535.0;
}

void PlaySound(std::string_view file, bool loop)
{
    StopSound();
    const std::string path = SoundPath(file);
    if (path.empty()) {
        return;
    }
    if (Effect() == nullptr) {
        Effect() = new QSoundEffect(QCoreApplication::instance());
    }
    Effect()->setSource(QUrl::fromLocalFile(QFile::decodeName(path.c_str())));
    Effect()->setVolume(static_cast<float>(volumeInForce));
    Effect()->setLoopCount(loop ? QSoundEffect::Infinite : 1);
    Effect()->play();
}

void StopSound()
{
    if (Effect() != nullptr) {
        Effect()->stop();
    }
}

} // namespace kelvarine
