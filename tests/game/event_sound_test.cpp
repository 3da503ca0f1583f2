#include "game/event_sound.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class EventSound : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        AlertFiles = {"", "a.alr", "b.two.alr"};
    }

    // The volume that both channels are set to for a setting.
    static std::uint32_t VolumeFor(std::int32_t volume)
    {
        SoundVolumes[AlertVolume] = volume;
        PlayEventSound("a.alr", AlertVolume, false);
        return Seen.SoundVolume;
    }
};

TEST_F(EventSound, LoudVolumesAreTheSameOnBothSides)
{
    EXPECT_EQ(VolumeFor(65280), 0xFF00FF00U);
    EXPECT_EQ(VolumeFor(32000), 0x7D007D00U);
    EXPECT_EQ(VolumeFor(0x1000), 0x10001000U);
}

TEST_F(EventSound, DigitsOfLowVolumesSlide)
{
    EXPECT_EQ(VolumeFor(256), 0x00100100U);
    EXPECT_EQ(VolumeFor(0xF00), 0x00F00F00U);
    EXPECT_EQ(VolumeFor(0xFFF), 0x00FFFFFFU);
    EXPECT_EQ(VolumeFor(0xAB), 0xABABU);
    EXPECT_EQ(VolumeFor(7), 0x77U);
    EXPECT_EQ(VolumeFor(0), 0U);
}

TEST_F(EventSound, VolumeIsSetBeforeTheFilePlays)
{
    SoundVolumes = {0x1111, 0x2222, 0x3333, 0x4444};
    PlayEventSound("a.alr", AlertVolume, false);
    EXPECT_EQ(Seen.SoundVolume, 0x33333333U);
    PlayEventSound("tune.win", WinVolume, true);
    EXPECT_EQ(Seen.SoundVolume, 0x44444444U);
    EXPECT_EQ(Seen.Calls, (Texts{"sound: a.alr", "sound loop: tune.win"}));
}

TEST_F(EventSound, NoFileIsSilenceAndLeavesTheVolume)
{
    PlayEventSound("a.alr", AlertVolume, false);
    const std::uint32_t inForce = Seen.SoundVolume;
    Seen.Calls.clear();
    PlayEventSound("", WinVolume, true);
    EXPECT_TRUE(Seen.Calls.empty());
    EXPECT_EQ(Seen.SoundVolume, inForce);
}

// The buttons of the screen play whether sound is disabled or not.
TEST_F(EventSound, DoesNotAskWhetherSoundIsDisabled)
{
    SoundDisabled = True;
    PlayEventSound("a.alr", AlertVolume, false);
    EXPECT_EQ(Seen.Calls, Texts{"sound: a.alr"});
}

TEST_F(EventSound, IndexOutsideTheListNamesNoFile)
{
    for (const std::int32_t index : {0, -1, 3, 1000000}) {
        EXPECT_EQ(SoundFile(AlertFiles, index), "") << index;
    }
    EXPECT_EQ(SoundFile({}, 1), "");
    EXPECT_EQ(SoundFile(AlertFiles, 1), "a.alr");
}

TEST_F(EventSound, NameWithTwoDotsPlaysWhole)
{
    PlayEventSound(SoundFile(AlertFiles, 2), AlertVolume, false);
    EXPECT_EQ(Seen.Calls, Texts{"sound: b.two.alr"});
}

} // namespace
} // namespace kelvarine::testing
