#include "game/event_sound.h"
#include "game/screens.h"
#include "support/widget_configure.h"
#include "ui/configure/sound_tab.h"

#include <QAbstractButton>
#include <QComboBox>

namespace kelvarine::testing {
namespace {

class SoundTabTest : public ConfigureTest {
protected:
    void SetUp() override
    {
        ConfigureTest::SetUp();
        AlertFiles = {"", "bell.alr", "ring.loud.alr", "ring 2.alr"};
        WinFiles = {"", "song.win"};
        AnnouncerFiles = {""};
        AlertSound = 3;
    }

    void OpenWithVolumes(bool readable)
    {
        Open(SoundTab);
        ShowVolumes(*Find<QWidget>("picTabSound"), readable);
    }

    QStringList Entries(const char *name)
    {
        QStringList entries;
        for (int k = 0; k < Find<QComboBox>(name)->count(); ++k) {
            entries << Find<QComboBox>(name)->itemText(k);
        }
        return entries;
    }
};

TEST_F(SoundTabTest, ListsBeginWithNoneAndShowNamesUpToTheFirstDot)
{
    Open(SoundTab);
    EXPECT_EQ(Entries("cmbSoundAlert"), QStringList({"none", "bell", "ring", "ring 2"}));
    EXPECT_EQ(Entries("cmbSoundWin"), QStringList({"none", "song"}));
    EXPECT_EQ(Entries("cmbSoundAnnouncer"), QStringList({"none"}));
    EXPECT_EQ(Find<QComboBox>("cmbSoundAlert")->currentIndex(), 3);
    EXPECT_EQ(Find<QComboBox>("cmbSoundWin")->currentIndex(), 0);
}

TEST_F(SoundTabTest, WithoutAnyFileTheListsHoldNoneAlone)
{
    AlertFiles.clear();
    WinFiles.clear();
    AnnouncerFiles.clear();
    AlertSound = 0;
    Open(SoundTab);
    for (const char *name : {"cmbSoundAlert", "cmbSoundWin", "cmbSoundAnnouncer"}) {
        EXPECT_EQ(Entries(name), QStringList({"none"}));
        EXPECT_EQ(Find<QComboBox>(name)->currentIndex(), 0);
    }
}

TEST_F(SoundTabTest, SettingOutOfTheListSelectsNothing)
{
    AlertSound = 9;
    WinSound = -4;
    Open(SoundTab);
    EXPECT_EQ(Find<QComboBox>("cmbSoundAlert")->currentIndex(), -1);
    EXPECT_EQ(Find<QComboBox>("cmbSoundWin")->currentIndex(), -1);
    EXPECT_EQ(AlertSound, 9);
}

TEST_F(SoundTabTest, ChosenEntryBecomesTheSetting)
{
    Open(SoundTab);
    QTest::keyClick(Find<QComboBox>("cmbSoundAlert"), Qt::Key_Up);
    EXPECT_EQ(AlertSound, 2);
    QTest::keyClick(Find<QComboBox>("cmbSoundAlert"), Qt::Key_Home);
    EXPECT_EQ(AlertSound, 0);
    QTest::keyClick(Find<QComboBox>("cmbSoundWin"), Qt::Key_Down);
    EXPECT_EQ(WinSound, 1);
}

TEST_F(SoundTabTest, BarsShowTheVolumesAndDraggingSetsThem)
{
    SoundVolumes[3] = 511;
    OpenWithVolumes(true);
    EXPECT_EQ(Find<QScrollBar>("hsbVolume2")->value(), 125);
    EXPECT_EQ(Find<QScrollBar>("hsbVolume3")->value(), 1);
    EXPECT_EQ(SoundVolumes[3], 511) << "showing rounds nothing in the state";
    Drag("hsbVolume2", 255);
    EXPECT_EQ(SoundVolumes[2], 65280);
    Drag("hsbVolume3", 1);
    Drag("hsbVolume3", 0);
    EXPECT_EQ(SoundVolumes[3], 0);
    for (int k = 0; k < 4; ++k) {
        const auto *bar = Find<QScrollBar>(Name("hsbVolume", k));
        EXPECT_EQ(bar->minimum(), 0);
        EXPECT_EQ(bar->maximum(), 255);
        EXPECT_EQ(bar->pageStep(), 20);
    }
}

TEST_F(SoundTabTest, BarsAreDisabledWhenNoVolumeCanBeRead)
{
    OpenWithVolumes(false);
    for (int k = 0; k < 4; ++k) {
        const QByteArray name = Name("hsbVolume", k);
        EXPECT_FALSE(Find<QScrollBar>(name)->isEnabled());
        EXPECT_EQ(Find<QScrollBar>(name)->value(), 0) << "takes no value";
    }
    QTest::keyClick(Find<QScrollBar>("hsbVolume2"), Qt::Key_Right);
    EXPECT_EQ(SoundVolumes[2], 32000);
}

TEST_F(SoundTabTest, AllSoundsAreDisabledAndEnabled)
{
    Open(SoundTab);
    EXPECT_EQ(Find<QAbstractButton>("chkDisableAllSound")->text(), " Disable all game sounds");
    Click("chkDisableAllSound");
    EXPECT_EQ(SoundDisabled, True);
    Click("chkDisableAllSound");
    EXPECT_EQ(SoundDisabled, False);
}

TEST_F(SoundTabTest, TestButtonsOfMissingFilesAreSilence)
{
    Open(SoundTab);
    EXPECT_EQ(Find<QAbstractButton>("cmdTestAlert")->text(), "Alert");
    EXPECT_EQ(Find<QAbstractButton>("cmdTestWin")->text(), "Win");
    const BoxRecord boxes = AnswerBoxes([this] {
        Click("cmdTestAlert");
        Click("cmdTestWin");
        QCoreApplication::processEvents();
    });
    EXPECT_TRUE(boxes.Texts.empty()) << "a missing file is no error";
}

TEST_F(SoundTabTest, AnnouncerAndClicksAreKeptOutOfSight)
{
    AnnouncerFiles = {"", "voice.ano"};
    OpenWithVolumes(true);
    for (const char *name : {"cmbSoundAnnouncer", "cmdTestAnnouncer", "hsbVolume0", "cmbDiceSound",
                             "cmdTestClicks", "hsbVolume1"}) {
        EXPECT_FALSE(Find<QWidget>(name)->isVisible()) << name;
    }
    EXPECT_EQ(Find<QAbstractButton>("cmdTestAnnouncer")->text(), "Announcer");
    EXPECT_EQ(Find<QAbstractButton>("cmdTestClicks")->text(), "Cell Clicks");
    Find<QComboBox>("cmbSoundAnnouncer")->setCurrentIndex(1);
    EXPECT_EQ(AnnouncerSound, 1);
    Find<QScrollBar>("hsbVolume1")->setValue(3);
    EXPECT_EQ(SoundVolumes[1], 768);
}

} // namespace
} // namespace kelvarine::testing
