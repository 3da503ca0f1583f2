// Sound over the toolkit: one at a time, its samples pulled by the device as it needs them. The
// toolkit's own class for short sounds waits for its loading thread, now and then for ever, so the
// files are read here.
#include "outside/sound.h"

#include "files/sound_files.h"
#include "files/wave_file.h"
#include "outside/whole_file.h"
#include "ui/outside/sound_device.h"

#include <QAudioFormat>
#include <QIODevice>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace kelvarine {

namespace {

// A sound file that is larger is no sound of a game.
constexpr std::size_t LargestSoundFile = std::size_t{16} << 20U;

// The samples of one sound, as the device reads them.
class SampleSource : public QIODevice {
public:
    SampleSource(WaveSound sound, bool loop) : wave(std::move(sound)), repeats(loop)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    [[nodiscard]] bool isSequential() const override
    {
        return true;
    }

    [[nodiscard]] qint64 bytesAvailable() const override
    {
        const std::size_t rest = repeats ? wave.Samples.size() : wave.Samples.size() - place;
        return static_cast<qint64>(rest) + QIODevice::bytesAvailable();
    }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        return static_cast<qint64>(
            TakeSamples(wave, place, repeats, data, static_cast<std::size_t>(size)));
    }

    qint64 writeData(const char * /*data*/, qint64 /*size*/) override
    {
        return -1;
    }

private:
    WaveSound wave;
    std::size_t place = 0;
    bool repeats;
};

double volumeInForce = 1.0; // 0..1

QAudioFormat::SampleFormat ToolkitForm(SampleForm form)
{
    switch (form) {
    case SampleForm::Unsigned8:
        return QAudioFormat::UInt8;
    case SampleForm::Signed16:
        return QAudioFormat::Int16;
    case SampleForm::Signed32:
        return QAudioFormat::Int32;
    case SampleForm::Float32:
        return QAudioFormat::Float;
    }
    return QAudioFormat::Unknown;
}

QAudioFormat FormatOf(const WaveSound &sound)
{
    QAudioFormat format;
    format.setSampleFormat(ToolkitForm(sound.Form));
    format.setSampleRate(sound.Rate);
    format.setChannelCount(sound.Channels);
    return format;
}

bool ReadSound(std::string_view file, WaveSound &sound)
{
    std::string bytes;
    std::string unread;
    const std::string path = SoundPath(file);
    return !path.empty() && ReadWholeFile(path, bytes, unread, LargestSoundFile) &&
           ReadWave(bytes, sound);
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
    WaveSound sound;
    if (!ReadSound(file, sound)) {
        return;
    }
    const QAudioFormat form = FormatOf(sound);
    PlayOnDevice(std::make_unique<SampleSource>(std::move(sound), loop), form, volumeInForce,
                 !loop);
}

void StopSound()
{
    StopDevice();
}

} // namespace kelvarine
