#include "board/look.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/grid.h"
#include "print/print_settings.h"
#include "support/widget_configure.h"
#include "ui/configure/sound_tab.h"
#include "ui/configure/tab_strip.h"
#include "ui/controls/colour_swatches.h"
#include "ui/controls/focus_frame.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QWheelEvent>

namespace kelvarine::testing {
namespace {

// What players expect of a screen of settings on any desktop.
class ScreenHabits : public ConfigureTest {
protected:
    void TurnWheelOver(QWidget *widget, int notches)
    {
        const QPointF place = widget->rect().center();
        QWheelEvent turn(place, widget->mapToGlobal(place), {}, {0, notches * 120}, Qt::NoButton,
                         {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &turn);
    }

    // Names of the controls that Tab leads to on the panel of a tab, each once.
    std::set<std::string> Stops(std::int32_t tab)
    {
        Open(tab);
        std::set<std::string> stops;
        for (int step = 0; step < 200; ++step) {
            if (const QWidget *control = Screen->focusWidget()) {
                stops.insert(control->objectName().toStdString());
            }
            QTest::keyClick(Screen->focusWidget() != nullptr ? Screen->focusWidget() : Screen,
                            Qt::Key_Tab);
        }
        return stops;
    }
};

TEST_F(ScreenHabits, TabInFrontCarriesAMark)
{
    Open(GridTab);
    const auto *strip = Screen->findChild<TabStrip *>();
    const QImage picture = Screen->grab().toImage();
    const QColor mark = Screen->palette().color(QPalette::Highlight);
    for (int tab = 0; tab < TabCount; ++tab) {
        const QRect place = strip->PlaceOfTab(tab);
        EXPECT_EQ(picture.pixelColor(place.center().x(), place.top() + 1) == mark, tab == GridTab)
            << tab;
    }
}

TEST_F(ScreenHabits, FocusIsFramedForThoseWhoCameByKeys)
{
    Open(ColoursTab);
    auto *bar = Find<QWidget>("hsbColor1");
    bar->setFocus(Qt::MouseFocusReason);
    EXPECT_TRUE(bar->hasFocus());
    EXPECT_FALSE(ShowsFocus(*bar));
    QTest::keyClick(bar, Qt::Key_Right);
    EXPECT_TRUE(ShowsFocus(*bar));
    QTest::keyClick(bar, Qt::Key_Tab);
    EXPECT_FALSE(ShowsFocus(*bar));
    EXPECT_TRUE(ShowsFocus(*Find<QWidget>("hsbColor2")));
}

TEST_F(ScreenHabits, TabLeadsToTheChosenOptionOfAGroup)
{
    RevealPattern = 4;
    PencilmarkLayout = 1;
    const std::set<std::string> newGames = Stops(NewGamesTab);
    EXPECT_TRUE(newGames.contains("optRevealPattern4"));
    EXPECT_FALSE(newGames.contains("optRevealPattern0"));
    EXPECT_TRUE(Stops(GridTab).contains("optPencilmarkGrid1"));
    EXPECT_FALSE(Stops(GridTab).contains("optPencilmarkGrid0"));
    Open(NewGamesTab);
    Click("optRevealPattern7");
    EXPECT_EQ(RevealPattern, 7);
    EXPECT_TRUE(Stops(NewGamesTab).contains("optRevealPattern7"));
    EXPECT_FALSE(Stops(NewGamesTab).contains("optRevealPattern4"));
    EXPECT_EQ(RevealPattern, 7) << "walking changes nothing";
}

TEST_F(ScreenHabits, WheelMovesAPanelThatDoesNotFit)
{
    Open(GridTab);
    auto *bar = Find<QScrollBar>("vsbTabContainer");
    auto *thickness = Find<QScrollBar>("hsbPrimGridThick");
    Screen->resize(Screen->width(), 300);
    ASSERT_TRUE(bar->isVisible());
    const int before = thickness->value();
    TurnWheelOver(thickness, -1);
    EXPECT_EQ(bar->value(), 50);
    EXPECT_EQ(thickness->value(), before) << "nobody meant this bar";
    TurnWheelOver(Find<QWidget>("picTabGrid"), -1);
    EXPECT_EQ(bar->value(), 100);
    EXPECT_EQ(Find<QWidget>("picTabGrid")->y(), -100);
    TurnWheelOver(Find<QWidget>("picTabGrid"), 5);
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(ScreenHabits, LevelsOpenByEitherButtonAndByKeys)
{
    Open(LogicTab);
    auto *label = Find<QLabel>("lblDifficulty3");
    auto *menu = Find<QMenu>("mnuRatings");
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        QTest::mouseClick(label, button);
        EXPECT_TRUE(menu->isVisible());
        menu->close();
    }
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Menu}) {
        QTest::keyClick(label, key);
        EXPECT_TRUE(menu->isVisible()) << key;
        menu->close();
    }
}

TEST_F(ScreenHabits, SwatchesAndTilesAreOneStopEachWithArrows)
{
    const std::set<std::string> stops = Stops(ColoursTab);
    EXPECT_TRUE(stops.contains("swatch0"));
    EXPECT_FALSE(stops.contains("swatch1"));
    EXPECT_TRUE(stops.contains("tile0"));
    EXPECT_FALSE(stops.contains("tile1"));
    auto *first = Find<QWidget>("swatch0");
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Up);
    EXPECT_EQ(Screen->focusWidget(), first);
    QTest::keyClick(first, Qt::Key_Down);
    EXPECT_EQ(Screen->focusWidget()->objectName().toStdString(), "swatch1");
    QTest::keyClick(Screen->focusWidget(), Qt::Key_End);
    EXPECT_EQ(Screen->focusWidget()->objectName().toStdString(), "swatch11");
    Find<QWidget>("tile0")->setFocus();
    QTest::keyClick(Screen->focusWidget(), Qt::Key_Down);
    QTest::keyClick(Screen->focusWidget(), Qt::Key_Right);
    EXPECT_EQ(Screen->focusWidget()->objectName().toStdString(), "tile4");
}

TEST_F(ScreenHabits, TextureInForceIsMarkedAndOthersDimmed)
{
    GivenTexture = 5;
    Open(ColoursTab);
    const auto marked = [&] {
        std::vector<int> numbers;
        for (int k = 0; k < 12; ++k) {
            const auto *tile = Find<TextureTile>(Name("tile", k));
            if (tile->IsInForce()) {
                numbers.push_back(k);
            }
        }
        return numbers;
    };
    EXPECT_EQ(marked(), std::vector<int>{5});
    QTest::mousePress(Find<QWidget>("tile7"), Qt::LeftButton);
    EXPECT_EQ(marked(), std::vector<int>{7});
    EXPECT_TRUE(Find<QWidget>("tile0")->isEnabled());
    Click("optTableColors11");
    EXPECT_EQ(marked(), std::vector<int>{});
    EXPECT_FALSE(Find<QWidget>("tile0")->isEnabled());
    Click("optTableColors0");
    EXPECT_EQ(marked(), std::vector<int>{7});
}

TEST_F(ScreenHabits, EnterOnThePrintTabPrints)
{
    PrintMode = PrintNewGames;
    PrintPages = 0;
    Open(PrintTab);
    const BoxRecord boxes =
        AnswerBoxes([&] { QTest::keyClick(Find<QWidget>("chkIncludeSolutions"), Qt::Key_Return); },
                    {QMessageBox::Ok});
    EXPECT_EQ(boxes.Texts,
              std::vector<std::string>{"Please enter the number of pages you'd like to print."});
    Open(GridTab);
    EXPECT_TRUE(AnswerBoxes([&] {
                    QTest::keyClick(Find<QWidget>("chk3DPrimGrid"), Qt::Key_Return);
                }).Texts.empty());
}

TEST_F(ScreenHabits, EveryMeasureHasItsUnit)
{
    Open(PrintTab);
    int units = 0;
    for (const QLabel *label : Find<QWidget>("framePrintPlace")->findChildren<QLabel *>()) {
        units += label->text() == "in" ? 1 : 0;
    }
    EXPECT_EQ(units, 4);
}

TEST_F(ScreenHabits, EveryControlHasATip)
{
    for (std::int32_t tab = NewGamesTab; tab <= CoordinatesTab; ++tab) {
        for (const std::string &name : Stops(tab)) {
            if (name.empty() || name == "vsbTabContainer") {
                continue; // the strip and the bar of the panel say themselves what they are
            }
            EXPECT_FALSE(Find<QWidget>(name.c_str())->toolTip().isEmpty()) << name;
        }
    }
}

TEST_F(ScreenHabits, VolumeThatCannotBeSetSaysWhy)
{
    Open(SoundTab);
    ShowVolumes(*Screen, false);
    const auto *bar = Find<QWidget>("hsbVolume2");
    EXPECT_FALSE(bar->isEnabled());
    EXPECT_EQ(bar->toolTip().toStdString(),
              "No sound device was found, so there is no volume to set");
    EXPECT_EQ(bar->accessibleDescription(), bar->toolTip());
    ShowVolumes(*Screen, true);
    EXPECT_TRUE(bar->isEnabled());
    EXPECT_EQ(bar->accessibleDescription().toStdString(), "");
}

} // namespace
} // namespace kelvarine::testing
