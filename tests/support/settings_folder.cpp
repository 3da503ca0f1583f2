#include "support/settings_folder.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace kelvarine::testing {

namespace {

void PutFile(const std::filesystem::path &path, const std::string &bytes)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

} // namespace

int SettingsFolders::InUse = 0;

SettingsFolders::SettingsFolders()
{
    ++InUse;
    ::setenv("XDG_CONFIG_HOME", (home_.Path() / "config").c_str(), 1);
    ::setenv("XDG_DATA_HOME", (home_.Path() / "data").c_str(), 1);
}

SettingsFolders::~SettingsFolders()
{
    --InUse;
}

std::filesystem::path SettingsFolders::Settings() const
{
    return home_.Path() / "config" / "kelvarine";
}

std::filesystem::path SettingsFolders::Data() const
{
    return home_.Path() / "data" / "kelvarine";
}

void SettingsFolders::PutSetting(const std::string &name, const std::string &bytes) const
{
    PutFile(Settings() / name, bytes);
}

void SettingsFolders::PutData(const std::string &name, const std::string &bytes) const
{
    PutFile(Data() / name, bytes);
}

std::string SettingsFolders::ReadSetting(const std::string &name) const
{
    std::ifstream file(Settings() / name, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

} // namespace kelvarine::testing
