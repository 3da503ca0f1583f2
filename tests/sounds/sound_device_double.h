// The sound device as the tests see it: what plays on it, and what it would read.
#pragma once

#include <QAudioFormat>
#include <QIODevice>

#include <memory>
#include <vector>

namespace kelvarine::testing {

struct PlayedSound {
    std::unique_ptr<QIODevice> Samples;
    QAudioFormat Form;
    double Volume = 0;
    bool Ends = false;
};

// All that can be heard now. The program is to see to it that it is never more than one.
extern std::vector<PlayedSound> Heard;

// Reads at most so many bytes of what plays, as the device does, in pieces of a few hundred.
QByteArray TakenByTheDevice(qsizetype most);

} // namespace kelvarine::testing
