// A folder of a test's own, gone with it.
#pragma once

#include "outside/whole_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

namespace kelvarine::testing {

class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string form = (std::filesystem::temp_directory_path() / "kelvarine-XXXXXX").string();
        EXPECT_NE(::mkdtemp(form.data()), nullptr);
        path_ = form;
    }
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;
    ~TemporaryFolder()
    {
        std::error_code failure;
        std::filesystem::remove_all(path_, failure);
    }

    // The folder with a closing slash, and a name in it.
    [[nodiscard]] std::string Path() const
    {
        return path_ + "/";
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
        return std::distance(std::filesystem::directory_iterator(path_), {});
    }

private:
    std::string path_;
};

} // namespace kelvarine::testing
