#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/solutions.h"
#include "game/undo.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "outside/screens.h"
#include "outside/whole_file.h"
#include "support/driver_games.h"
#include "support/positions.h"
#include "support/widget_modal.h"
#include "support/widget_pace.h"
#include "support/widget_program.h"
#include "ui/window/board_widget.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

namespace {

// A position with as many solutions as are listed, and more.
constexpr std::string_view ManySolutions = R"(
    .........
    .........
    .........
    .........
    .........
    .........
    .........
    .........
    .......12
)";

class SolutionsScreens : public ::testing::Test {
protected:
    [[nodiscard]] QWidget *Screen() const
    {
        return program.Main->findChild<QWidget *>("frmSolutions");
    }

    [[nodiscard]] QPlainTextEdit *Box() const
    {
        return Screen()->findChild<QPlainTextEdit *>("txtSolutions");
    }

    [[nodiscard]] std::string Count() const
    {
        return Screen()->findChild<QLabel *>("lblNumSolutions")->text().toStdString();
    }

    [[nodiscard]] QRadioButton *Format(int index) const
    {
        return Screen()->findChild<QRadioButton *>(QString("optSolutionsFormat%1").arg(index));
    }

    static void List(std::string_view game)
    {
        SetGame(game);
        mnuShowSolution();
    }

    // Lists many solutions, and acts once the listing is under way.
    static BoxRecord ListAndAct(const std::function<void()> &action,
                                std::vector<QMessageBox::StandardButton> answers)
    {
        SetGame(ManySolutions);
        const TurnAtEveryYield turns;
        bool acted = false;
        QTimer start;
        QObject::connect(&start, &QTimer::timeout, &start, [&] {
            if (SearchActive != False) {
                start.stop();
                acted = true;
                action();
            }
        });
        start.start(0);
        BoxRecord boxes = AnswerBoxes(mnuShowSolution, std::move(answers));
        EXPECT_TRUE(acted);
        return boxes;
    }

    Program program;
};

const std::vector<std::string> StopQuestion{"Would you like to stop searching?"};

} // namespace

TEST_F(SolutionsScreens, ShowsTheSolutionInAFrame)
{
    List(PlainGame);
    ASSERT_NE(Screen(), nullptr);
    EXPECT_TRUE(Screen()->isVisible());
    EXPECT_FALSE(Screen()->isModal());
    EXPECT_EQ(Count(), "1 solution");
    EXPECT_TRUE(Box()->toPlainText().startsWith("+-------+-------+-------+\n"
                                                "| 9 8 2 | 3 1 6 | 7 4 5 |\n"));
    EXPECT_EQ(Box()->toPlainText().count('\n'), 14);
    EXPECT_TRUE(Box()->isReadOnly());
    EXPECT_EQ(Box()->font().family(), "Courier New");
    EXPECT_TRUE(Format(1)->isChecked());
}

TEST_F(SolutionsScreens, PositionWithoutSolutionsHasAnEmptyText)
{
    List(PlainGame);
    List(NoSolution);
    EXPECT_EQ(Count(), "No solutions");
    EXPECT_EQ(Box()->toPlainText(), "");
}

TEST_F(SolutionsScreens, TwentyFiveAreListedAndMoreAreTold)
{
    List(TwentyFiveSolutions);
    EXPECT_EQ(Count(), "25 solutions");
    EXPECT_EQ(Box()->toPlainText().count('\n'), 25 * 14);
    List(ThirtySolutions);
    EXPECT_EQ(Count(), "More than 25 solutions");
    EXPECT_EQ(Box()->toPlainText().count('\n'), 25 * 14);
}

TEST_F(SolutionsScreens, ClickOnTheFormatChangesIt)
{
    List(PlainGame);
    EXPECT_EQ(Format(0)->text(), " 1-81");
    EXPECT_EQ(Format(1)->text(), " 9 x 9");
    QTest::mouseClick(Format(0), Qt::LeftButton);
    EXPECT_EQ(SolutionsFormat, 0);
    EXPECT_EQ(Box()->toPlainText().toStdString(), std::string(PlainSolution) + "\n");
    QTest::mouseClick(Format(1), Qt::LeftButton);
    EXPECT_EQ(SolutionsFormat, 1);
    EXPECT_EQ(Box()->toPlainText().count('\n'), 14);
}

TEST_F(SolutionsScreens, ArrowKeyChangesTheFormatToo)
{
    List(PlainGame);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return QApplication::activeWindow() == Screen(); }, Patience));
    Format(1)->setFocus();
    ASSERT_TRUE(Format(1)->hasFocus());
    QTest::keyClick(Format(1), Qt::Key_Left);
    EXPECT_EQ(SolutionsFormat, 0);
    EXPECT_TRUE(Format(0)->isChecked());
}

TEST_F(SolutionsScreens, FormatWithoutAListingShowsTheCountAtHand)
{
    ShowSolutionsScreen();
    SolutionCount = 2;
    QTest::mouseClick(Format(0), Qt::LeftButton);
    EXPECT_EQ(Count(), "2 solutions");
    EXPECT_EQ(Box()->toPlainText(), "");
}

TEST_F(SolutionsScreens, StoredFormatIsSelectedWhenTheScreenOpens)
{
    SolutionsFormat = 0;
    List(PlainGame);
    EXPECT_TRUE(Format(0)->isChecked());
    EXPECT_EQ(Box()->toPlainText().size(), 82);
}

TEST_F(SolutionsScreens, CountGoesUpWhileItLists)
{
    std::vector<std::string> counts;
    ShowSolutionsScreen();
    auto *label = Screen()->findChild<QLabel *>("lblNumSolutions");
    SetGame(ThreeSolutions);
    for (const std::int32_t count : {1, 2}) {
        SolutionCount = count;
        ShowSolutionCount();
        counts.push_back(label->text().toStdString());
    }
    EXPECT_EQ(counts, (std::vector<std::string>{"1 solution", "2 solutions"}));
    EXPECT_GE(label->width(), label->sizeHint().width()) << "cut off";
}

// ---- Stopping ------------------------------------------------------------------------------

TEST_F(SolutionsScreens, KeyInTheTextStopsTheListing)
{
    const BoxRecord boxes =
        ListAndAct([&] { QTest::keyClick(Box(), Qt::Key_A); }, {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts, StopQuestion);
    EXPECT_EQ(SearchActive, False);
    EXPECT_EQ(NumbersOf(Grid).substr(79), "12") << "the position is back";
}

TEST_F(SolutionsScreens, KeyOnTheScreenStopsTheListingAndEscapeIsSuchAKey)
{
    const BoxRecord boxes =
        ListAndAct([&] { QTest::keyClick(Screen(), Qt::Key_Escape); }, {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts, StopQuestion);
    EXPECT_TRUE(Screen()->isVisible());
}

TEST_F(SolutionsScreens, ClickStopsTheListingAndDoesNothingElse)
{
    for (const bool onText : {true, false}) {
        const BoxRecord boxes = ListAndAct(
            [&] { QTest::mouseClick(onText ? Box()->viewport() : Screen(), Qt::LeftButton); },
            {QMessageBox::Yes});
        EXPECT_EQ(boxes.Texts, StopQuestion);
    }
    const BoxRecord boxes =
        ListAndAct([&] { QTest::mouseClick(Format(0), Qt::LeftButton); }, {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts, StopQuestion);
    EXPECT_EQ(SolutionsFormat, 1);
    EXPECT_TRUE(Format(1)->isChecked());
}

// Assistive tools act past keys and mouse.
TEST_F(SolutionsScreens, ControlsThatAToolUsesOnlyAskDuringAListing)
{
    const auto use = [](QAbstractButton *button) {
        QAccessibleActionInterface *actions =
            QAccessible::queryAccessibleInterface(button)->actionInterface();
        actions->doAction(actions->actionNames().front());
        // The toolkit lets go of a button that a tool presses after a while.
        EXPECT_TRUE(QTest::qWaitFor([&] { return !button->isDown(); }, Patience));
    };
    BoxRecord boxes = ListAndAct([&] { use(Format(0)); }, {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts, StopQuestion);
    EXPECT_EQ(SolutionsFormat, 1);
    EXPECT_TRUE(Format(1)->isChecked());
    boxes = ListAndAct([&] { use(Screen()->findChild<QPushButton *>("cmdSaveAsTextFile")); },
                       {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts, StopQuestion);
    use(Format(0));
    EXPECT_EQ(SolutionsFormat, 0) << "and after it they act";
}

TEST_F(SolutionsScreens, NoGoesOnListing)
{
    const BoxRecord boxes = ListAndAct(
        [&] {
            QTest::keyClick(Box(), Qt::Key_Space);
            EXPECT_NE(SearchActive, False) << "goes on after a no";
            QTest::keyClick(Box(), Qt::Key_Space);
        },
        {QMessageBox::No, QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts.size(), 2U);
}

TEST_F(SolutionsScreens, KeysOnTheBoardDoNotReachTheListing)
{
    const BoxRecord boxes = ListAndAct(
        [&] {
            QTest::keyClick(program.Main->Client->Board, Qt::Key_5);
            EXPECT_NE(SearchActive, False);
            QTest::keyClick(Box(), Qt::Key_Space);
        },
        {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts.size(), 1U);
}

TEST_F(SolutionsScreens, ClosingDuringAListingAsksAndStops)
{
    const BoxRecord boxes = ListAndAct([&] { Screen()->close(); }, {QMessageBox::Yes});
    EXPECT_EQ(boxes.Texts, StopQuestion);
    EXPECT_FALSE(Screen()->isVisible());
    EXPECT_EQ(SolutionsOpen, False);
    EXPECT_EQ(SearchActive, False);
    EXPECT_EQ(NumbersOf(Grid).substr(79), "12");
    List(PlainGame);
    EXPECT_TRUE(Screen()->isVisible());
    EXPECT_EQ(Count(), "1 solution");
}

TEST_F(SolutionsScreens, ClosingDuringAListingIsTakenBackByNo)
{
    ListAndAct(
        [&] {
            Screen()->close();
            EXPECT_TRUE(Screen()->isVisible());
            EXPECT_NE(SearchActive, False);
            QTest::keyClick(Box(), Qt::Key_Space);
        },
        {QMessageBox::No, QMessageBox::Yes});
    EXPECT_EQ(SolutionsOpen, True);
}

TEST_F(SolutionsScreens, ProgramStaysWhileItLists)
{
    ListAndAct(
        [&] {
            program.Main->close();
            EXPECT_TRUE(program.Main->isVisible());
            QTest::keyClick(Box(), Qt::Key_Space);
        },
        {QMessageBox::Yes});
}

TEST_F(SolutionsScreens, OtherSearchesAreNotAskedAboutHere)
{
    List(PlainGame);
    SearchActive = True;
    SearchKind = SearchingGame;
    const BoxRecord boxes = AnswerBoxes([&] {
        QTest::mouseClick(Format(0), Qt::LeftButton);
        QTest::keyClick(Box(), Qt::Key_Space);
    });
    EXPECT_TRUE(boxes.Texts.empty());
    EXPECT_EQ(SolutionsFormat, 1);
    SearchActive = False;
}

// ---- Window --------------------------------------------------------------------------------

TEST_F(SolutionsScreens, EscapeClosesWhenNothingIsListed)
{
    List(PlainGame);
    QTest::keyClick(Box(), Qt::Key_Escape);
    EXPECT_FALSE(Screen()->isVisible());
    EXPECT_EQ(SolutionsOpen, False);
}

TEST_F(SolutionsScreens, TextTakesTheInnerSizeLessItsSurroundings)
{
    List(PlainGame);
    for (const QSize &size : {QSize(500, 600), QSize(1200, 200), QSize(340, 161)}) {
        Screen()->resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(Box()->size(), size - QSize(35, 100));
        EXPECT_EQ(SolutionsPlace.Width, size.width());
        EXPECT_EQ(SolutionsPlace.Height, size.height());
    }
}

TEST_F(SolutionsScreens, NothingIsCutOffAtTheSmallestSize)
{
    List(ThirtySolutions);
    Screen()->resize(1, 1);
    QCoreApplication::processEvents();
    EXPECT_EQ(Box()->size(), Screen()->size() - QSize(35, 100));
    EXPECT_GE(Box()->height(), 60);
    for (const QWidget *control : Screen()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        EXPECT_TRUE(Screen()->rect().contains(control->geometry()))
            << control->objectName().toStdString();
    }
    EXPECT_FALSE(Format(1)->geometry().intersects(
        Screen()->findChild<QPushButton *>("cmdSaveAsTextFile")->geometry()));
}

TEST_F(SolutionsScreens, PlaceAndSizeAreKept)
{
    List(PlainGame);
    Screen()->move(60, 70);
    Screen()->resize(400, 450);
    QCoreApplication::processEvents();
    Screen()->close();
    EXPECT_EQ(SolutionsPlace, (WindowPlace{60, 70, 400, 450}));
    SolutionsPlace = {90, 100, 410, 460};
    List(PlainGame);
    EXPECT_EQ(Screen()->pos(), QPoint(90, 100));
    EXPECT_EQ(Screen()->size(), QSize(410, 460));
}

TEST_F(SolutionsScreens, MinimisedScreenKeepsPlaceAndSizeOfBefore)
{
    List(PlainGame);
    Screen()->move(60, 70);
    Screen()->resize(400, 450);
    QCoreApplication::processEvents();
    Screen()->showMinimized();
    Screen()->move(5, 6);
    Screen()->resize(350, 300);
    QCoreApplication::processEvents();
    EXPECT_EQ(Box()->size(), QSize(365, 350));
    Screen()->close();
    EXPECT_EQ(SolutionsOpen, False);
    EXPECT_EQ(SolutionsPlace, (WindowPlace{60, 70, 400, 450}));
}

TEST_F(SolutionsScreens, PlaceOffTheScreenIsMovedOnToIt)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const WindowPlace &place :
         {WindowPlace{9000, 9000, 300, 400}, WindowPlace{-9000, -9000, 300, 400}}) {
        SolutionsPlace = place;
        List(PlainGame);
        EXPECT_TRUE(screen.contains(Screen()->geometry()));
        Screen()->close();
    }
}

TEST_F(SolutionsScreens, EveryControlHasAName)
{
    List(PlainGame);
    EXPECT_FALSE(Box()->accessibleName().isEmpty());
    EXPECT_FALSE(Format(0)->accessibleName().isEmpty());
    EXPECT_FALSE(Format(1)->accessibleName().isEmpty());
    EXPECT_EQ(Screen()->findChild<QPushButton *>("cmdSaveAsTextFile")->text(), "Save as text file");
    EXPECT_EQ(Screen()->findChild<QLabel *>("lblNumSolutions")->accessibleName(), "1 solution");
}

TEST_F(SolutionsScreens, TabGoesFromTheTextToTheOthersAndBack)
{
    List(PlainGame);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return QApplication::activeWindow() == Screen(); }, Patience));
    EXPECT_EQ(Screen()->focusWidget(), Box()) << "where it starts";
    QTest::keyClick(Box(), Qt::Key_Tab);
    EXPECT_EQ(Screen()->focusWidget(), Format(1)) << "the format that is selected";
    QTest::keyClick(Format(1), Qt::Key_Tab);
    EXPECT_EQ(Screen()->focusWidget()->objectName(), "cmdSaveAsTextFile");
    QTest::keyClick(Screen()->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Screen()->focusWidget(), Box());
}

TEST_F(SolutionsScreens, OpenScreenFollowsUndo)
{
    SetGame(PlainGame);
    StartGame(NewGame);
    mnuShowSolution();
    SetGame(ThreeSolutions);
    PushUndoState();
    Undo();
    EXPECT_EQ(Count(), "1 solution");
    Redo();
    EXPECT_EQ(Count(), "3 solutions");
}

TEST_F(SolutionsScreens, EndOfTheProgramKeepsTheScreenNotedAsOpen)
{
    List(PlainGame);
    program.Main->close();
    QApplication::closeAllWindows();
    EXPECT_EQ(SolutionsOpen, True);
}

TEST_F(SolutionsScreens, ButtonSavesTheTextOnView)
{
    List(PlainGame);
    const std::string path = qEnvironmentVariable("HOME").toStdString() + "/solutions.txt";
    auto *button = Screen()->findChild<QPushButton *>("cmdSaveAsTextFile");
    const int dialogs = WhileModal<QDialog>(
        [&] { QTest::mouseClick(button, Qt::LeftButton); },
        [&](QDialog &dialog) {
            EXPECT_EQ(dialog.objectName(), "frmFile");
            EXPECT_EQ(dialog.windowTitle(), "Save Solution(s) As Text File");
            EXPECT_EQ(dialog.findChild<QComboBox *>("cmbFileTypes")->currentText(),
                      "Text files (*.txt)");
            dialog.findChild<QLineEdit *>("txtFileName")->setText(QString::fromStdString(path));
            dialog.findChild<QPushButton *>("cmdOK")->click();
        });
    EXPECT_EQ(dialogs, 1);
    std::string bytes;
    std::string error;
    EXPECT_TRUE(ReadWholeFile(path, bytes, error)) << error;
    EXPECT_EQ(bytes, SolutionsText(1, PlainSolution) + "\r\n");
}

} // namespace kelvarine::testing
