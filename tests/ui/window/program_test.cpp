// The whole program from its start to its end, and what a second start in the same folders finds.
#include "board/look.h"
#include "board/margin.h"
#include "configure/configuration.h"
#include "game/clock.h"
#include "game/event_sound.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "grid/names.h"
#include "input/toolbar.h"
#include "print/print_settings.h"
#include "program/defaults.h"
#include "support/settings_folder.h"
#include "support/widget_events.h"
#include "support/widget_program.h"
#include "ui/configure/configure_screen.h"
#include "ui/window/board_widget.h"
#include "ui/window/program.h"
#include "ui/window/toolbar_widget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QThread>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

#include <csignal>

namespace kelvarine::testing {
namespace {

constexpr const char *FileName = "config.sdu";

// A word of a file, in its record 1..11 and element 0..9.
std::int32_t WordOfFile(const std::string &bytes, std::size_t record, std::size_t element)
{
    std::uint32_t word = 0;
    const std::size_t offset = (record - 1) * BytesInRecord + 4 * element;
    for (std::size_t byte = 4; byte-- > 0;) {
        word = word << 8 | static_cast<unsigned char>(bytes.at(offset + byte));
    }
    return static_cast<std::int32_t>(word);
}

void PutWordInFile(std::string &bytes, std::size_t record, std::size_t element, std::int32_t word)
{
    const std::size_t offset = (record - 1) * BytesInRecord + 4 * element;
    for (std::size_t byte = 0; byte < 4; ++byte) {
        bytes.at(offset + byte) = static_cast<char>(static_cast<std::uint32_t>(word) >> 8 * byte);
    }
}

// The file of the defaults with one word changed.
std::string FileWith(std::size_t record, std::size_t element, std::int32_t word)
{
    SetDefaults();
    std::string bytes = ConfigurationBytes();
    PutWordInFile(bytes, record, element, word);
    return bytes;
}

// A top-level window of a name that is on view, or null.
QWidget *ScreenOnView(const char *name)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == name && widget->isVisible()) {
            return widget;
        }
    }
    return nullptr;
}

class ProgramTest : public ::testing::Test {
protected:
    // Starts the program, lets the player play, closes the window and waits for the end.
    void Run(const std::function<void()> &play)
    {
        SetDefaults();
        QTimer watchdog;
        QObject::connect(&watchdog, &QTimer::timeout, [] {
            ADD_FAILURE() << "the program does not end";
            QApplication::exit(1);
        });
        watchdog.start(Patience);
        // The start yields to events as well; the player waits for the program's own loop.
        QTimer player;
        QObject::connect(&player, &QTimer::timeout, [&] {
            if (QThread::currentThread()->loopLevel() > 0) {
                player.stop();
                QCoreApplication::processEvents();
                play();
                Window()->close();
            }
        });
        player.start(1);
        EXPECT_EQ(RunProgram(), 0);
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            std::signal(number, SIG_DFL);
        }
    }

    // The bytes of the file of settings.
    [[nodiscard]] std::string File() const
    {
        return Folders.ReadSetting(FileName);
    }

    SettingsFolders Folders;
};

// Chooses an entry of a menu as a player does; the name is that of its command.
void Choose(const char *name)
{
    auto *action = Window()->findChild<QAction *>(name);
    ASSERT_NE(action, nullptr) << name;
    auto *menu = qobject_cast<QMenu *>(action->parent());
    if (menu == nullptr) {
        action->trigger(); // an entry of the bar itself
        return;
    }
    menu->popup(QPoint(50, 50));
    QCoreApplication::processEvents();
    Click(menu, menu->actionGeometry(action).center());
    menu->close();
    QCoreApplication::processEvents();
}

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

// ---- Start ---------------------------------------------------------------------------------

TEST_F(ProgramTest, FirstStartHasABlankGameThatIsNotModifiedAndAllDefaults)
{
    SetDefaults();
    const std::string defaults = ConfigurationBytes();
    Run([&] {
        EXPECT_EQ(Window()->windowTitle(), "Kelvarine");
        EXPECT_TRUE(Window()->isVisible());
        EXPECT_EQ(Grid, GridTable{});
        EXPECT_EQ(GameModified, False);
        EXPECT_EQ(HistoryCount, 1);
        EXPECT_EQ(ClockRunning, True);
        EXPECT_TRUE(Window()->Client->Toolbar->isVisible());
        EXPECT_EQ(OpenConfigureScreen(), nullptr);
        EXPECT_TRUE(File().empty()) << "nothing is written before the end";
    });
    const std::string file = File();
    ASSERT_EQ(file.size(), 440U);
    for (const std::size_t record : {1, 2, 3, 4, 6, 7, 8, 9, 10, 11}) {
        const std::size_t begin = (record - 1) * BytesInRecord;
        EXPECT_EQ(file.substr(begin, BytesInRecord), defaults.substr(begin, BytesInRecord))
            << "record " << record;
    }
}

TEST_F(ProgramTest, ClosingAtOnceAsksNothing)
{
    const BoxRecord boxes = AnswerBoxes([this] { Run([] {}); });
    EXPECT_TRUE(boxes.Texts.empty());
}

TEST_F(ProgramTest, FileOfAnotherVersionLeavesTheDefaultsAndIsReplaced)
{
    std::string file = FileWith(1, 1, 20);
    PutWordInFile(file, 1, 0, 2);
    Folders.PutSetting(FileName, file);
    Run([] { EXPECT_EQ(PrimaryThickness, 8); });
    EXPECT_EQ(WordOfFile(File(), 1, 0), 1);
    EXPECT_EQ(WordOfFile(File(), 1, 1), 8);
}

TEST_F(ProgramTest, WindowOnASecondScreenThatIsGoneComesBackAtTwoHundredTwips)
{
    std::string file = FileWith(5, 1, 15 * 50'000);
    PutWordInFile(file, 5, 2, -15 * 50'000);
    PutWordInFile(file, 5, 3, 15 * 500);
    PutWordInFile(file, 5, 4, 15 * 550);
    Folders.PutSetting(FileName, file);
    Run([] {
        EXPECT_EQ(Window()->pos(), QPoint(200 / 15, 200 / 15));
        EXPECT_EQ(Window()->size(), QSize(500, 550));
    });
}

TEST_F(ProgramTest, MaximisedWindowComesBackMaximised)
{
    Run([] {
        Window()->showMaximized();
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(WordOfFile(File(), 5, 0), 2);
    Run([] { EXPECT_TRUE(Window()->isMaximized()); });
}

TEST_F(ProgramTest, SolutionsScreenIsNotReopened)
{
    Folders.PutSetting(FileName, FileWith(6, 5, -1));
    Run([] {
        EXPECT_EQ(ScreenOnView("frmSolutions"), nullptr);
        EXPECT_EQ(SolutionsOpen, False);
    });
    EXPECT_EQ(WordOfFile(File(), 6, 5), 0);
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

// ---- Screens beside the board --------------------------------------------------------------

TEST_F(ProgramTest, OpenScreensComeBackAndTheBoardHasTheKeys)
{
    Run([] {
        Choose("mnuStatistics");
        Choose("mnuAlerts");
    });
    EXPECT_EQ(WordOfFile(File(), 6, 0), -1) << "open when the closing began";
    EXPECT_EQ(WordOfFile(File(), 7, 5), -1);
    Run([] {
        ASSERT_NE(OpenConfigureScreen(), nullptr);
        EXPECT_TRUE(OpenConfigureScreen()->isVisible());
        EXPECT_EQ(OpenConfigureScreen()->CurrentPanel()->objectName(), "picTabLogic");
        EXPECT_NE(ScreenOnView("frmStatistics"), nullptr);
        // As soon as the screens are on view.
        const auto hasKeys = [] {
            return OpenConfigureScreen()->windowHandle()->isExposed() &&
                   ScreenOnView("frmStatistics")->windowHandle()->isExposed() &&
                   Window()->Client->Board->hasFocus();
        };
        EXPECT_TRUE(QTest::qWaitFor(hasKeys, Patience));
    });
}

TEST_F(ProgramTest, ScreensClosedBeforeTheEndStayClosed)
{
    Run([] {
        Choose("mnuStatistics");
        Choose("mnuConfigure");
        OpenConfigureScreen()->close();
        ScreenOnView("frmStatistics")->close();
    });
    EXPECT_EQ(WordOfFile(File(), 6, 0), 0);
    EXPECT_EQ(WordOfFile(File(), 7, 5), 0);
    Run([] {
        EXPECT_EQ(OpenConfigureScreen(), nullptr);
        EXPECT_EQ(ScreenOnView("frmStatistics"), nullptr);
    });
}

// ---- End -----------------------------------------------------------------------------------

TEST_F(ProgramTest, CancelledClosingWritesNothing)
{
    Run([this] {
        WordAt({4, 7}) |= SelectedBit;
        QTest::keyClick(Window()->Client->Board, Qt::Key_6);
        const BoxRecord boxes = AnswerBoxes([] { Window()->close(); }, {QMessageBox::Cancel});
        EXPECT_EQ(boxes.Texts, std::vector<std::string>{"Would you like to save this game first?"});
        EXPECT_TRUE(Window()->isVisible());
        EXPECT_TRUE(File().empty());
        GameModified = False;
    });
    EXPECT_EQ(File().size(), 440U);
}

TEST_F(ProgramTest, PlaceOfTheClosingCounts)
{
    QSize size;
    Run([&] {
        MainPlace = {}; // as if no event had told of the window's place
        size = Window()->size();
    });
    EXPECT_EQ(WordOfFile(File(), 5, 3), 15 * size.width());
    EXPECT_EQ(WordOfFile(File(), 5, 4), 15 * size.height());
    EXPECT_LE(size.height(), QGuiApplication::primaryScreen()->availableSize().height());
}

TEST_F(ProgramTest, SettingsAreWrittenOnce)
{
    Run([this] {
        QObject::connect(qApp, &QApplication::lastWindowClosed, Window(), [this] {
            EXPECT_EQ(File().size(), 440U);
            std::filesystem::remove(Folders.Settings() / FileName);
        });
    });
    EXPECT_TRUE(File().empty()) << "nothing writes after the window has gone";
}

} // namespace
} // namespace kelvarine::testing
