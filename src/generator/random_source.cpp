#include "generator/random_source.h"

#include "grid/rounding.h"

#include <cstdlib>
#include <random>

namespace kelvarine {

namespace {

std::mt19937 stream; // the standard's engine is the published one, seeding included

int DrawOfNine(int lowest)
{
    return static_cast<int>(genrand_real2() * 9.0) + lowest;
}

} // namespace

void init_genrand(std::uint32_t seed)
{
    stream.seed(seed);
}

std::int32_t genrand_int31()
{
    return static_cast<std::int32_t>(stream() >> 1);
}

double genrand_real2()
{
    return static_cast<double>(stream()) / 4294967296.0;
}

int DrawIndex()
{
    return DrawOfNine(1);
}

int DrawDigitBit()
{
    return DrawOfNine(11);
}

std::uint32_t StartSeed(int year, int month, int day, double seconds)
{
    const int distance = std::abs(year - 2000);
    const std::int64_t days =
        static_cast<std::int64_t>(month * 30 + day) * (distance == 0 ? 1 : distance);
    // The sum leaves 32 bits in the second half of the century; the low ones do as well.
    const double seed = RoundHalfEven(seconds + static_cast<double>(days * 100000));
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(seed));
}

} // namespace kelvarine
