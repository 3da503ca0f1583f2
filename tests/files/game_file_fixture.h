// Game files written by the program into a folder of the test, and laid out by hand, word by word.
#pragma once

#include "files/game_file.h"
#include "game/lifecycle.h"
#include "support/file_words.h"
#include "support/outside_double.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kelvarine::testing {

class GameFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    // The game as WriteGameFile leaves it on the disk.
    std::string Written(const std::string &name = "game.sdk")
    {
        GameFilePath = Folder.Path(name);
        EXPECT_TRUE(WriteGameFile());
        return Folder.Read(name);
    }

    bool Open(std::string_view contents, const std::string &name = "given.sdk")
    {
        Folder.Write(name, contents);
        return ReadGameFile(Folder.Path(name));
    }

    TemporaryFolder Folder;
};

inline constexpr std::string_view PaddedHeader = "Kelvarine game file v1.0        ";
static_assert(PaddedHeader.size() == 32);

// A file with the header and nothing else, to put words into.
inline std::string BareFile()
{
    std::string file(41360, '\0');
    file.replace(8, 32, PaddedHeader);
    return file;
}

} // namespace kelvarine::testing
