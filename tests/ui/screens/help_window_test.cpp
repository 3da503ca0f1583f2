#include "commands/print_run.h"
#include "files/file_dialog.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "outside/clipboard.h"
#include "outside/help.h"
#include "outside/printer.h"
#include "support/ended_document.h"
#include "support/temporary_folder.h"
#include "support/widget_events.h"
#include "support/widget_front.h"
#include "support/widget_program.h"
#include "ui/outside/printer_qt.h"
#include "ui/screens/file_dialog_qt.h"
#include "ui/screens/help_window.h"
#include "ui/window/board_widget.h"
#include "ui/window/help_key.h"
#include "ui/window/program_icon.h"

#include <QAccessible>
#include <QDialog>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

namespace {

// The program with no help window from an earlier case, and none left behind.
struct HelpWindowTest : ::testing::Test {
    ~HelpWindowTest() override
    {
        delete OpenHelpWindow();
    }

    HelpWindowTest() = default;
    HelpWindowTest(const HelpWindowTest &) = delete;
    HelpWindowTest &operator=(const HelpWindowTest &) = delete;

    // Asks for a topic as a screen does, and waits until the window has come to the front.
    static HelpWindow *Show(int context)
    {
        ShowHelpTopic(context);
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == OpenHelpWindow(); },
                                    Patience));
        return OpenHelpWindow();
    }

    static std::string PageOnView()
    {
        return OpenHelpWindow()->Browser->source().fileName().toStdString();
    }

    Program Game;
};

QAction *ActionOf(const QString &text)
{
    for (QAction *action : OpenHelpWindow()->findChild<QToolBar *>()->actions()) {
        if (action->text() == text) {
            return action;
        }
    }
    return nullptr;
}

} // namespace

TEST_F(HelpWindowTest, OpensAtTheTopicThatAScreenAsksFor)
{
    ShowHelpTopic(208);
    ASSERT_NE(OpenHelpWindow(), nullptr);
    EXPECT_TRUE(OpenHelpWindow()->isVisible());
    EXPECT_EQ(PageOnView(), "settings-logic.html");
    EXPECT_EQ(OpenHelpWindow()->windowTitle(), QStringLiteral("Settings: Logic - Kelvarine Help"));
    ShowHelpTopic(600);
    EXPECT_EQ(PageOnView(), "files.html");
    ShowHelpTopic(0);
    EXPECT_EQ(PageOnView(), "index.html");
}

TEST_F(HelpWindowTest, FileDialogAsksForItsOwnTopicByKeyAndByButton)
{
    FileDialog dialog(Game.Main.get(), SudokuFiles);
    dialog.open();
    QCoreApplication::processEvents();
    for (const auto &[name, key] :
         {std::pair("txtFileName", Qt::Key_F1), std::pair("cmdHelp", Qt::Key_Space)}) {
        ShowHelpTopic(0);
        ASSERT_EQ(PageOnView(), "index.html");
        QTest::keyClick(dialog.findChild<QWidget *>(name), key);
        EXPECT_EQ(PageOnView(), "files.html") << name;
    }
}

TEST_F(HelpWindowTest, WalksBackForwardAndHome)
{
    ShowHelpTopic(202);
    HelpWindow *window = Show(204);
    QTest::keyClick(window, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(PageOnView(), "settings-new-games.html");
    QTest::keyClick(window, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(PageOnView(), "settings-sound.html");
    ActionOf(QStringLiteral("Home"))->trigger();
    EXPECT_EQ(PageOnView(), "index.html");
}

TEST_F(HelpWindowTest, EscapeClosesAndTheNextOpeningFindsTheSamePlaceAndSize)
{
    HelpWindow *window = Show(0);
    window->resize(640, 480);
    window->move(30, 40);
    window->Tabs->setCurrentIndex(1);
    QTest::keyClick(window->Browser, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    ShowHelpTopic(206);
    EXPECT_EQ(OpenHelpWindow(), window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->size(), QSize(640, 480));
    EXPECT_EQ(window->pos(), QPoint(30, 40));
    EXPECT_EQ(window->Tabs->currentIndex(), 1);
    EXPECT_TRUE(window->Browser->isBackwardAvailable());
}

TEST_F(HelpWindowTest, ContentsFollowThePageAndLeadToIt)
{
    ShowHelpTopic(212);
    auto *contents = OpenHelpWindow()->findChild<QHelpContentWidget *>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return contents->currentIndex().isValid(); }, Patience));
    EXPECT_EQ(contents->currentIndex().data().toString(), QStringLiteral("Grid"));
    contents->setFocus();
    QTest::keyClick(contents, Qt::Key_Down);
    QTest::keyClick(contents, Qt::Key_Return);
    EXPECT_EQ(PageOnView(), "settings-colors.html");
}

TEST_F(HelpWindowTest, IndexNarrowsDownToTheTypedWord)
{
    HelpWindow *window = Show(0);
    auto *index = window->findChild<QHelpIndexWidget *>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return index->model()->rowCount() > 50; }, Patience));
    window->Tabs->setCurrentIndex(1);
    window->IndexText->setFocus();
    QTest::keyClicks(window->IndexText, QStringLiteral("jelly"));
    EXPECT_EQ(index->model()->rowCount(), 1);
    QTest::keyClick(window->IndexText, Qt::Key_Return);
    EXPECT_EQ(PageOnView(), "jellyfish.html");
}

TEST_F(HelpWindowTest, SearchFindsPagesByTheirWords)
{
    HelpWindow *window = Show(0);
    QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(window->Tabs->currentIndex(), 2);
    QTest::keyClicks(window->SearchText, QStringLiteral("hinge"));
    QTest::keyClick(window->SearchText, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->SearchResults->count() > 1; }, Patience));
    QStringList titles;
    for (int k = 0; k < window->SearchResults->count(); ++k) {
        titles += window->SearchResults->item(k)->text();
    }
    EXPECT_TRUE(titles.contains(QStringLiteral("XYZ-wing"))) << titles.join(u'|').toStdString();
    window->SearchResults->setCurrentRow(
        static_cast<int>(titles.indexOf(QStringLiteral("XYZ-wing"))));
    QTest::keyClick(window->SearchResults, Qt::Key_Return);
    EXPECT_EQ(PageOnView(), "xyz-wing.html");
}

TEST_F(HelpWindowTest, SearchForAnUnknownWordSaysSo)
{
    HelpWindow *window = Show(0);
    window->SearchText->setText(QStringLiteral("xylophone"));
    QTest::keyClick(window->SearchText, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->SearchResults->count() > 0; }, Patience));
    EXPECT_EQ(window->SearchResults->item(0)->text(), QStringLiteral("No page holds these words."));
    QTest::keyClick(window->SearchResults, Qt::Key_Return);
    EXPECT_EQ(PageOnView(), "index.html");
}

TEST_F(HelpWindowTest, LinkCopiesAPosition)
{
    ShowHelpTopic(0);
    HelpBrowser *browser = OpenHelpWindow()->Browser;
    browser->setSource(browser->source().resolved(QUrl(QStringLiteral("x-wing.html"))));
    emit browser->anchorClicked(QUrl(QStringLiteral("copy:12%2034.5%206")));
    EXPECT_EQ(ClipboardText(), "12 34.5 6");
    EXPECT_EQ(PageOnView(), "x-wing.html");
}

TEST_F(HelpWindowTest, PictureGrowsWithTheText)
{
    ShowHelpTopic(0);
    HelpBrowser *browser = OpenHelpWindow()->Browser;
    browser->setSource(browser->source().resolved(QUrl(QStringLiteral("x-wing.html"))));
    const double before = browser->document()->size().height();
    ActionOf(QStringLiteral("Larger"))->trigger();
    EXPECT_GT(browser->document()->size().height(), before);
    ActionOf(QStringLiteral("Smaller"))->trigger();
    EXPECT_DOUBLE_EQ(browser->document()->size().height(), before);
    ActionOf(QStringLiteral("Smaller"))->trigger();
    EXPECT_LT(browser->document()->size().height(), before);
    ActionOf(QStringLiteral("Usual size"))->trigger();
    EXPECT_DOUBLE_EQ(browser->document()->size().height(), before);
    for (int k = 0; k < 40; ++k) {
        browser->Zoom(k < 20 ? 1 : -3);
    }
    browser->ResetZoom();
    EXPECT_DOUBLE_EQ(browser->document()->size().height(), before);
}

TEST_F(HelpWindowTest, PrintAsksOverTheHelpAndLeavesItInFront)
{
    HelpWindow *window = Show(0);
    EXPECT_EQ(CloseModals([] { ActionOf(QStringLiteral("Print"))->trigger(); }),
              std::vector<std::string>{"Print"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == window; }, Patience));
}

TEST_F(HelpWindowTest, PrintLeavesThePrinterToTheGameWhileThatPrints)
{
    const auto tryToPrint = [] {
        EXPECT_EQ(CloseModals([] { ActionOf(QStringLiteral("Print"))->trigger(); }),
                  std::vector<std::string>{});
        EXPECT_EQ(OpenHelpWindow()->statusBar()->currentMessage(),
                  QStringLiteral("Printing is under way."));
        OpenHelpWindow()->statusBar()->clearMessage();
    };
    const TemporaryFolder folder;
    Show(0);
    PrintRunning = True;
    tryToPrint();
    PrintRunning = False;
    ChosenPrinter().setOutputFormat(QPrinter::PdfFormat);
    ChosenPrinter().setOutputFileName(QString::fromStdString(folder.Path("page.pdf")));
    ASSERT_TRUE(PrintText(10, 10, "a page"));
    tryToPrint();
    EXPECT_EQ(EndAndHandOver(), "");
}

TEST_F(HelpWindowTest, CanBeUsedBesideAModalWindow)
{
    QDialog dialog(Game.Main.get());
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog, Patience));
    HelpWindow *window = Show(600);
    // Through the window system, which holds back what goes to a blocked window.
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    dialog.close();
    BringToFront(Game);
    Show(202);
    EXPECT_EQ(window->windowHandle()->transientParent(), nullptr);
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(HelpWindowTest, HelpOutlivesTheModalWindowThatAskedForIt)
{
    auto dialog = std::make_unique<QDialog>(Game.Main.get());
    dialog->setModal(true);
    dialog->show();
    ShowHelpTopic(600);
    dialog.reset();
    ASSERT_NE(OpenHelpWindow(), nullptr);
    ShowHelpTopic(204);
    EXPECT_TRUE(OpenHelpWindow()->isVisible());
    EXPECT_EQ(PageOnView(), "settings-sound.html");
}

TEST_F(HelpWindowTest, DoesNotKeepTheProgramAliveWhenTheGameCloses)
{
    ShowHelpTopic(0);
    EXPECT_FALSE(OpenHelpWindow()->testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(HelpWindowTest, EveryControlHasANameAndARole)
{
    ShowHelpTopic(0);
    int controls = 0;
    for (QWidget *widget : OpenHelpWindow()->findChildren<QWidget *>()) {
        const bool inner = qobject_cast<QAbstractScrollArea *>(widget->parentWidget()) != nullptr;
        if (widget->focusPolicy() == Qt::NoFocus || inner) {
            continue;
        }
        ++controls;
        QAccessibleInterface *control = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(control, nullptr);
        EXPECT_NE(control->role(), QAccessible::NoRole);
        EXPECT_FALSE(control->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
    EXPECT_GE(controls, 6);
}

TEST_F(HelpWindowTest, F1ShowsTheTopicOfTheWindowInFront)
{
    WatchForHelpKey();
    QTest::keyClick(Game.Main->Client->Board, Qt::Key_F1);
    ASSERT_NE(OpenHelpWindow(), nullptr);
    EXPECT_EQ(PageOnView(), "index.html");
    QWidget screen;
    auto *control = new QLineEdit(&screen);
    SetHelpContext(&screen, 214);
    screen.show();
    QTest::keyClick(control, Qt::Key_F1);
    EXPECT_EQ(PageOnView(), "settings-colors.html");
    SetHelpContext(&screen, 216);
    QTest::keyClick(control, Qt::Key_F1);
    EXPECT_EQ(PageOnView(), "settings-coordinates.html");
    QTest::keyClick(control, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyClick(control, Qt::Key_F2);
    EXPECT_EQ(PageOnView(), "settings-coordinates.html");
}

TEST_F(HelpWindowTest, SecondF1BringsTheKeyboardBackToThePage)
{
    WatchForHelpKey();
    const HelpWindow *help = Show(0);
    help->Tabs->setCurrentIndex(2);
    for (QWidget *asker : {static_cast<QWidget *>(Game.Main->Client->Board),
                           static_cast<QWidget *>(help->SearchText)}) {
        help->SearchText->setFocus();
        ASSERT_TRUE(help->SearchText->hasFocus());
        QTest::keyClick(asker, Qt::Key_F1);
        EXPECT_TRUE(help->Browser->hasFocus());
    }
}

TEST_F(HelpWindowTest, F1OnTheBoardEndsTheWinDisplayAndThenShowsTheHelp)
{
    WatchForHelpKey();
    StartWinDisplay();
    QTest::keyClick(Game.Main->Client->Board, Qt::Key_F1);
    EXPECT_EQ(WinDisplayRunning, False);
    EXPECT_NE(OpenHelpWindow(), nullptr);
    StartWinDisplay();
    QWidget screen;
    screen.show();
    QTest::keyClick(&screen, Qt::Key_F1);
    EXPECT_EQ(WinDisplayRunning, True) << "only the board's keys end it";
    StopWinDisplay();
}

TEST_F(HelpWindowTest, F1WaitsWhileASearchRuns)
{
    WatchForHelpKey();
    SearchActive = True;
    QTest::keyClick(Game.Main.get(), Qt::Key_F1);
    SearchActive = False;
    EXPECT_EQ(OpenHelpWindow(), nullptr);
}

TEST(ProgramIcon, HasEverySizeByItself)
{
    const QIcon icon = ProgramIcon();
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
        const QImage picture = icon.pixmap(size, size).toImage();
        ASSERT_EQ(picture.size(), QSize(size, size));
        EXPECT_EQ(picture.pixelColor(size / 2, size * 11 / 32), QColor(32, 96, 80)) << "a line";
    }
}

TEST_F(HelpWindowTest, MissingHelpIsToldInPlainWords)
{
    const BoxRecord boxes = AnswerBoxes([] { ShowHelpOf(QString(), 0); }, {QMessageBox::Ok});
    ASSERT_EQ(boxes.Texts.size(), 1U);
    EXPECT_EQ(boxes.Texts[0],
              "The help can't be shown, because its files are missing or damaged.\n\n"
              "Installing Kelvarine again brings them back.");
    EXPECT_EQ(OpenHelpWindow(), nullptr);
}

} // namespace kelvarine::testing
