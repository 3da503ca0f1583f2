// A fresh program whose keys are pressed, and the numbers that it shows.
#pragma once

#include "grid/cell_word.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {

// Numbers in view, as NumberFilter says them.
inline constexpr CellWord AllInView = 0x3FE;
inline constexpr CellWord OnlyThree = 0x8;

class Keys : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

} // namespace kelvarine::testing
