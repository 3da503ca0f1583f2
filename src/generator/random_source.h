// The one source of all randomness of game making: the Mersenne Twister MT19937 of Matsumoto and
// Nishimura (1998) in its reference form, so that a number names the same game on every machine.
#pragma once

#include <cstdint>

namespace kelvarine {

// Seeds the stream.
void init_genrand(std::uint32_t seed);

// Next number of the stream, 0..2147483647.
std::int32_t genrand_int31();

// Next number of the stream as a real in the range from 0 up to but not including 1.
double genrand_real2();

// A column or row, 1..9, from the stream.
int DrawIndex();

// The bit number of a digit in the solution field of the cell word, 11..19, from the stream.
int DrawDigitBit();

// Seed for a start on this day at so many seconds since midnight, fraction included.
std::uint32_t StartSeed(int year, int month, int day, double seconds);

} // namespace kelvarine
