// Two programs that end on the same file of settings.
#include "board/look.h"
#include "board/margin.h"
#include "configure/configuration_fixture.h"
#include "configure/merged_settings.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "outside/file_lock.h"
#include "outside/folders.h"

#include <array>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class TwoPrograms : public Configuration {
protected:
    // Another program that starts on the file as it stands, changes something and ends.
    template <typename Change>
    void Other(const Change &change)
    {
        const std::string mine = ConfigurationBytes();
        TakeConfiguration(Folders.ReadSetting("config.sdu"));
        change();
        Folders.PutSetting("config.sdu", ConfigurationBytes());
        TakeConfiguration(mine);
    }

    // The settings of the file, in the place of those of this program.
    void ReadBack()
    {
        RestartWithSounds();
        TakeConfiguration(Folders.ReadSetting("config.sdu"));
    }

    void StartOnAFile()
    {
        WriteConfiguration();
        RestartWithSounds();
        ReadConfiguration();
    }
};

TEST_F(TwoPrograms, EachKeepsWhatItsPlayerChanged)
{
    StartOnAFile();
    PrimaryThickness = 5;
    Other([] { BorderThickness = 7; });
    WriteConfiguration();
    ReadBack();
    EXPECT_EQ(PrimaryThickness, 5);
    EXPECT_EQ(BorderThickness, 7);
}

TEST_F(TwoPrograms, OfOneSettingTheLastChangeCounts)
{
    StartOnAFile();
    PrimaryThickness = 5;
    Other([] { PrimaryThickness = 3; });
    WriteConfiguration();
    ReadBack();
    EXPECT_EQ(PrimaryThickness, 5);
}

TEST_F(TwoPrograms, PlacesAndLevelsGoAsAWhole)
{
    StartOnAFile();
    MainPlace = {10, 20, 300, 400};
    const auto levels = LevelTable;
    LevelTable[1] = levels[1] | BitTable[4];
    LevelTable[3] = levels[3] & ~BitTable[4];
    Other([] {
        MainPlace = {50, 20, 600, 400};
        LevelTable[2] |= BitTable[6];
        LevelTable[3] &= ~BitTable[6];
    });
    WriteConfiguration();
    ReadBack();
    EXPECT_EQ(MainPlace.Left, 10);
    EXPECT_EQ(MainPlace.Width, 300);
    EXPECT_EQ(LevelTable[1], levels[1] | BitTable[4]);
    EXPECT_EQ(LevelTable[2], levels[2]);
}

// Record, first and last element of each place of a window and of the levels.
TEST_F(TwoPrograms, WholeGoesFromItsFirstElementToItsLast)
{
    const std::string common = ConfigurationBytes();
    for (const auto &[record, first, last] : {std::array<std::size_t, 3>{5, 0, 4},
                                              {6, 1, 4},
                                              {6, 6, 9},
                                              {7, 1, 4},
                                              {7, 6, 7},
                                              {10, 0, 4}}) {
        const auto changed = [&common, at = record](std::size_t element) {
            std::string bytes = common;
            ++bytes[(at - 1) * BytesInRecord + 4 * element];
            return bytes;
        };
        EXPECT_EQ(MergedSettings(common, changed(first), changed(last)), changed(first)) << record;
        EXPECT_EQ(MergedSettings(common, changed(last), changed(first)), changed(last)) << record;
    }
}

TEST_F(TwoPrograms, WhatWasWrittenAndChangedBackIsChangedBack)
{
    StartOnAFile();
    PrimaryThickness = 5;
    WriteConfiguration();
    PrimaryThickness = 8;
    Other([] { BorderThickness = 7; });
    WriteConfiguration();
    ReadBack();
    EXPECT_EQ(PrimaryThickness, 8);
    EXPECT_EQ(BorderThickness, 7);
}

TEST_F(TwoPrograms, WithoutAFileAtTheStartTheOthersChangesStayAsWell)
{
    ReadConfiguration();
    Folders.PutSetting("config.sdu", BytesOf(DefaultWords));
    Other([] { BorderThickness = 7; });
    PrimaryThickness = 5;
    WriteConfiguration();
    ReadBack();
    EXPECT_EQ(PrimaryThickness, 5);
    EXPECT_EQ(BorderThickness, 7);
}

TEST_F(TwoPrograms, FileOfAnotherVersionOrCutShortIsWrittenWhole)
{
    StartOnAFile();
    const std::string whole = ConfigurationBytes();
    for (const std::string &standing : {std::string("2") + whole.substr(1), whole.substr(0, 100)}) {
        EXPECT_EQ(MergedSettings(whole, whole, standing), whole);
    }
}

TEST_F(TwoPrograms, WhatIsCorrectedWhenReadIsWrittenCorrected)
{
    Folders.PutSetting("config.sdu", DefaultsWith(10, 6, 82));
    ReadConfiguration();
    WriteConfiguration();
    EXPECT_EQ(Folders.ReadSetting("config.sdu"), BytesOf(DefaultWords));
}

TEST_F(TwoPrograms, LockThatAnotherHoldsIsTold)
{
    const FileLock other(SettingsFolder() + "config.lock");
    WriteConfiguration();
    EXPECT_EQ(Seen.Messages, Texts{"Unable to save settings.\r\rAnother program is using them."});
}

} // namespace
} // namespace kelvarine::testing
