// Fields of candidates drawn in less than a microsecond each, for comparisons of millions: of every
// density, from empty to one open cell, with fillings and without.
#pragma once

#include "support/solution_counter.h"

#include <cstdint>
#include <random>

namespace kelvarine::testing {

// Draws one field after the other; the same ones for the same seed.
class QuickFields {
public:
    explicit QuickFields(std::uint32_t seed);

    // The next field, row by row.
    const CandidateField &Next();

private:
    void Renumber();
    void OpenCells(std::uint64_t most);
    void AddCandidates();
    void Spoil();

    std::mt19937 slow_; // of complete grids
    std::mt19937_64 random_;
    std::uint64_t drawn_ = 0;
    CandidateField filled_{}; // a complete grid
    CandidateField field_{};
};

} // namespace kelvarine::testing
