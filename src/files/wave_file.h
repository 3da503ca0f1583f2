// Sound files: samples as they stand in WAV data, whatever the file is called.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvarine {

enum class SampleForm : std::uint8_t { Unsigned8, Signed16, Signed32, Float32 };

struct WaveSound {
    SampleForm Form = SampleForm::Signed16;
    int Rate = 0;        // frames a second, 1000..192000
    int Channels = 0;    // 1..8
    std::string Samples; // whole frames, lowest byte of a sample first; never empty
};

// Reads WAV data with plain samples. False when the bytes are something else, hold no sample or
// hold samples of another form; sound is not changed then. Data cut short is read as far as it
// goes.
bool ReadWave(std::string_view bytes, WaveSound &sound);

// Copies samples from place on to a buffer and moves place along. In a loop the first sample
// follows the last at once; otherwise the samples end. Returns the bytes copied, at most size.
std::size_t TakeSamples(const WaveSound &sound, std::size_t &place, bool loop, char *buffer,
                        std::size_t size);

} // namespace kelvarine
