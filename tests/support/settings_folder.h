// Folders of settings and data of a test's own, so that no test sees or touches the player's.
#pragma once

#include "support/empty_folder.h"

#include <filesystem>
#include <string>

namespace kelvarine::testing {

// Empty folders for settings and data for as long as it lives; they go with all they hold.
class SettingsFolders {
public:
    SettingsFolders();
    SettingsFolders(const SettingsFolders &) = delete;
    SettingsFolders &operator=(const SettingsFolders &) = delete;
    ~SettingsFolders();

    // Makes a file, with the folders above it, in the folder of settings or of data.
    void PutSetting(const std::string &name, const std::string &bytes) const;
    void PutData(const std::string &name, const std::string &bytes) const;

    // All of a file in the folder of settings; empty when there is none.
    [[nodiscard]] std::string ReadSetting(const std::string &name) const;

    [[nodiscard]] std::filesystem::path Settings() const;
    [[nodiscard]] std::filesystem::path Data() const;

    static int InUse; // number of such folders

private:
    EmptyFolder home_;
};

} // namespace kelvarine::testing
