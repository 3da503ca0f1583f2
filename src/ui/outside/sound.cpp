// Sound over the toolkit: one at a time, its samples pulled by the device as it needs them. The
// toolkit's own class for short sounds waits for its loading thread, now and then for ever, so the
// files are read here.
#include "outside/sound.h"

#include "files/sound_files.h"
#include "files/wave_file.h"
#include "outside/whole_file.h"
#include "ui/outside/sound_device.h"

#include <QAudioFormat>
#include <QAudioSink>
#include <QCoreApplication>
#include <QIODevice>
#include <QMediaDevices>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <string>

namespace kelvarine {

namespace {

// A sound file that is larger is no sound of a game.
constexpr std::size_t LargestSoundFile = std::size_t{16} << 20U;

// The device still plays what it has taken when there is no more to take.
constexpr std::chrono::seconds TimeToFinish{2};

// The samples of one sound, as the device reads them.
class SampleSource : public QIODevice {
public:
    SampleSource(WaveSound sound, bool loop, QObject *parent)
        : QIODevice(parent), wave(std::move(sound)), repeats(loop)
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

// What plays, or null. It goes with the application at the latest.
QPointer<QAudioSink> &Playing()
{
    static QPointer<QAudioSink> playing;
    return playing;
}

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

// Where there is no sound the toolkit says so on standard error, which is no news for a player.
void SayNothing(QtMsgType /*kind*/, const QMessageLogContext & /*place*/, const QString & /*words*/)
{
}

bool ReadSound(std::string_view file, WaveSound &sound)
{
    std::string bytes;
    std::string unread;
    const std::string path = SoundPath(file);
    return !path.empty() && ReadWholeFile(path, bytes, unread, LargestSoundFile) &&
           ReadWave(bytes, sound);
}

// Closes the device a while after a sound has come to its end.
void CloseAtTheEnd(QAudioSink *sink)
{
    auto *rest = new QTimer(sink);
    rest->setSingleShot(true);
    rest->setInterval(TimeToFinish);
    QObject::connect(rest, &QTimer::timeout, sink, &QAudioSink::stop);
    QObject::connect(sink, &QAudioSink::stateChanged, rest, [rest](QAudio::State state) {
        if (state == QAudio::IdleState) {
            rest->start();
        }
    });
}

} // namespace

QAudioDevice SoundDevice()
{
    const QtMessageHandler usual = qInstallMessageHandler(SayNothing);
    QAudioDevice device = QMediaDevices::defaultAudioOutput();
    qInstallMessageHandler(usual);
    return device;
}

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
    const QAudioDevice device = SoundDevice();
    if (device.isNull()) {
        return;
    }
    auto *sink = new QAudioSink(device, FormatOf(sound), QCoreApplication::instance());
    Playing() = sink;
    sink->setVolume(volumeInForce);
    if (!loop) {
        CloseAtTheEnd(sink);
    }
    sink->start(new SampleSource(std::move(sound), loop, sink));
}

void StopSound()
{
    delete Playing();
}

} // namespace kelvarine
