#include "ui/outside/sound_device.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QCoreApplication>
#include <QIODevice>
#include <QMediaDevices>
#include <QPointer>
#include <QTimer>

#include <chrono>

namespace kelvarine {

namespace {

// The device still plays what it has taken when there is no more to take.
constexpr std::chrono::seconds TimeToFinish{2};

// What plays, or null. It goes with the application at the latest.
QPointer<QAudioSink> &Playing()
{
    static QPointer<QAudioSink> playing;
    return playing;
}

// Where there is no sound the toolkit says so on standard error, which is no news for a player.
void SayNothing(QtMsgType /*kind*/, const QMessageLogContext & /*place*/, const QString & /*words*/)
{
}

QAudioDevice Device()
{
    const QtMessageHandler usual = qInstallMessageHandler(SayNothing);
    QAudioDevice device = QMediaDevices::defaultAudioOutput();
    qInstallMessageHandler(usual);
    return device;
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

bool HasSoundDevice()
{
    return !Device().isNull();
}

void PlayOnDevice(std::unique_ptr<QIODevice> samples, const QAudioFormat &form, double volume,
                  bool ends)
{
    const QAudioDevice device = Device();
    if (device.isNull()) {
        return;
    }
    auto *sink = new QAudioSink(device, form, QCoreApplication::instance());
    Playing() = sink;
    sink->setVolume(volume);
    if (ends) {
        CloseAtTheEnd(sink);
    }
    samples->setParent(sink);
    sink->start(samples.release());
}

void StopDevice()
{
    delete Playing();
}

} // namespace kelvarine
