#include "support/quick_fields.h"

#include "support/random_positions.h"

#include <algorithm>
#include <array>
#include <bit>

namespace kelvarine::testing {

namespace {

constexpr std::uint64_t FieldsOfAGrid = 256; // a complete grid costs as much as dozens of fields
constexpr std::size_t Bytes = sizeof(std::uint64_t);
constexpr std::size_t MasksOfAWord = 7; // of nine bits each

} // namespace

QuickFields::QuickFields(std::uint32_t seed) : slow_(seed), random_(seed)
{
}

const CandidateField &QuickFields::Next()
{
    if (drawn_++ % FieldsOfAGrid == 0) {
        filled_ = FieldOf(DrawSolution(slow_));
    }
    Renumber();
    constexpr std::uint64_t all = 256;
    constexpr std::uint64_t few = 48;
    switch (drawn_ / 2 % 4) {
    case 0:
        AddCandidates();
        break;
    case 1:
        OpenCells(few);
        break;
    default:
        OpenCells(all);
        break;
    }
    if (drawn_ % 2 == 0) {
        Spoil();
    }
    return field_;
}

// The complete grid with its numbers exchanged.
void QuickFields::Renumber()
{
    std::array<std::uint16_t, 10> other{};
    for (unsigned number = 1; number <= 9; ++number) {
        other[number] = static_cast<std::uint16_t>(1U << number);
    }
    std::uint64_t word = random_();
    for (std::size_t k = 9; k > 1; --k) {
        std::swap(other[k], other[1 + word % k]);
        word /= k;
    }
    std::ranges::transform(filled_, field_.begin(), [&](std::uint16_t cell) {
        return other[static_cast<std::size_t>(std::countr_zero(cell))];
    });
}

// Opens all candidates of a part of the cells, from none to so many of 256.
void QuickFields::OpenCells(std::uint64_t most)
{
    const std::uint64_t part = random_() % most;
    for (std::size_t place = 0; place < field_.size();) {
        std::uint64_t word = random_();
        for (std::size_t k = 0; k < Bytes && place < field_.size(); ++k, ++place, word >>= 8) {
            if ((word & 0xFF) < part) {
                field_[place] = AnyNumber;
            }
        }
    }
}

// Adds to each cell a part of the candidates: a half, a quarter, an eighth or a sixteenth. The
// more there are the longer every search takes, and the seldomer they are drawn.
void QuickFields::AddCandidates()
{
    const int halvings = std::max(3 - std::countr_zero(random_()), 0);
    for (std::size_t place = 0; place < field_.size();) {
        std::uint64_t word = random_();
        for (int k = 0; k < halvings; ++k) {
            word &= random_();
        }
        for (std::size_t k = 0; k < MasksOfAWord && place < field_.size();
             ++k, ++place, word >>= 9) {
            field_[place] |= static_cast<std::uint16_t>(word << 1 & AnyNumber);
        }
    }
}

// Takes what belongs there from up to eight cells: each may then hold one or two other numbers.
void QuickFields::Spoil()
{
    std::uint64_t word = random_();
    for (std::uint64_t left = 1 + word % 8; left > 0; --left) {
        word = random_();
        field_[word % 81] =
            static_cast<std::uint16_t>(1U << (1 + (word >> 32) % 9) | 1U << (1 + (word >> 48) % 9));
    }
}

} // namespace kelvarine::testing
