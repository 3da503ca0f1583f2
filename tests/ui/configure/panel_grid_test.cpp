// How the groups of the settings stand on their panels: on the same lines everywhere.
#include "game/screens.h"
#include "support/widget_configure.h"

#include <QLabel>

namespace kelvarine::testing {
namespace {

class PanelGrid : public ConfigureTest {
protected:
    // What the panel on view shows, as far as it reaches.
    [[nodiscard]] QRect Contents() const
    {
        QRect contents;
        for (const QObject *child : Screen->CurrentPanel()->children()) {
            const auto *control = qobject_cast<const QWidget *>(child);
            if (control != nullptr && control->isVisible()) {
                contents |= control->geometry();
            }
        }
        return contents;
    }
};

TEST_F(PanelGrid, EveryPanelBeginsAtTheSameEdges)
{
    Open(NewGamesTab);
    const QRect first = Contents();
    for (std::int32_t tab = NewGamesTab; tab <= CoordinatesTab; ++tab) {
        if (tab == PresetGridsTab) {
            continue; // pictures in the middle
        }
        Open(tab);
        EXPECT_NEAR(Contents().left(), first.left(), 2) << tab;
        EXPECT_NEAR(Contents().right(), first.right(), 2) << tab;
        EXPECT_NEAR(Contents().top(), first.top(), 2) << tab;
    }
}

TEST_F(PanelGrid, NoPanelIsMostlyEmptyAndNoneOverflows)
{
    for (std::int32_t tab = NewGamesTab; tab <= CoordinatesTab; ++tab) {
        Open(tab);
        EXPECT_FALSE(Find<QScrollBar>("vsbTabContainer")->isVisible()) << tab;
        EXPECT_GE(Contents().bottom(), 475 * 2 / 5) << tab;
    }
}

TEST_F(PanelGrid, SoundsOfBothEventsStandInLine)
{
    Open(SoundTab);
    const auto placeOf = [&](const char *name) {
        const auto *control = Find<QWidget>(name);
        return QRect(control->mapTo(Screen, QPoint()), control->size());
    };
    const QRect alert = placeOf("cmbSoundAlert");
    const QRect win = placeOf("cmbSoundWin");
    EXPECT_EQ(alert.left(), win.left());
    EXPECT_EQ(alert.width(), win.width());
    for (const char *bar : {"hsbVolume2", "hsbVolume3"}) {
        EXPECT_EQ(placeOf(bar).left(), alert.left()) << bar;
        EXPECT_EQ(placeOf(bar).width(), alert.width()) << bar;
    }
    int volumes = 0;
    for (const QLabel *label : Find<QWidget>("picTabSound")->findChildren<QLabel *>()) {
        volumes += label->isVisible() && label->text() == "Volume" ? 1 : 0;
    }
    EXPECT_EQ(volumes, 2) << "each bar says what it is";
}

} // namespace
} // namespace kelvarine::testing
