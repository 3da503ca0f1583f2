#include "ui/configure/sound_tab.h"

#include "configure/sound_settings.h"
#include "paint/text.h"
#include "ui/controls/configure_controls.h"
#include "ui/outside/sound_device.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <array>

namespace kelvarine {

namespace {

constexpr std::string_view VolumeTip = "How loud this sound is";

constexpr BarSteps VolumeSteps{VolumeBarMost, 1, 20};

// What one event has on the tab. A row without a list of files has one that stays empty.
struct SoundRow {
    std::string_view Frame;
    std::string_view List;
    std::string_view Button;
    std::string_view Caption;
    const SoundList *Files;
    std::int32_t *Setting;
    void (*Test)();
    std::size_t Volume;
};

void TestNothing()
{
}

constexpr std::array SoundRows{
    SoundRow{"When an alert is new", "cmbSoundAlert", "cmdTestAlert", "Alert", &AlertFiles,
             &AlertSound, TestAlertSound, AlertVolume},
    SoundRow{"When a game is solved", "cmbSoundWin", "cmdTestWin", "Win", &WinFiles, &WinSound,
             TestWinSound, WinVolume},
};

// Out of the player's sight: the settings are kept, but no event plays these sounds.
constexpr std::array HiddenSoundRows{
    SoundRow{"", "cmbSoundAnnouncer", "cmdTestAnnouncer", "Announcer", &AnnouncerFiles,
             &AnnouncerSound, TestNothing, 0},
    SoundRow{"", "cmbDiceSound", "cmdTestClicks", "Cell Clicks", nullptr, nullptr, TestNothing, 1},
};

QStringList Entries(const SoundList *files)
{
    QStringList entries;
    if (files != nullptr) {
        entries << Text(NoSoundCaption);
        for (std::size_t k = 1; k < files->size(); ++k) {
            entries << Text(SoundCaption((*files)[k]));
        }
    }
    return entries;
}

void AddLabelled(QGridLayout *grid, int row, const char *label, QWidget *control)
{
    auto *words = new QLabel(label, grid->parentWidget());
    words->setBuddy(control);
    grid->addWidget(words, row, 0);
    grid->addWidget(control, row, 1);
}

QGroupBox *MakeSound(QWidget *panel, const SoundRow &sound)
{
    auto *frame = new QGroupBox(Text(sound.Frame), panel);
    auto *grid = new QGridLayout(frame);
    const QString spoken = Text(sound.Caption);
    AddLabelled(grid, 0, "Sound",
                MakeList(frame, Text(sound.List), spoken + " sound", Entries(sound.Files),
                         sound.Setting != nullptr ? *sound.Setting : 0,
                         [setting = sound.Setting](int k) {
                             if (setting != nullptr) {
                                 *setting = k;
                             }
                         }));
    grid->addWidget(MakeButton(frame, Text(sound.Button), sound.Caption, sound.Test), 0, 2);
    AddLabelled(grid, 1, "Volume",
                MakeBar(frame, IndexedName("hsbVolume", static_cast<int>(sound.Volume)),
                        Text("%1 volume, 0 to %2").arg(spoken).arg(VolumeSteps.Highest),
                        VolumeSteps, 0,
                        [volume = sound.Volume](int value) { SetVolume(volume, value); }));
    grid->setColumnStretch(1, 1);
    return frame;
}

} // namespace

QWidget *MakeSoundTab(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *rows = new QVBoxLayout(panel);
    rows->setSpacing(PanelGap);
    for (const SoundRow &sound : SoundRows) {
        rows->addWidget(MakeSound(panel, sound));
    }
    for (const SoundRow &sound : HiddenSoundRows) {
        MakeSound(panel, sound)->hide();
    }
    rows->addWidget(MakeCheckBox(panel, "chkDisableAllSound", " Disable all game sounds",
                                 SoundDisabled != False,
                                 [](bool on) { SoundDisabled = FlagOf(on); }));
    rows->addStretch();
    ShowVolumes(*panel, HasSoundDevice());
    return panel;
}

void ShowVolumes(const QWidget &panel, bool readable)
{
    const QScopedValueRollback loading(LoadingControls, true);
    for (std::size_t k = 0; k < VolumeCount; ++k) {
        auto *bar = panel.findChild<QScrollBar *>(IndexedName("hsbVolume", static_cast<int>(k)));
        bar->setEnabled(readable);
        const char *why = readable ? "" : "No sound device was found, so there is no volume to set";
        bar->setAccessibleDescription(why);
        bar->setToolTip(readable ? Text(VolumeTip) : Text(why));
        bar->setValue(readable ? VolumeBar(k) : 0);
    }
}

} // namespace kelvarine
