// The whole program from its start to its end, and where its screens stand at the next start.
#include "board/look.h"
#include "configure/configuration.h"
#include "game/clock.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "program/defaults.h"
#include "support/file_words.h"
#include "support/settings_folder.h"
#include "support/widget_program.h"
#include "ui/configure/configure_screen.h"
#include "ui/window/board_widget.h"
#include "ui/window/program_fixture.h"
#include "ui/window/toolbar_widget.h"

#include <QApplication>
#include <QScreen>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// A word of a file, in its record 1..11 and element 0..9, as the number that it stands for.
std::int32_t NumberOf(const std::string &bytes, std::size_t record, std::size_t element)
{
    return static_cast<std::int32_t>(WordOf(bytes, record, element));
}

// The file of the defaults with one word changed.
std::string FileWith(std::size_t record, std::size_t element, std::int32_t word)
{
    SetDefaults();
    std::string bytes = ConfigurationBytes();
    PutWord(bytes, record, element, static_cast<std::uint32_t>(word));
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
    PutWord(file, 1, 0, 2);
    Folders.PutSetting(FileName, file);
    Run([] { EXPECT_EQ(PrimaryThickness, 8); });
    EXPECT_EQ(NumberOf(File(), 1, 0), 1);
    EXPECT_EQ(NumberOf(File(), 1, 1), 8);
}

TEST_F(ProgramTest, WindowOnASecondScreenThatIsGoneComesBackAtTwoHundredTwips)
{
    std::string file = FileWith(5, 1, 15 * 50'000);
    PutWord(file, 5, 2, static_cast<std::uint32_t>(-15 * 50'000));
    PutWord(file, 5, 3, 15 * 500);
    PutWord(file, 5, 4, 15 * 550);
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
    EXPECT_EQ(NumberOf(File(), 5, 0), 2);
    Run([] { EXPECT_TRUE(Window()->isMaximized()); });
}

TEST_F(ProgramTest, SolutionsScreenIsNotReopened)
{
    Folders.PutSetting(FileName, FileWith(6, 5, -1));
    Run([] {
        EXPECT_EQ(ScreenOnView("frmSolutions"), nullptr);
        EXPECT_EQ(SolutionsOpen, False);
    });
    EXPECT_EQ(NumberOf(File(), 6, 5), 0);
}

// ---- Screens beside the board --------------------------------------------------------------

TEST_F(ProgramTest, OpenScreensComeBackAndTheBoardHasTheKeys)
{
    Run([] {
        Choose("mnuStatistics");
        Choose("mnuAlerts");
    });
    EXPECT_EQ(NumberOf(File(), 6, 0), -1) << "open when the closing began";
    EXPECT_EQ(NumberOf(File(), 7, 5), -1);
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
    EXPECT_EQ(NumberOf(File(), 6, 0), 0);
    EXPECT_EQ(NumberOf(File(), 7, 5), 0);
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
    EXPECT_EQ(NumberOf(File(), 5, 3), 15 * size.width());
    EXPECT_EQ(NumberOf(File(), 5, 4), 15 * size.height());
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
