#include "commands/print_run.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "print/print_settings.h"
#include "support/widget_configure.h"
#include "ui/configure/print_tab.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

const std::vector<std::string> StopQuestion{"Would you like to stop searching?"};

// A batch of games is being made and printed, as far as the screen can see.
class BatchAtWork : public ConfigureTest {
protected:
    void SetUp() override
    {
        ConfigureTest::SetUp();
        PrintMode = PrintNewGames;
        Open(PrintTab);
        PrintRunning = True;
        SearchActive = True;
        SearchKind = SearchingGame;
        StopRequested = False;
        RefreshPrintPreview();
    }

    void TearDown() override
    {
        PrintRunning = False;
        SearchActive = False;
        SearchKind = NotStoppable;
        ConfigureTest::TearDown();
    }
};

TEST_F(BatchAtWork, EnterAsksWhetherToStop)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        SearchActive = True;
        const BoxRecord boxes = AnswerBoxes(
            [&] { QTest::keyClick(Find<QLineEdit>("txtNumPages"), key); }, {QMessageBox::Yes});
        EXPECT_EQ(boxes.Texts, StopQuestion) << key;
        EXPECT_EQ(SearchActive, False) << key;
    }
}

TEST_F(BatchAtWork, OtherKeysAreNotTaken)
{
    const std::int32_t pages = PrintPages;
    QTest::keyClicks(Find<QLineEdit>("txtNumPages"), "7");
    QTest::keyClick(Screen, Qt::Key_Escape);
    EXPECT_EQ(PrintPages, pages);
    EXPECT_TRUE(Screen->isVisible());
    EXPECT_EQ(SearchActive, True);
}

TEST_F(BatchAtWork, ClosingAsksWhetherToStopAndWaitsForIt)
{
    BoxRecord boxes = AnswerBoxes([&] { Screen->close(); }, {QMessageBox::No});
    EXPECT_EQ(boxes.Texts, StopQuestion);
    EXPECT_TRUE(Screen->isVisible());
    EXPECT_EQ(OpenConfigureScreen(), Screen);
    boxes = AnswerBoxes([&] { EXPECT_TRUE(Screen->close()); }, {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts, StopQuestion);
    EXPECT_EQ(SearchActive, False);
    EXPECT_EQ(OpenConfigureScreen(), nullptr);
}

TEST_F(BatchAtWork, ClosingDoesNotAskAgainWhenItIsToStop)
{
    SearchActive = False;
    StopRequested = True;
    const BoxRecord boxes = AnswerBoxes([&] { EXPECT_TRUE(Screen->close()); });
    EXPECT_TRUE(boxes.Texts.empty());
}

TEST_F(BatchAtWork, NothingIsAskedWhenOnlyTheGameInHandIsRated)
{
    SearchKind = NotStoppable;
    const BoxRecord boxes = AnswerBoxes([&] {
        QTest::keyClick(Screen, Qt::Key_Return);
        EXPECT_TRUE(Screen->close());
    });
    EXPECT_TRUE(boxes.Texts.empty());
    EXPECT_EQ(SearchActive, True);
}

TEST_F(BatchAtWork, NamesForToolsAreWhatIsToBeRead)
{
    auto *print = Find<QPushButton>("cmdPrint");
    EXPECT_EQ(print->text(), "Stop");
    EXPECT_EQ(print->accessibleName(), "Stop");
    PrintRunning = False;
    RefreshPrintPreview();
    EXPECT_EQ(print->accessibleName(), "Print");
    for (const char *name : {"framePrintPlace", "framePrintBatch"}) {
        const auto *frame = Find<QGroupBox>(name);
        EXPECT_EQ(frame->accessibleName(), frame->title());
    }
    EXPECT_EQ(Find<QLineEdit>("txtPrintLeft")->accessibleName(), "Left, inches");
}

} // namespace
} // namespace kelvarine::testing
