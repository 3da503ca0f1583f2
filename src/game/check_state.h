// Whether the state of the program is sound: what all rooms rely on and no single one can see.
#pragma once

#include <cassert>
#include <string_view>

namespace kelvarine {

// What is wrong with the state between two commands, in a few words; empty when all is sound. A
// game that came from a file holds the file's cells as they stand, whatever they are, so of its
// cells and of its history only the counters are looked at.
std::string_view CheckState();

// At the end of every command, in builds with asserts.
inline void AssertStateIsSound()
{
    assert(CheckState().empty());
}

} // namespace kelvarine
