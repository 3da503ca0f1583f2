// The start of a program that reads its settings, and folders of its own for their file.
#pragma once

#include "configure/configuration.h"
#include "configure/configuration_bytes.h"
#include "game/event_sound.h"
#include "support/outside_double.h"
#include "support/settings_folder.h"

#include <gtest/gtest.h>

#include <limits>

namespace kelvarine::testing {

inline constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
inline constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();

class Configuration : public ::testing::Test {
protected:
    void SetUp() override
    {
        RestartWithSounds();
    }

    // The start of a program that finds three files of each kind.
    static void RestartWithSounds()
    {
        Restart();
        AnnouncerFiles = {"", "a.ano", "b.ano", "c.ano"};
        AlertFiles = {"", "a.alr", "b.alr", "c.alr"};
        WinFiles = {"", "a.win", "b.win", "c.win"};
        AnnouncerSound = 1;
        AlertSound = 1;
        WinSound = 1;
    }

    // What one element does to a start with all other elements at their defaults.
    static void StartWith(std::size_t record, std::size_t element, std::int32_t value)
    {
        RestartWithSounds();
        TakeConfiguration(DefaultsWith(record, element, value));
    }

    SettingsFolders Folders;
};

} // namespace kelvarine::testing
