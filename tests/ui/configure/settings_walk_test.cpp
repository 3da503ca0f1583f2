// Every setting of the configuration file, looked for on the screens: whatever can be operated is
// operated, and the file's words tell which settings it reaches.
#include "configure/configuration.h"
#include "configure/setting_table.h"
#include "configure/tab_places.h"
#include "game/event_sound.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "game/statistics.h"
#include "input/menu_table.h"
#include "print/print_settings.h"
#include "support/widget_configure.h"
#include "ui/configure/sound_tab.h"
#include "ui/configure/tab_strip.h"
#include "ui/controls/colour_swatches.h"
#include "ui/screens/help_collection.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <map>
#include <set>

namespace kelvarine::testing {
namespace {

// Frame and name of a control; empty for one that the player does not see.
QString NameOf(const QWidget &control)
{
    const auto *frame = qobject_cast<const QGroupBox *>(control.parentWidget());
    const QString title = frame != nullptr ? frame->title() + ' ' : QString();
    return control.isVisible() ? title + control.accessibleName() : QString();
}

class SettingsWalk : public ConfigureTest {
protected:
    void SetUp() override
    {
        ConfigureTest::SetUp();
        AnnouncerFiles = {"", "a.ano"};
        AlertFiles = {"", "a.alr"};
        WinFiles = {"", "a.win"};
        PrintCentre = False; // which lets left and top be typed
    }

    // Does something, and notes which settings it changes, and what it is called if it does and the
    // player can see it.
    void Note(const QString &name, const std::function<void()> &act)
    {
        const std::string before = ConfigurationBytes();
        act();
        const std::string after = ConfigurationBytes();
        for (std::size_t record = 1; record <= ConfigurationRecords; ++record) {
            for (std::size_t element = 0; element < WordsInRecord; ++element) {
                const std::size_t offset = (record - 1) * BytesInRecord + 4 * element;
                if (before.compare(offset, 4, after, offset, 4) != 0) {
                    Reached.insert({record, element});
                    if (!name.isEmpty()) {
                        OnTab[CurrentTab].insert(name);
                    }
                }
            }
        }
    }

    // All controls of a part but the options, then the options, and the controls again, of which
    // the last option may have freed some.
    void NoteControls(const QWidget &part)
    {
        NoteButOptions(part, {});
        for (QRadioButton *option : part.findChildren<QRadioButton *>()) {
            Note(NameOf(*option), [option] { option->click(); });
        }
        NoteButOptions(part, {});
    }

    // Each colour with all the controls that change the chosen one.
    void NoteColours(const QWidget &panel)
    {
        for (QRadioButton *colour : panel.findChildren<QRadioButton *>()) {
            colour->click();
            NoteButOptions(panel, "Colour of " + colour->accessibleName());
        }
    }

    // Everything on the tabs but the presets, which are no settings of their own.
    void WalkTabs()
    {
        for (std::int32_t tab = 0; tab < TabCount; ++tab) {
            Note({}, [this, tab] { Open(tab); });
            const QWidget *panel = Panel();
            ASSERT_NE(panel, nullptr) << tab;
            if (tab == SoundTab) {
                ShowVolumes(*panel, true);
            }
            if (tab == LogicTab) {
                NoteLevels();
            }
            if (tab == ColoursTab) {
                NoteColours(*panel);
            } else if (tab != PresetGridsTab) {
                NoteControls(*panel);
            }
        }
    }

    void NoteLevels()
    {
        for (QAction *entry : Find<QMenu>("mnuRatings")->actions()) {
            Note("level", [entry] { entry->trigger(); });
        }
    }

    void WalkMenus()
    {
        for (const MenuRow &row : MenuTable) {
            for (std::int32_t k = row.First; row.Checked != nullptr && k <= row.Last; ++k) {
                Note({}, [&row, k] { row.Run(k); });
            }
        }
    }

    void WalkScreens()
    {
        Note({}, mnuShowSolution);
        Note({}, mnuStatistics);
        auto *solutions = Running->Main->findChild<QWidget *>("frmSolutions");
        ASSERT_NE(solutions, nullptr);
        NoteControls(*solutions);
    }

    // Record and element of each setting that something changed.
    std::set<std::pair<std::size_t, std::size_t>> Reached;
    // Names of the controls that changed one, by tab.
    std::map<std::int32_t, std::set<QString>> OnTab;

private:
    [[nodiscard]] QWidget *Panel() const
    {
        for (QWidget *panel : Screen->findChildren<QWidget *>()) {
            if (panel->isVisible() && panel->objectName().startsWith("picTab") &&
                panel->objectName() != "picTabContainer") {
                return panel;
            }
        }
        return nullptr;
    }

    // Notes the controls under their own names, or under another one.
    void NoteButOptions(const QWidget &part, const QString &name)
    {
        for (QWidget *control : part.findChildren<QWidget *>()) {
            if (qobject_cast<QRadioButton *>(control) == nullptr) {
                Note(name.isEmpty() ? NameOf(*control) : name, [control] { Operate(*control); });
            }
        }
    }
};

TEST_F(SettingsWalk, EverySettingIsReachedByAControlOrIsAPlaceOfAWindow)
{
    WalkTabs();
    WalkMenus();
    WalkScreens();
    for (const SettingRow &row : SettingTable) {
        const bool window = std::holds_alternative<Pixels>(row.Target) ||
                            std::holds_alternative<WindowState>(row.Target);
        const auto *number = std::get_if<Number>(&row.Target);
        const bool reserved = number != nullptr && number->Setting == &ReservedSetting;
        if (!window && !reserved && !std::holds_alternative<Version>(row.Target)) {
            EXPECT_TRUE(Reached.contains({row.Record, row.Element}))
                << row.Record << "/" << row.Element;
        }
    }
}

// The page of the help about a tab, as plain words in small letters.
QString PageOf(const HelpCollection &help, const QString &tab)
{
    const QString title = "<title>Settings: " + tab + "</title>";
    for (const QUrl &url : help.Engine->files("kelvarine", QStringList(), "html")) {
        const QString page = QString::fromUtf8(help.Engine->fileData(url));
        if (page.contains(title)) {
            return QTextDocumentFragment::fromHtml(page).toPlainText().toLower();
        }
    }
    return {};
}

// True when a page speaks of a control: when one of the words of its name is on it.
bool Tells(const QString &page, const QString &name)
{
    // Said on the page without its own words: which of the two comes first.
    if (name == "Switch Order") {
        return page.contains("first");
    }
    const QStringList words = name.toLower().split(QRegularExpression("[^a-z0-9]+"));
    return std::ranges::any_of(words, [&](const QString &word) {
        return word.size() >= 3 && page.contains(QRegularExpression("\\b" + word));
    });
}

TEST_F(SettingsWalk, EverySettingOfATabIsToldInTheHelp)
{
    const std::unique_ptr<HelpCollection> help = OpenHelp(HelpFolder());
    ASSERT_NE(help, nullptr);
    WalkTabs();
    for (std::int32_t tab = 0; tab < TabCount; ++tab) {
        if (tab == PresetGridsTab) {
            continue;
        }
        EXPECT_FALSE(OnTab[tab].empty()) << tab;
        const QString page = PageOf(*help, Screen->findChild<TabStrip *>()->TextOfTab(tab));
        EXPECT_FALSE(page.isEmpty()) << tab;
        for (const QString &name : OnTab[tab]) {
            EXPECT_TRUE(Tells(page, name)) << tab << " " << name.toStdString();
        }
    }
}

} // namespace
} // namespace kelvarine::testing
