// Sounds on the toolkit, on whatever device there is, none included.
#include "outside/folders.h"
#include "outside/sound.h"
#include "support/settings_folder.h"

#include <QApplication>
#include <QAudioSink>
#include <QTimer>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <iterator>

namespace kelvarine::testing {
namespace {

class Sound : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const auto &entry : std::filesystem::directory_iterator(TEST_SOUNDS)) {
            std::filesystem::create_directories(Folders.Data());
            std::filesystem::copy(entry.path(), Folders.Data() / entry.path().filename());
        }
    }

    void TearDown() override
    {
        StopSound();
    }

    // Whether a call comes back without a turn of the event loop, in which it would wait for
    // something, and the next turn comes.
    static bool ReturnsAtOnce(const std::function<void()> &call)
    {
        bool turned = false;
        QTimer witness;
        QObject::connect(&witness, &QTimer::timeout, &witness, [&] { turned = true; });
        witness.start(0);
        call();
        const bool within = turned;
        QCoreApplication::processEvents();
        return !within && turned;
    }

    // Number of sounds that the toolkit holds.
    static qsizetype SoundsHeld()
    {
        return qApp->findChildren<QAudioSink *>().size();
    }

    static std::ptrdiff_t Threads()
    {
        const std::filesystem::directory_iterator tasks("/proc/self/task");
        return std::distance(begin(tasks), end(tasks));
    }

    SettingsFolders Folders;
};

TEST_F(Sound, NoCallWaits)
{
    EXPECT_TRUE(ReturnsAtOnce([] { PlaySound("ring 2.alr", false); }));
    for (const char *file : {"chimes.win", "music box.win", "ring 1.alr", "snapshot.wav"}) {
        EXPECT_TRUE(ReturnsAtOnce([] { SetSoundVolume(0x7D007D00); }));
        EXPECT_TRUE(ReturnsAtOnce([file] { PlaySound(file, true); })) << file;
    }
    EXPECT_TRUE(ReturnsAtOnce(StopSound));
}

TEST_F(Sound, ManySoundsInARowLeaveOneAndNoThread)
{
    PlaySound("drop.alr", false); // what the toolkit starts, it starts now
    const std::ptrdiff_t threads = Threads();
    for (int round = 0; round < 50; ++round) {
        EXPECT_TRUE(ReturnsAtOnce(
            [round] { PlaySound(round % 2 == 0 ? "ring 1.alr" : "drop.alr", round % 3 == 0); }));
        EXPECT_LE(SoundsHeld(), 1);
        EXPECT_LE(Threads(), threads);
        if (round % 5 == 0) {
            EXPECT_TRUE(ReturnsAtOnce(StopSound));
            EXPECT_EQ(SoundsHeld(), 0);
        }
    }
}

TEST_F(Sound, MissingAndBrokenFilesAreSilence)
{
    Folders.PutData("broken.alr", "these are no samples");
    Folders.PutData("empty.alr", "");
    Folders.PutData("cut.alr", std::string("RIFF\xFF\xFF\xFF\x7FWAVEfmt ", 16));
    for (const char *file : {"missing.alr", "broken.alr", "empty.alr", "cut.alr", ""}) {
        EXPECT_TRUE(ReturnsAtOnce([file] { PlaySound(file, true); })) << file;
        EXPECT_EQ(SoundsHeld(), 0) << file;
    }
}

} // namespace
} // namespace kelvarine::testing
