// What comes to the sound device of the sounds that the program plays.
#include "files/wave_file.h"
#include "outside/sound.h"
#include "outside/whole_file.h"
#include "sounds/sound_device_double.h"
#include "support/settings_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kelvarine::testing {
namespace {

class PlayedSounds : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const auto &entry : std::filesystem::directory_iterator(TEST_SOUNDS)) {
            std::filesystem::create_directories(Folders.Data());
            std::filesystem::copy(entry.path(), Folders.Data() / entry.path().filename());
        }
        SetSoundVolume(0xFFFFFFFF);
    }

    void TearDown() override
    {
        Heard.clear();
    }

    // The samples of a file, read here.
    static WaveSound SoundOf(const std::string &file)
    {
        std::string bytes;
        std::string error;
        WaveSound sound;
        EXPECT_TRUE(ReadWholeFile(std::string(TEST_SOUNDS) + "/" + file, bytes, error)) << error;
        EXPECT_TRUE(ReadWave(bytes, sound)) << file;
        return sound;
    }

    static QByteArray SamplesOf(const std::string &file)
    {
        const WaveSound sound = SoundOf(file);
        return {sound.Samples.data(), static_cast<qsizetype>(sound.Samples.size())};
    }

    SettingsFolders Folders;
};

TEST_F(PlayedSounds, NewOneStopsTheOldOne)
{
    PlaySound("chimes.win", true);
    ASSERT_EQ(Heard.size(), 1U);
    PlaySound("drop.alr", false);
    ASSERT_EQ(Heard.size(), 1U);
    EXPECT_TRUE(TakenByTheDevice(1 << 30) == SamplesOf("drop.alr"));
    PlaySound("missing.alr", false);
    EXPECT_TRUE(Heard.empty()) << "silence takes the place of a sound, too";
}

TEST_F(PlayedSounds, StopIsSilence)
{
    StopSound();
    PlaySound("chimes.win", true);
    StopSound();
    EXPECT_TRUE(Heard.empty());
}

TEST_F(PlayedSounds, SoundIsPlayedOnceFromItsBeginningToItsEnd)
{
    PlaySound("snapshot.wav", false);
    ASSERT_EQ(Heard.size(), 1U);
    EXPECT_TRUE(Heard[0].Ends);
    const QByteArray samples = SamplesOf("snapshot.wav");
    EXPECT_TRUE(Heard[0].Samples->isSequential());
    EXPECT_EQ(Heard[0].Samples->bytesAvailable(), samples.size());
    EXPECT_TRUE(TakenByTheDevice(1000) == samples.left(1000));
    EXPECT_EQ(Heard[0].Samples->bytesAvailable(), samples.size() - 1000);
    EXPECT_TRUE(TakenByTheDevice(1 << 30) == samples.mid(1000));
    EXPECT_EQ(Heard[0].Samples->bytesAvailable(), 0);
}

TEST_F(PlayedSounds, LoopBeginsAgainAtItsEnd)
{
    PlaySound("drop.alr", true);
    ASSERT_EQ(Heard.size(), 1U);
    EXPECT_FALSE(Heard[0].Ends);
    const QByteArray samples = SamplesOf("drop.alr");
    EXPECT_TRUE(TakenByTheDevice(3 * samples.size()) == samples + samples + samples);
    EXPECT_EQ(Heard[0].Samples->bytesAvailable(), samples.size());
}

TEST_F(PlayedSounds, LouderChannelIsTheVolume)
{
    for (const auto &[volume, heard] : {std::pair(0x80000000U, 0x8000 / 65535.0),
                                        {0x00004000U, 0x4000 / 65535.0},
                                        {0x20001000U, 0x2000 / 65535.0},
                                        {0U, 0.0},
                                        {0xFFFFFFFFU, 1.0}}) {
        SetSoundVolume(volume);
        PlaySound("drop.alr", false);
        EXPECT_DOUBLE_EQ(Heard.back().Volume, heard);
    }
}

TEST_F(PlayedSounds, DeviceIsToldTheFormOfTheSamples)
{
    const WaveSound sound = SoundOf("chimes.win");
    PlaySound("chimes.win", false);
    EXPECT_EQ(Heard.back().Form.sampleRate(), sound.Rate);
    EXPECT_EQ(Heard.back().Form.channelCount(), sound.Channels);
    EXPECT_EQ(Heard.back().Form.sampleFormat(), QAudioFormat::Int16);
    // A file of each other form: one channel of so many bits, two samples of them.
    const auto file = [&](char kind, char bits, const std::string &samples) {
        const auto bytes = static_cast<char>(bits / 8);
        std::string wave("RIFF\x24\0\0\0WAVEfmt \x10\0\0\0", 20);
        wave += {kind, 0, 1, 0, 0x40, 0x1F, 0, 0, 0x40, 0x1F, 0, 0, bytes, 0, bits, 0};
        wave += std::string("data") + static_cast<char>(samples.size()) + std::string(3, '\0');
        Folders.PutData("form.alr", wave + samples);
        PlaySound("form.alr", false);
        return Heard.empty() ? QAudioFormat::Unknown : Heard.back().Form.sampleFormat();
    };
    EXPECT_EQ(file(1, 8, "ab"), QAudioFormat::UInt8);
    EXPECT_EQ(file(1, 32, "abcdefgh"), QAudioFormat::Int32);
    EXPECT_EQ(file(3, 32, "abcdefgh"), QAudioFormat::Float);
    EXPECT_EQ(Heard.back().Form.sampleRate(), 8000);
    EXPECT_EQ(TakenByTheDevice(100), "abcdefgh");
}

} // namespace
} // namespace kelvarine::testing
