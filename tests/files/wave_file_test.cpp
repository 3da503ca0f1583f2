#include "files/wave_file.h"
#include "outside/whole_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

namespace kelvarine::testing {
namespace {

std::string Bytes(std::uint32_t number, int size)
{
    std::string bytes;
    for (int byte = 0; byte < size; ++byte) {
        bytes += static_cast<char>(number >> 8 * byte & 0xFF);
    }
    return bytes;
}

std::string Chunk(const std::string &name, const std::string &content)
{
    return name + Bytes(static_cast<std::uint32_t>(content.size()), 4) + content +
           std::string(content.size() % 2, '\0');
}

std::string Form(std::uint32_t kind, std::uint32_t channels, std::uint32_t rate, std::uint32_t bits)
{
    const std::uint32_t frame = channels * bits / 8;
    return Bytes(kind, 2) + Bytes(channels, 2) + Bytes(rate, 4) + Bytes(rate * frame, 4) +
           Bytes(frame, 2) + Bytes(bits, 2);
}

std::string Wave(const std::string &chunks)
{
    return "RIFF" + Bytes(static_cast<std::uint32_t>(chunks.size() + 4), 4) + "WAVE" + chunks;
}

std::string Mono16(const std::string &samples)
{
    return Wave(Chunk("fmt ", Form(1, 1, 44100, 16)) + Chunk("data", samples));
}

TEST(WaveFile, SamplesAndTheirFormAreRead)
{
    WaveSound sound;
    ASSERT_TRUE(ReadWave(Mono16("abcdef"), sound));
    EXPECT_EQ(sound.Form, SampleForm::Signed16);
    EXPECT_EQ(sound.Rate, 44100);
    EXPECT_EQ(sound.Channels, 1);
    EXPECT_EQ(sound.Samples, "abcdef");
}

TEST(WaveFile, OtherChunksArePassedOver)
{
    WaveSound sound;
    ASSERT_TRUE(ReadWave(Wave(Chunk("LIST", "odd") + Chunk("fmt ", Form(1, 2, 8000, 8)) +
                              Chunk("fact", "") + Chunk("data", "abcdef") + Chunk("id3 ", "x")),
                         sound));
    EXPECT_EQ(sound.Form, SampleForm::Unsigned8);
    EXPECT_EQ(sound.Channels, 2);
    EXPECT_EQ(sound.Samples, "abcdef");
}

TEST(WaveFile, FormsThatTheDeviceKnowsAreRead)
{
    WaveSound sound;
    const std::string data = Chunk("data", "abcdefgh");
    ASSERT_TRUE(ReadWave(Wave(Chunk("fmt ", Form(1, 1, 48000, 32)) + data), sound));
    EXPECT_EQ(sound.Form, SampleForm::Signed32);
    ASSERT_TRUE(ReadWave(Wave(Chunk("fmt ", Form(3, 1, 48000, 32)) + data), sound));
    EXPECT_EQ(sound.Form, SampleForm::Float32);
    const std::string extended = Form(0xFFFE, 2, 48000, 16) + Bytes(22, 2) + Bytes(16, 2) +
                                 Bytes(3, 4) + Bytes(1, 2) + std::string(14, 'g');
    ASSERT_TRUE(ReadWave(Wave(Chunk("fmt ", extended) + data), sound));
    EXPECT_EQ(sound.Form, SampleForm::Signed16);
    EXPECT_EQ(sound.Channels, 2);
}

TEST(WaveFile, WhatCannotBePlayedIsRefused)
{
    const std::string data = Chunk("data", "abcdefgh");
    const std::string form = Chunk("fmt ", Form(1, 1, 44100, 16));
    WaveSound sound;
    sound.Samples = "kept";
    for (const std::string &bytes :
         {std::string(), std::string("RIFF"), std::string("no sound at all, but long enough"),
          Wave(""), Wave(form), Wave(data), Wave(form + Chunk("data", "")),
          Wave(form + Chunk("data", "x")), Wave(Chunk("fmt ", "short") + data),
          Wave(Chunk("fmt ", Form(1, 0, 44100, 16)) + data),
          Wave(Chunk("fmt ", Form(1, 9, 44100, 16)) + data),
          Wave(Chunk("fmt ", Form(1, 1, 0, 16)) + data),
          Wave(Chunk("fmt ", Form(1, 1, 192001, 16)) + data),
          Wave(Chunk("fmt ", Form(1, 1, 44100, 12)) + data),
          Wave(Chunk("fmt ", Form(3, 1, 44100, 64)) + data),
          Wave(Chunk("fmt ", Form(2, 1, 44100, 16)) + data),
          Wave(Chunk("fmt ", Form(0xFFFE, 1, 44100, 16)) + data)}) {
        EXPECT_FALSE(ReadWave(bytes, sound));
        EXPECT_EQ(sound.Samples, "kept");
    }
}

TEST(WaveFile, DataCutShortIsReadAsFarAsItGoes)
{
    const std::string bytes = Mono16("abcdef");
    WaveSound sound;
    ASSERT_TRUE(ReadWave(bytes.substr(0, bytes.size() - 1), sound));
    EXPECT_EQ(sound.Samples, "abcd");
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const bool hasASample = length >= bytes.size() - 4;
        EXPECT_EQ(ReadWave(bytes.substr(0, length), sound), hasASample) << length;
    }
}

TEST(WaveFile, SizesThatLieAreHarmless)
{
    std::string bytes = Mono16("abcdef");
    WaveSound sound;
    for (const std::size_t place : {4U, 16U, 40U}) {
        std::string lying = bytes;
        lying.replace(place, 4, "\xFF\xFF\xFF\xFF");
        ReadWave(lying, sound);
        EXPECT_LE(sound.Samples.size(), 8U);
    }
    std::mt19937 random(1);
    for (int round = 0; round < 20000; ++round) {
        std::string changed = bytes;
        changed[random() % changed.size()] = static_cast<char>(random());
        changed[random() % changed.size()] = static_cast<char>(random());
        if (ReadWave(changed, sound)) {
            EXPECT_GT(sound.Samples.size(), 0U);
            EXPECT_LE(sound.Samples.size(), 6U);
        }
    }
}

TEST(WaveFile, LoopGoesOnWithTheFirstSampleAfterTheLast)
{
    WaveSound sound;
    sound.Samples = "abcdef";
    std::size_t place = 0;
    std::string taken(15, '.');
    EXPECT_EQ(TakeSamples(sound, place, true, taken.data(), taken.size()), 15U);
    EXPECT_EQ(taken, "abcdefabcdefabc");
    EXPECT_EQ(TakeSamples(sound, place, true, taken.data(), 4), 4U);
    EXPECT_EQ(taken.substr(0, 4), "defa");
}

TEST(WaveFile, WithoutALoopTheSamplesEnd)
{
    WaveSound sound;
    sound.Samples = "abcdef";
    std::size_t place = 0;
    std::string taken(4, '.');
    EXPECT_EQ(TakeSamples(sound, place, false, taken.data(), 4), 4U);
    EXPECT_EQ(taken, "abcd");
    EXPECT_EQ(TakeSamples(sound, place, false, taken.data(), 4), 2U);
    EXPECT_EQ(taken, "efcd");
    EXPECT_EQ(TakeSamples(sound, place, false, taken.data(), 4), 0U);
}

// Their extensions tell what the sounds are for, and nothing about their bytes.
TEST(WaveFile, EverySoundOfTheProgramIsRead)
{
    int sounds = 0;
    for (const auto &entry : std::filesystem::directory_iterator(TEST_SOUNDS)) {
        std::string bytes;
        std::string error;
        WaveSound sound;
        ASSERT_TRUE(ReadWholeFile(entry.path().string(), bytes, error)) << error;
        ASSERT_TRUE(ReadWave(bytes, sound)) << entry.path();
        EXPECT_EQ(sound.Form, SampleForm::Signed16);
        EXPECT_EQ(sound.Rate, 44100);
        EXPECT_EQ(sound.Samples.size(), bytes.size() - 44);
        ++sounds;
    }
    EXPECT_GE(sounds, 9);
}

} // namespace
} // namespace kelvarine::testing
