// A folder of a test's own, gone with it.
#pragma once

#include "outside/whole_file.h"
#include "support/empty_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace kelvarine::testing {

class TemporaryFolder {
public:
    // The folder with a closing slash, and a name in it.
    [[nodiscard]] std::string Path() const
    {
        return folder_.Path().string() + "/";
    }
    [[nodiscard]] std::string Path(std::string_view name) const
    {
        return Path() + std::string(name);
    }

    void Write(std::string_view name, std::string_view bytes) const
    {
        std::string error;
        EXPECT_TRUE(ReplaceWholeFile(Path(name), bytes, error)) << error;
    }

    [[nodiscard]] std::string Read(std::string_view name) const
    {
        std::string bytes;
        std::string error;
        EXPECT_TRUE(ReadWholeFile(Path(name), bytes, error)) << error;
        return bytes;
    }

    [[nodiscard]] long Entries() const
    {
        return std::distance(std::filesystem::directory_iterator(folder_.Path()), {});
    }

private:
    EmptyFolder folder_;
};

} // namespace kelvarine::testing
