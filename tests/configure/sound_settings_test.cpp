#include "configure/sound_settings.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class SoundSettings : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        AlertFiles = {"", "bell.alr", "ring 2.alr"};
        WinFiles = {"", "song.win"};
    }
};

TEST_F(SoundSettings, CaptionIsAllBeforeTheFirstDot)
{
    EXPECT_EQ(SoundCaption("ring 2.alr"), "ring 2");
    EXPECT_EQ(SoundCaption("ring.loud.alr"), "ring");
    EXPECT_EQ(SoundCaption(".alr"), "");
    EXPECT_EQ(SoundCaption("ring"), "ring");
}

TEST_F(SoundSettings, TestsSoundEvenWhenAllSoundsAreDisabled)
{
    SoundDisabled = True;
    AlertSound = 2;
    WinSound = 1;
    TestAlertSound();
    TestWinSound();
    EXPECT_EQ(Acts(), (Texts{"sound: ring 2.alr", "sound: song.win"}));
}

TEST_F(SoundSettings, TestsOfNoSoundAreSilent)
{
    for (const std::int32_t none : {0, -1, 99}) {
        AlertSound = none;
        WinSound = none;
        TestAlertSound();
        TestWinSound();
    }
    EXPECT_EQ(Acts(), Texts());
}

TEST_F(SoundSettings, TestsSetTheVolumeOfTheirEvent)
{
    AlertSound = 1;
    WinSound = 1;
    SetVolume(2, 255);
    SetVolume(3, 1);
    TestAlertSound();
    EXPECT_EQ(Seen.SoundVolume, 0xFF00FF00U);
    TestWinSound();
    EXPECT_EQ(Seen.SoundVolume, 0x100100U) << "the channels differ below 0x1000";
}

TEST_F(SoundSettings, BarIsAWholeTwoHundredFiftySixthOfTheVolume)
{
    EXPECT_EQ(VolumeBar(2), 125); // of 32000
    SetVolume(2, 255);
    EXPECT_EQ(SoundVolumes[2], 65280);
    EXPECT_EQ(VolumeBar(2), 255);
    SetVolume(0, 0);
    EXPECT_EQ(SoundVolumes[0], 0);
}

} // namespace
} // namespace kelvarine::testing
