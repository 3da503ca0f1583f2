// Sounds on the toolkit, on whatever device there is, none included.
#include "files/folders.h"
#include "support/settings_folder.h"
#include "ui/presentation.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace kelvarine::testing {
namespace {

constexpr qint64 LongestCall = 100; // milliseconds

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

    // Longest time that a call took, in milliseconds.
    static qint64 Took(const std::function<void()> &call)
    {
        QElapsedTimer clock;
        clock.start();
        call();
        return clock.elapsed();
    }

    // Longest gap between two turns of the event loop within a time.
    static qint64 LongestGap(int milliseconds)
    {
        QElapsedTimer clock;
        qint64 last = 0;
        qint64 longest = 0;
        QTimer ticker;
        QObject::connect(&ticker, &QTimer::timeout, &ticker, [&] {
            longest = std::max(longest, clock.elapsed() - last);
            last = clock.elapsed();
        });
        clock.start();
        ticker.start(1);
        QTest::qWait(milliseconds);
        return std::max(longest, clock.elapsed() - last);
    }

    SettingsFolders Folders;
};

TEST_F(Sound, NothingBlocks)
{
    EXPECT_LT(Took([] { PlaySound("ring 2.alr", false); }), LongestCall);
    EXPECT_LT(LongestGap(300), LongestCall);
    for (const char *file : {"chimes.win", "music box.win", "ring 1.alr", "snapshot.wav"}) {
        EXPECT_LT(Took([] { SetSoundVolume(0x7D007D00); }), LongestCall);
        EXPECT_LT(Took([file] { PlaySound(file, true); }), LongestCall) << file;
        EXPECT_LT(LongestGap(200), LongestCall) << file;
    }
    EXPECT_LT(Took([] { StopSound(); }), LongestCall);
    EXPECT_LT(LongestGap(100), LongestCall);
}

TEST_F(Sound, ManySoundsInARowNeverBlock)
{
    for (int round = 0; round < 50; ++round) {
        EXPECT_LT(Took([round] {
                      PlaySound(round % 2 == 0 ? "ring 1.alr" : "drop.alr", round % 3 == 0);
                  }),
                  LongestCall);
        if (round % 5 == 0) {
            EXPECT_LT(Took(StopSound), LongestCall);
        }
    }
    EXPECT_LT(LongestGap(200), LongestCall);
}

TEST_F(Sound, MissingAndBrokenFilesAreSilence)
{
    Folders.PutData("broken.alr", "these are no samples");
    Folders.PutData("empty.alr", "");
    Folders.PutData("cut.alr", std::string("RIFF\xFF\xFF\xFF\x7FWAVEfmt ", 16));
    for (const char *file : {"missing.alr", "broken.alr", "empty.alr", "cut.alr", ""}) {
        EXPECT_LT(Took([file] { PlaySound(file, true); }), LongestCall) << file;
        EXPECT_LT(LongestGap(100), LongestCall) << file;
    }
}

} // namespace
} // namespace kelvarine::testing
