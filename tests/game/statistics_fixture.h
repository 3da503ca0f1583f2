// A fresh program that counts solved games, and a look into its file.
#pragma once

#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/statistics.h"
#include "logic/driver.h"
#include "outside/whole_file.h"
#include "support/outside_double.h"
#include "support/solved_game.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace kelvarine::testing {

using Texts = std::vector<std::string>;

inline constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
inline constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();

class Statistics : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    static std::string FileBytes()
    {
        std::string bytes;
        std::string error;
        EXPECT_TRUE(ReadWholeFile(StatisticsFilePath(), bytes, error)) << error;
        return bytes;
    }

    static void PutFile(const std::string &bytes)
    {
        std::string error;
        ASSERT_TRUE(ReplaceWholeFile(StatisticsFilePath(), bytes, error)) << error;
    }

    static StatisticsRecord InFile()
    {
        return StatisticsFrom(FileBytes());
    }

    static Texts Row(std::size_t table, std::size_t row)
    {
        const auto &labels = StatisticsLabels[table][row];
        return {labels.begin(), labels.end()};
    }
};

} // namespace kelvarine::testing
