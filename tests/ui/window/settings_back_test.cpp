// What the player has set, by hand and in every tab, is back after a restart.
#include "board/look.h"
#include "board/margin.h"
#include "configure/configuration.h"
#include "game/event_sound.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "grid/cell_word.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "print/print_settings.h"
#include "support/settings_folder.h"
#include "support/widget_events.h"
#include "support/widget_program.h"
#include "ui/configure/configure_screen.h"
#include "ui/window/board_widget.h"
#include "ui/window/program_fixture.h"
#include "ui/window/toolbar_widget.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QtTest>
#include <gtest/gtest.h>

#include <filesystem>

namespace kelvarine::testing {
namespace {

// ---- The player's hand on the configuration screen -----------------------------------------

// A control of the open screen. Fails the test when it is not on view.
template <typename Control = QWidget>
Control *On(const char *name)
{
    auto *control = OpenConfigureScreen()->findChild<Control *>(name);
    EXPECT_NE(control, nullptr) << name;
    EXPECT_TRUE(control != nullptr && control->isVisible()) << name;
    return control;
}

void ShowTabByKey(Qt::Key letter)
{
    // Without a window manager a menu that closes leaves no window active.
    OpenConfigureScreen()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(OpenConfigureScreen(), Patience));
    QTest::keyClick(OpenConfigureScreen(), letter, Qt::AltModifier);
}

void ClickOn(const char *name)
{
    auto *control = On<>(name);
    QPoint place = control->rect().center();
    if (control->inherits("QCheckBox") || control->inherits("QRadioButton")) {
        place.setX(8);
    }
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, place);
}

void TypeInto(const char *name, const char *text)
{
    auto *box = On<QLineEdit>(name);
    QTest::mouseClick(box, Qt::LeftButton);
    box->selectAll();
    QTest::keyClicks(box, text);
}

// Moves a bar by an arrow key, so many times.
void Nudge(const char *name, int steps)
{
    auto *bar = On<QScrollBar>(name);
    for (int k = 0; k < steps; ++k) {
        QTest::keyClick(bar, Qt::Key_Right);
    }
}

void ChooseLevel(const char *label, std::initializer_list<Qt::Key> keys)
{
    QTest::mouseClick(On<QLabel>(label), Qt::RightButton);
    auto *menu = OpenConfigureScreen()->findChild<QMenu *>("mnuRatings");
    ASSERT_TRUE(menu->isVisible());
    for (const Qt::Key key : keys) {
        QTest::keyClick(menu, key);
    }
}

void ChangeNewGames()
{
    ShowTabByKey(Qt::Key_N);
    ClickOn("chkDifficulty1");
    ClickOn("chkDifficulty3");
    TypeInto("txtMinNumGivens", "22");
    TypeInto("txtMaxNumGivens", "33");
    ClickOn("optRevealPattern7");
    ClickOn("chkFillPMs");
    ClickOn("chkApplySolveLogic");
}

void ExpectNewGames()
{
    EXPECT_EQ(DifficultySelection, BitTable[3]);
    EXPECT_EQ(MinGivens, 22);
    EXPECT_EQ(MaxGivens, 33);
    EXPECT_EQ(RevealPattern, 7);
    EXPECT_EQ(FillOnStart, True);
    EXPECT_EQ(SolveOnStart, True);
}

void ChangeLogic()
{
    ShowTabByKey(Qt::Key_L);
    ClickOn("chkUseLogic3");
    ClickOn("chkShowConflicts4");
    ClickOn("chkIncludeSingles");
    TypeInto("txtMaxRPLinks", "12");
    TypeInto("txtMaxXYLinks", "13");
    TypeInto("txtMaxSinglesLinks", "0");
    ChooseLevel("lblDifficulty8", {Qt::Key_Down, Qt::Key_Return}); // the first entry, easy
    ChooseLevel("lblDifficulty12", {Qt::Key_Up, Qt::Key_Return});  // the last one, required
}

void ExpectLogic()
{
    EXPECT_EQ(SolveMask, BitTable[3]);
    EXPECT_EQ(AlertMask, BitTable[4]);
    EXPECT_EQ(IncludeSingles, True);
    EXPECT_EQ(MaxRPLinks, 12);
    EXPECT_EQ(MaxXYLinks, 13);
    EXPECT_EQ(MaxSinglesLinks, 0);
    EXPECT_EQ(LevelTable[1] & BitTable[8], BitTable[8]);
    EXPECT_EQ(LevelTable[4] & BitTable[8], 0U);
    EXPECT_EQ(LevelTable[6], BitTable[12]);
}

// The preset comes first, as it sets what the Grid and the Colors tab change after it.
void ChangeLook()
{
    ShowTabByKey(Qt::Key_E);
    ClickOn("picPresetGrid4");
    ShowTabByKey(Qt::Key_G);
    Nudge("hsbPrimGridThick", 2);
    Nudge("hsbSecGridThick", 3);
    Nudge("hsbThicknessExt3dBorder", 4);
    Nudge("hsbExtMarginThickness", 5);
    ClickOn("chk3DSecGrid");
    ClickOn("chk3DUnknownCells");
    ClickOn("optPencilmarkGrid0");
    ClickOn("chkPencilmarkGridLines");
    ShowTabByKey(Qt::Key_C);
    ClickOn("tile5"); // of the colour that is chosen at first
    ClickOn("optTableColors11");
    Nudge("hsbColor0", 6);
}

void ExpectLook()
{
    EXPECT_EQ(PrimaryThickness, 20);
    EXPECT_EQ(SecondaryThickness, 3);
    EXPECT_EQ(BorderThickness, 4);
    EXPECT_EQ(MarginThickness, 35);
    EXPECT_EQ(PrimaryGrid3D, True);
    EXPECT_EQ(SecondaryGrid3D, False);
    EXPECT_EQ(GivenCells3D, True);
    EXPECT_EQ(UnknownCells3D, False);
    EXPECT_EQ(PencilmarkLayout, 0);
    EXPECT_EQ(PencilmarkLines, True);
    EXPECT_EQ(GivenTexture, 5);
    EXPECT_EQ(UnknownTexture, 9);
    EXPECT_EQ(GridTexture, 8);
    EXPECT_EQ(ColourTable[5], 0xFF5555U);
    EXPECT_EQ(ColourTable[11], 0x096ECCU);
    EXPECT_EQ(CoordinateTextColour, 0xFFFFFFU);
}

void ChangeNames()
{
    ShowTabByKey(Qt::Key_O);
    ClickOn("optColumnFormat3");
    ClickOn("optRowFormat4");
    ClickOn("optCoordSeparator2");
    ClickOn("optCoordBrackets1");
    ClickOn("cmdCoordFirst");
}

void ExpectNames()
{
    EXPECT_EQ(CellName(2, 7), "(r7-C2)");
}

void ChangeSoundAndPrint()
{
    ShowTabByKey(Qt::Key_S);
    ClickOn("chkDisableAllSound");
    QTest::keyClick(On<QComboBox>("cmbSoundAlert"), Qt::Key_Up);
    QTest::keyClick(On<QComboBox>("cmbSoundWin"), Qt::Key_Home);
    ShowTabByKey(Qt::Key_P);
    ClickOn("chkPrintCenter");
    TypeInto("txtPrintLeft", "1"); // and the box keeps the focus to the end
}

void ExpectSoundAndPrint()
{
    EXPECT_EQ(SoundDisabled, True);
    EXPECT_EQ(AlertSound, 1);
    EXPECT_EQ(WinSound, 0);
    EXPECT_EQ(PrintCentre, False);
    EXPECT_EQ(PrintLeft, 1.0);
}

// ---- Settings across a restart -------------------------------------------------------------

TEST_F(ProgramTest, SettingsChangedByHandAreBackAfterARestart)
{
    for (const char *name : {"bell.alr", "ring 2.alr", "song.win"}) {
        Folders.PutData(name, "");
    }
    std::string atTheEnd;
    Run([&] {
        EXPECT_EQ(AlertSound, 2) << "the second ring";
        EXPECT_EQ(WinSound, 1);
        Window()->resize(600, 700); // the screen of the test is lower than the window at first
        Choose("mnuConfigure");
        ChangeNewGames();
        ChangeLogic();
        ChangeLook();
        ChangeNames();
        ChangeSoundAndPrint();
        QCoreApplication::processEvents();
        EXPECT_EQ(CurrentTab, PrintTab);
        atTheEnd = ConfigurationBytes();
    });
    EXPECT_EQ(File(), atTheEnd);
    Run([&] {
        ExpectNewGames();
        ExpectLogic();
        ExpectLook();
        ExpectNames();
        ExpectSoundAndPrint();
        EXPECT_EQ(CurrentTab, PrintTab);
        EXPECT_EQ(OpenConfigureScreen()->HelpContext(), 206);
    });
    EXPECT_EQ(File(), atTheEnd) << "a run that changes nothing leaves the file as it is";
}

TEST_F(ProgramTest, ViewCommandsAreBackAfterARestart)
{
    Run([] {
        Choose("mnuViewToolTips");
        Choose("mnuViewToolBar");
        Choose("mnuViewCoordinates");
    });
    Run([] {
        EXPECT_FALSE(Window()->Client->Toolbar->isVisible());
        EXPECT_EQ(ToolTipsVisible, False);
        EXPECT_EQ(CoordinatesVisible, False);
        EXPECT_EQ(ToolButtonOf(*Window(), 3)->toolTip(), "");
        const auto entry = [](const char *name) {
            return Window()->findChild<QAction *>(name);
        };
        EXPECT_FALSE(entry("mnuViewToolBar")->isChecked());
        EXPECT_FALSE(entry("mnuViewToolTips")->isEnabled());
        EXPECT_FALSE(entry("mnuViewCoordinates")->isChecked());
        Choose("mnuViewToolBar");
        Choose("mnuViewToolTips");
    });
    Run([] {
        EXPECT_TRUE(Window()->Client->Toolbar->isVisible());
        EXPECT_NE(ToolButtonOf(*Window(), 3)->toolTip(), "");
        EXPECT_EQ(CoordinatesVisible, False);
    });
}

TEST_F(ProgramTest, SoundThatHasGoneLeavesTheChoiceOfTheStart)
{
    for (const char *name : {"a.alr", "b.alr", "c.alr"}) {
        Folders.PutData(name, "");
    }
    Run([] {
        EXPECT_EQ(AlertSound, 1);
        CurrentTab = SoundTab;
        Choose("mnuConfigure");
        QTest::keyClick(On<QComboBox>("cmbSoundAlert"), Qt::Key_End);
        EXPECT_EQ(AlertSound, 3);
    });
    Run([] { EXPECT_EQ(AlertSound, 3); });
    std::filesystem::remove(Folders.Data() / "c.alr");
    Run([] { EXPECT_EQ(AlertSound, 1); });
}

TEST_F(ProgramTest, WindowComesBackWhereItStood)
{
    QRect place;
    Run([&] {
        Window()->resize(510, 560);
        Window()->move(120, 40);
        QCoreApplication::processEvents();
        place = QRect(Window()->pos(), Window()->size());
    });
    Run([&] { EXPECT_EQ(QRect(Window()->pos(), Window()->size()), place); });
}

} // namespace
} // namespace kelvarine::testing
