// What the fuzzers share. Each fuzzer is an entry point that takes any bytes; libFuzzer drives it
// in a build with KELVARINE_FUZZ, replay_main.cpp in every other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

extern "C" {
int LLVMFuzzerInitialize(int *argc, char ***argv);
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
}

namespace kelvarine::testing {

// Inputs worth starting from that are too long to be kept as files.
std::vector<std::string> LongSeeds();

// Puts the program to the state of a start, with a board of a single pixel, so that the paintings
// after every undo cost next to nothing.
void RestartWithBoard();

// Paints the board in its size.
void LookAtBoard();

// Ends the process when a promise is broken.
void Require(bool kept, const char *promise);

// Ends the process when CheckState has something to tell.
void RequireSoundState();

// The bytes of an input as text.
inline std::string_view TextOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

} // namespace kelvarine::testing
