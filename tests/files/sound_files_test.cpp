#include "files/sound_files.h"
#include "game/event_sound.h"
#include "outside/folders.h"
#include "support/outside_double.h"
#include "support/settings_folder.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class SoundFiles : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    // The folder of a program that came with sounds; PutInstalled fills it.
    [[nodiscard]] std::string Installed() const
    {
        return (Folders.Data() / "../../installed/").string();
    }

    void PutInstalled(const std::string &name) const
    {
        Folders.PutData("../../installed/" + name, "bytes");
    }

    [[nodiscard]] std::vector<std::string> BothFolders() const
    {
        return {DataFolder(), Installed()};
    }

    SettingsFolders Folders;
};

TEST_F(SoundFiles, NoFilesAtAllLeaveEmptyListsAndNoChoice)
{
    FindSoundFiles();
    EXPECT_TRUE(AnnouncerFiles.empty());
    EXPECT_TRUE(AlertFiles.empty());
    EXPECT_TRUE(WinFiles.empty());
    EXPECT_EQ(AnnouncerSound, 0);
    EXPECT_EQ(AlertSound, 0);
    EXPECT_EQ(WinSound, 0);
    PlayEventSound(SoundFile(AlertFiles, AlertSound), AlertVolume, false);
    PlayEventSound(SoundFile(WinFiles, WinSound), WinVolume, true);
    EXPECT_TRUE(Seen.Calls.empty());
}

TEST_F(SoundFiles, ExtensionTellsTheUse)
{
    for (const char *name : {"b.alr", "a.alr", "tune.win", "voice.ano", "snapshot.wav", "alr",
                             "x.alr.txt", "stats.sdu", ".hidden.alr"}) {
        Folders.PutData(name, "bytes");
    }
    std::filesystem::create_directory(Folders.Data() / "folder.alr");
    FindSoundFiles();
    EXPECT_EQ(AlertFiles, (Texts{"", "a.alr", "b.alr"}));
    EXPECT_EQ(WinFiles, (Texts{"", "tune.win"}));
    EXPECT_EQ(AnnouncerFiles, (Texts{"", "voice.ano"}));
    EXPECT_EQ(AlertSound, 1);
    EXPECT_EQ(WinSound, 1);
    EXPECT_EQ(AnnouncerSound, 1);
}

TEST_F(SoundFiles, AreSortedByNameWhateverTheirCase)
{
    for (const char *name : {"bell.alr", "Alarm.ALR", "alarm.alr", "Chord.alr"}) {
        Folders.PutData(name, "bytes");
    }
    FindSoundFiles();
    EXPECT_EQ(AlertFiles, (Texts{"", "Alarm.ALR", "alarm.alr", "bell.alr", "Chord.alr"}));
}

TEST_F(SoundFiles, SecondRingIsTheDefaultAlert)
{
    for (const char *name : {"a.alr", "Ring 2.ALR", "z.alr"}) {
        Folders.PutData(name, "bytes");
    }
    FindSoundFiles();
    EXPECT_EQ(AlertSound, 2);
    EXPECT_EQ(SoundFile(AlertFiles, AlertSound), "Ring 2.ALR");
}

TEST_F(SoundFiles, PlayersOwnStandBesideThoseThatCameWithTheProgram)
{
    PutInstalled("ring 1.alr");
    PutInstalled("ring 2.alr");
    Folders.PutData("mine.alr", "bytes");
    Folders.PutData("ring 2.alr", "bytes");
    FindSoundFiles(BothFolders());
    EXPECT_EQ(AlertFiles, (Texts{"", "mine.alr", "ring 1.alr", "ring 2.alr"}));
    EXPECT_EQ(AlertSound, 3);
    EXPECT_EQ(SoundPath("mine.alr", BothFolders()), DataFolder() + "mine.alr");
    EXPECT_EQ(SoundPath("ring 1.alr", BothFolders()), Installed() + "ring 1.alr");
    EXPECT_EQ(SoundPath("ring 2.alr", BothFolders()), DataFolder() + "ring 2.alr");
}

TEST_F(SoundFiles, MissingFilesHaveNoPath)
{
    std::filesystem::create_directories(Folders.Data() / "folder.alr");
    EXPECT_EQ(SoundPath("missing.alr"), "");
    EXPECT_EQ(SoundPath("folder.alr"), "");
    EXPECT_EQ(SoundPath(""), "");
}

TEST_F(SoundFiles, VolumesAreThoseOfTheStart)
{
    FindSoundFiles();
    EXPECT_EQ(SoundVolumes, (std::array<std::int32_t, 4>{32000, 32000, 32000, 32000}));
    EXPECT_EQ(SoundDisabled, False);
}

TEST_F(SoundFiles, DataStandsBesideTheProgramOrWhereItIsInstalled)
{
    const std::string home = (Folders.Data() / "../../").string();
    EXPECT_EQ(ProgramDataFolder(home + "nowhere/"), "");
    Folders.PutData("../../usr/share/kelvarine/sounds/a.alr", "bytes");
    std::filesystem::create_directories(home + "usr/bin");
    EXPECT_EQ(ProgramDataFolder(home + "usr/bin/"), home + "usr/bin/../share/kelvarine/");
    Folders.PutData("../../usr/bin/data/sounds/a.alr", "bytes");
    EXPECT_EQ(ProgramDataFolder(home + "usr/bin/"), home + "usr/bin/data/");
}

} // namespace
} // namespace kelvarine::testing
