// What the program asks of the heap: work on a long text that copies it again and again shows here
// on every machine alike.
#pragma once

#include <atomic>
#include <cstdint>

namespace kelvarine::testing {

extern std::atomic<std::int64_t> BytesAskedFor; // by operator new since the start of the process

} // namespace kelvarine::testing
