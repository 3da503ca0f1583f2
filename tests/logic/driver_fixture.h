// A driver that has the singles and no other technique.
#pragma once

#include "grid/grid.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace kelvarine::testing {

class DriverOfSingles : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        // The singles are all that these tests build on, whatever other techniques there are.
        LevelTable = {0, SinglesMask, 0, 0, 0, 0, 0, 0, 0, 0};
    }

    // Runs the driver with a mask and returns its result.
    static std::int32_t Apply(std::int32_t mode, std::uint32_t mask)
    {
        SolveMask = mask;
        return ApplyLogic(mode);
    }
};

} // namespace kelvarine::testing
