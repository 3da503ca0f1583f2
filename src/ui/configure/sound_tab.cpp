#include "ui/configure/sound_tab.h"

#include "configure/sound_settings.h"
#include "paint/text.h"
#include "ui/controls/configure_controls.h"
#include "ui/outside/sound_device.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
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
    SoundRow{"cmbSoundAlert", "cmdTestAlert", "Alert", &AlertFiles, &AlertSound, TestAlertSound,
             AlertVolume},
    SoundRow{"cmbSoundWin", "cmdTestWin", "Win", &WinFiles, &WinSound, TestWinSound, WinVolume},
};

// Out of the player's sight: the settings are kept, but no event plays these sounds.
constexpr std::array HiddenSoundRows{
    SoundRow{"cmbSoundAnnouncer", "cmdTestAnnouncer", "Announcer", &AnnouncerFiles, &AnnouncerSound,
             TestNothing, 0},
    SoundRow{"cmbDiceSound", "cmdTestClicks", "Cell Clicks", nullptr, nullptr, TestNothing, 1},
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

void AddRow(QGridLayout *grid, int row, const SoundRow &sound, bool visible)
{
    QWidget *parent = grid->parentWidget();
    const QString spoken = Text(sound.Caption);
    auto *list =
        MakeList(parent, Text(sound.List), spoken + " sound", Entries(sound.Files),
                 sound.Setting != nullptr ? *sound.Setting : 0, [setting = sound.Setting](int k) {
                     if (setting != nullptr) {
                         *setting = k;
                     }
                 });
    auto *button = MakeButton(parent, Text(sound.Button), sound.Caption, sound.Test);
    auto *bar = MakeBar(parent, IndexedName("hsbVolume", static_cast<int>(sound.Volume)),
                        spoken + " volume", VolumeSteps, 0,
                        [volume = sound.Volume](int value) { SetVolume(volume, value); });
    if (visible) {
        grid->addWidget(list, row, 0);
        grid->addWidget(button, row, 1);
        grid->addWidget(bar, row, 2);
    }
    for (QWidget *control : std::array<QWidget *, 3>{list, button, bar}) {
        control->setVisible(visible);
    }
}

} // namespace

QWidget *MakeSoundTab(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *rows = new QVBoxLayout(panel);
    auto *part = new QWidget(panel);
    auto *grid = new QGridLayout(part);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(12);
    grid->addWidget(new QLabel("Volume", part), 0, 2, Qt::AlignHCenter);
    int row = 1;
    for (const SoundRow &sound : SoundRows) {
        AddRow(grid, row++, sound, true);
    }
    for (const SoundRow &sound : HiddenSoundRows) {
        AddRow(grid, row++, sound, false);
    }
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    rows->addWidget(part);
    rows->addSpacing(16);
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
