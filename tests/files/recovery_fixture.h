// A game that is played while the program keeps it for the case of a crash, a look at what is kept,
// and the ways in which programs end.
#pragma once

#include "files/recovered_folder.h"
#include "files/recovery.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "outside/later_write.h"
#include "outside/whole_file.h"
#include "program/defaults.h"
#include "support/child_process.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace kelvarine::testing {

using Texts = std::vector<std::string>;

class Recovery : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }

    // The tick, and the end of what it began to write.
    static void TickAndWrite()
    {
        RecoveryTick();
        while (IsWriting()) {
        }
    }

    static void Play()
    {
        WordAt({3, 1}) ^= BitTable[4];
        PushUndoState();
    }

    // Another program, which ends as if it were killed.
    static void Killed(const std::function<void()> &play)
    {
        ASSERT_EQ(RunInChild([&] {
                      play();
                      return ::raise(SIGKILL);
                  }),
                  -1);
    }

    // A program that starts on the same files.
    static void StartAnew()
    {
        SetDefaults();
        Seen = {};
    }

    static Texts Files()
    {
        Texts names;
        std::error_code missing;
        std::filesystem::directory_iterator entry(DataFolder(), missing);
        while (!missing && entry != std::filesystem::directory_iterator()) {
            names.push_back(entry->path().filename().string());
            entry.increment(missing);
        }
        std::ranges::sort(names);
        return names;
    }

    static Texts RecoveredGames()
    {
        Texts names;
        for (const auto &entry : std::filesystem::directory_iterator(RecoveredFolder())) {
            names.push_back(entry.path().filename().string());
        }
        std::ranges::sort(names);
        return names;
    }

    static std::string Contents(const std::string &path)
    {
        std::string bytes;
        std::string error;
        EXPECT_TRUE(ReadWholeFile(path, bytes, error)) << error;
        return bytes;
    }

    // The files of a program whose game is modified.
    static Texts FilesOf(int number)
    {
        const std::string beginning = "recovery-" + std::to_string(number);
        return {beginning + ".fresh", beginning + ".lock", beginning + ".sdk"};
    }

    static std::string Kept()
    {
        return Contents(DataFolder() + "recovery-1.sdk");
    }
};

} // namespace kelvarine::testing
