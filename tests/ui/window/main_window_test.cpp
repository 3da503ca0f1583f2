#include "board/geometry.h"
#include "files/file_address.h"
#include "files/recovery.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "outside/screens.h"
#include "support/temporary_folder.h"
#include "support/widget_program.h"
#include "ui/configure/configure_screen.h"
#include "ui/window/board_widget.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

TEST(MainWindow, TypedDigitGoesToTheSelectedCell)
{
    const Program program;
    WordAt({4, 7}) |= SelectedBit;
    QTest::keyClick(program.Main->Client->Board, Qt::Key_6);
    EXPECT_EQ(WordAt({4, 7}) & CandidateMask, BitTable[6]);
}

TEST(MainWindow, ShrinksIntoARoomWithTheBoardInItsForm)
{
    const Program program;
    const MainWindow &window = *program.Main;
    const QSize start(760, 830);
    const auto form = [&](const QSize &size) {
        program.Main->resize(size);
        QCoreApplication::processEvents();
        return static_cast<double>(CellWidth) / CellHeight;
    };
    const double wanted = form(start);
    EXPECT_EQ(window.SizeWithin(start, {1920, 1080}), start) << "never grown";
    for (const QSize &room : {QSize(1024, 575), QSize(1366, 740), QSize(500, 2000)}) {
        const QSize fitting = window.SizeWithin(start, room);
        EXPECT_TRUE(QRect({}, room).contains(QRect({}, fitting)));
        EXPECT_TRUE(fitting.width() >= room.width() - 1 || fitting.height() >= room.height() - 1)
            << "as large as can be";
        EXPECT_NEAR(form(fitting), wanted, 0.03);
    }
    const QSize wide = window.SizeWithin({1500, 900}, {1024, 575});
    EXPECT_NEAR(form(wide), form({1500, 900}), 0.06);
    EXPECT_EQ(window.SizeWithin(start, {100, 90}), QSize(100, 90));
}

TEST(MainWindow, OneFileCanBeDroppedOnIt)
{
    const Program program;
    const TemporaryFolder folder;
    folder.Write(
        "easy game.txt",
        "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79");
    const QUrl file = QUrl::fromLocalFile(QString::fromStdString(folder.Path("easy game.txt")));
    const auto enters = [&](const QList<QUrl> &urls) {
        QMimeData dragged;
        dragged.setUrls(urls);
        QDragEnterEvent enter({50, 50}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(program.Main.get(), &enter);
        return enter.isAccepted();
    };
    EXPECT_FALSE(enters({}));
    EXPECT_FALSE(enters({file, file}));
    EXPECT_FALSE(enters({QUrl("https://example.org/easy.txt")}));
    EXPECT_TRUE(enters({file}));
    QMimeData dropped;
    dropped.setUrls({file});
    QDropEvent drop({50, 50}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(program.Main.get(), &drop);
    EXPECT_EQ(GivenCount, 0) << "the program that it comes from does not wait";
    EXPECT_TRUE(QTest::qWaitFor([] { return GivenCount == 30; }, Patience));
    EXPECT_EQ(program.Main->windowTitle(), "Kelvarine (easy game.txt)");
}

TEST(MainWindow, FileWhoseNameIsNoTextCanBeDroppedOnIt)
{
    const Program program;
    const TemporaryFolder folder;
    folder.Write(
        "lat\xe4in.txt",
        "53..7....6..195....98....6.8...6...34..8.3..17...2...6.6....28....419..5....8..79");
    QMimeData dropped;
    dropped.setData("text/uri-list",
                    QByteArray::fromStdString(AddressOf(folder.Path("lat\xe4in.txt")) + "\r\n"));
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(program.Main.get(), &enter);
    QDropEvent drop({50, 50}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(program.Main.get(), &drop);
    EXPECT_TRUE(QTest::qWaitFor([] { return GivenCount == 30; }, Patience));
    EXPECT_EQ(GameFilePath, folder.Path("lat\xe4in.txt"));
}

TEST(MainWindow, ToldToGoBeforeItIsOnViewGoesAsSoonAsItIs)
{
    const Program program;
    MainWindow early;
    EXPECT_FALSE(early.CloseUnlessAsking());
    early.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !early.isVisible(); }, Patience));
    EXPECT_TRUE(RecoveryHasEnded());
}

TEST(MainWindow, LooksTheSameWhereTheDesktopWritesFromRightToLeft)
{
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const Program program;
    EXPECT_EQ(program.Main->layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(QLabel("# given cells: 30").layoutDirection(), Qt::LeftToRight);
    CurrentTab = LogicTab;
    ShowConfigureScreen();
    const QWidget *screen = OpenConfigureScreen();
    const auto centre = [&](const QWidget *part) {
        return part->mapTo(screen, part->rect().center()).x();
    };
    const auto *solve = screen->findChild<QCheckBox *>("chkUseLogic1");
    const auto *alert = screen->findChild<QCheckBox *>("chkShowConflicts1");
    for (const QLabel *head : screen->findChildren<QLabel *>()) {
        if (head->text() == "Solve") {
            EXPECT_NEAR(centre(head), centre(solve), 12);
        } else if (head->text() == "Alert") {
            EXPECT_EQ(head->mapTo(screen, QPoint()).x(), alert->mapTo(screen, QPoint()).x());
        }
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(MainWindow, UnsavedGameHoldsTheClosing)
{
    const Program program;
    WordAt({4, 7}) |= SelectedBit;
    QTest::keyClick(program.Main->Client->Board, Qt::Key_6);
    const BoxRecord boxes = AnswerBoxes([&] { program.Main->close(); }, {QMessageBox::Cancel});
    EXPECT_EQ(boxes.Texts.size(), 1U);
    EXPECT_TRUE(program.Main->isVisible());
}

TEST(MainWindow, IsNoneBeforeItStandsAndAfterItHasGone)
{
    EXPECT_EQ(Window(), nullptr);
    {
        const Program program;
        EXPECT_EQ(Window(), program.Main.get());
    }
    EXPECT_EQ(Window(), nullptr);
}

TEST(MainWindow, CancelledClosingLeavesTheWinDisplayOn)
{
    const Program program;
    StartWinDisplay();
    GameModified = True;
    AnswerBoxes([&] { program.Main->close(); }, {QMessageBox::Cancel});
    EXPECT_EQ(WinDisplayRunning, True);
    EXPECT_TRUE(program.Main->tmrGameWon.isActive());
    StopWinDisplay();
}

TEST(MainWindow, ClosingDuringASearchAsksAndIsTakenBackByNo)
{
    const Program program;
    for (const std::int32_t kind : {SearchingGame, ListingSolutions}) {
        StartRun();
        SearchKind = kind;
        const BoxRecord boxes = AnswerBoxes([&] { program.Main->close(); });
        EXPECT_EQ(boxes.Texts, std::vector<std::string>{"Would you like to stop searching?"});
        EndRun();
        QApplication::processEvents();
        EXPECT_TRUE(program.Main->isVisible());
    }
    SearchActive = False;
    SearchKind = NotStoppable;
}

TEST(MainWindow, ClosesWhenTheSearchHasEnded)
{
    for (const std::int32_t kind : {NotStoppable, SearchingGame, ListingSolutions}) {
        const Program program;
        StartRun();
        SearchKind = kind;
        AnswerBoxes([&] { program.Main->close(); }, kind == NotStoppable
                                                        ? std::vector<QMessageBox::StandardButton>{}
                                                        : std::vector{QMessageBox::Yes});
        QApplication::processEvents();
        EXPECT_TRUE(program.Main->isVisible());
        SearchActive = False;
        SearchKind = NotStoppable;
        EndRun();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !program.Main->isVisible(); }, Patience));
    }
}

} // namespace kelvarine::testing
