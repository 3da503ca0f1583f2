#include "commands/file_commands.h"
#include "commands/restart.h"
#include "files/dialog_folders.h"
#include "files/file_dialog.h"
#include "files/game_file.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "grid/history.h"
#include "support/positions.h"
#include "support/temporary_folder.h"
#include "support/widget_file_dialog.h"
#include "support/widget_modal.h"
#include "ui/screens/file_dialog_qt.h"
#include "ui/screens/file_list.h"
#include "ui/screens/file_names.h"
#include "ui/screens/folder_tree.h"
#include "ui/screens/help_window.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QtTest>
#include <gtest/gtest.h>

#include <filesystem>

namespace kelvarine::testing {
namespace {

TEST_F(FileDialogWindow, HasItsCaptionItsTypesAndTheFocusInTheName)
{
    Show(SaveSolutionsCaption, TextFiles);
    EXPECT_EQ(Dialog->windowTitle().toStdString(), "Save Solution(s) As Text File");
    const auto *types = Find<QComboBox>("cmbFileTypes");
    ASSERT_EQ(types->count(), 3);
    EXPECT_EQ(types->itemText(0).toStdString(), "Sudoku files (*.sdk)");
    EXPECT_EQ(types->itemText(1).toStdString(), "Text files (*.txt)");
    EXPECT_EQ(types->itemText(2).toStdString(), "All files (*.*)");
    EXPECT_EQ(types->currentIndex(), 1);
    EXPECT_EQ(Dialog->focusWidget(), Name());
    EXPECT_TRUE(Find<QPushButton>("cmdOK")->isDefault());
}

TEST_F(FileDialogWindow, TabGoesThroughTheControlsInTheirOrder)
{
    Show(OpenGameCaption);
    std::vector<std::string> order;
    for (int i = 0; i < 11; ++i) {
        order.push_back(Dialog->focusWidget()->objectName().toStdString());
        QTest::keyClick(Dialog->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (std::vector<std::string>{"txtFileName", "cmbFileTypes", "chkHidden", "cmdOK",
                                               "cmdCancel", "cmdHelp", "cmdParent", "cmdNewFolder",
                                               "drvDrive", "dirDirectory", "filFiles"}));
    EXPECT_EQ(Dialog->focusWidget(), Name());
}

TEST_F(FileDialogWindow, ControlsHaveNamesForThoseWhoDoNotSee)
{
    Show(OpenGameCaption);
    EXPECT_EQ(Tree()->accessibleName().toStdString(), "Folders");
    EXPECT_EQ(Files()->accessibleName().toStdString(), "Files");
    EXPECT_EQ(Name()->accessibleName().toStdString(), "File name");
    EXPECT_EQ(Find<QComboBox>("cmbFileTypes")->accessibleName().toStdString(), "File types");
}

// ---- OK ------------------------------------------------------------------------------------

TEST_F(FileDialogWindow, EnterOpensTheTypedName)
{
    Folder.Write("game.sdk", "");
    Show(OpenGameCaption);
    TypeAndEnter("game");
    EXPECT_FALSE(Dialog->isVisible());
    EXPECT_EQ(Dialog->result(), QDialog::Accepted);
    EXPECT_EQ(ChosenFilePath, Folder.Path("game.sdk"));
}

TEST_F(FileDialogWindow, EmptyNameIsToldAndTheDialogStays)
{
    Show(SaveGameCaption);
    const BoxRecord boxes = AnswerBoxes([&] { TypeAndEnter("  "); }, {QMessageBox::Ok});
    EXPECT_EQ(boxes.Texts, std::vector<std::string>{"Please enter a file name."});
    EXPECT_TRUE(Dialog->isVisible());
    EXPECT_EQ(Dialog->result(), QDialog::Rejected);
}

TEST_F(FileDialogWindow, MissingFileIsToldAndAnotherTryOpens)
{
    Folder.Write("game.sdk", "");
    Show(OpenGameCaption);
    const BoxRecord boxes = AnswerBoxes([&] { TypeAndEnter("gone"); }, {QMessageBox::Ok});
    EXPECT_EQ(boxes.Texts, std::vector<std::string>{"File not found\n\nCheck path and file name"});
    ASSERT_TRUE(Dialog->isVisible());
    TypeAndEnter("game.sdk");
    EXPECT_FALSE(Dialog->isVisible());
    EXPECT_EQ(Dialog->result(), QDialog::Accepted);
}

TEST_F(FileDialogWindow, EnterInTheOverwriteQuestionIsNo)
{
    Folder.Write("a & b.sdk", "");
    Show(SaveGameCaption);
    EXPECT_EQ(PressInBox([&] { TypeAndEnter("a & b"); }, Qt::Key_Return),
              Folder.Path("a & b.sdk") + "\nalready exists.\n\nDo you want to overwrite it?");
    EXPECT_TRUE(Dialog->isVisible());
    EXPECT_EQ(Dialog->result(), QDialog::Rejected);
    EXPECT_EQ(GameFilePath, "");
    const BoxRecord boxes = AnswerBoxes([&] { TypeAndEnter("a & b"); }, {QMessageBox::Yes});
    EXPECT_EQ(boxes.Titles, std::vector<std::string>{"Overwrite?"});
    EXPECT_FALSE(Dialog->isVisible());
    EXPECT_EQ(GameFilePath, Folder.Path("a & b.sdk"));
}

// ---- Cancel and help -----------------------------------------------------------------------

TEST_F(FileDialogWindow, EscapeCancelButtonAndClosingCancel)
{
    for (int way = 0; way < 3; ++way) {
        Show(SaveGameCaption);
        Type("some name");
        if (way == 0) {
            QTest::keyClick(Dialog.get(), Qt::Key_Escape);
        } else if (way == 1) {
            QTest::mouseClick(Find<QPushButton>("cmdCancel"), Qt::LeftButton);
        } else {
            Dialog->close();
        }
        EXPECT_FALSE(Dialog->isVisible());
        EXPECT_EQ(Dialog->result(), QDialog::Rejected);
        EXPECT_EQ(DialogName, "some name");
        DialogName.clear();
    }
}

TEST_F(FileDialogWindow, HelpSendsTheFocusBackToTheName)
{
    Show(OpenGameCaption);
    Files()->setFocus();
    QTest::keyClick(Files(), Qt::Key_F1);
    ASSERT_NE(OpenHelpWindow(), nullptr);
    OpenHelpWindow()->close();
    EXPECT_EQ(Dialog->focusWidget(), Name());
    auto *help = Find<QPushButton>("cmdHelp");
    help->setFocus();
    QTest::keyClick(help, Qt::Key_Space);
    ASSERT_NE(OpenHelpWindow(), nullptr);
    EXPECT_TRUE(OpenHelpWindow()->isVisible());
    OpenHelpWindow()->close();
    EXPECT_EQ(Dialog->focusWidget(), Name());
    EXPECT_TRUE(Dialog->isVisible());
}

// ---- The lists -----------------------------------------------------------------------------

TEST_F(FileDialogWindow, TypeFiltersTheList)
{
    for (const std::string_view name : {"b.sdk", "A.SDK", "c.txt", "plain"}) {
        Folder.Write(name, "");
    }
    std::filesystem::create_directory(Folder.Path("folder.sdk"));
    Show(OpenGameCaption);
    EXPECT_EQ(Listed(), (std::vector<std::string>{"A.SDK", "b.sdk"}));
    auto *types = Find<QComboBox>("cmbFileTypes");
    QTest::keyClick(types, Qt::Key_Down);
    EXPECT_EQ(Listed(), std::vector<std::string>{"c.txt"});
    EXPECT_EQ(DefaultExtension, ".txt");
    QTest::keyClick(types, Qt::Key_Down);
    EXPECT_EQ(Listed(), (std::vector<std::string>{"A.SDK", "b.sdk", "c.txt", "plain"}));
    EXPECT_EQ(DefaultExtension, ".sdk");
}

TEST_F(FileDialogWindow, ClickAndArrowsCopyTheNameAndDoubleClickOpens)
{
    Folder.Write("a.sdk", "");
    Folder.Write("b.sdk", "");
    Show(OpenGameCaption);
    ClickEntry(0);
    EXPECT_EQ(Name()->text().toStdString(), "a.sdk");
    QTest::keyClick(Files(), Qt::Key_Down);
    EXPECT_EQ(Name()->text().toStdString(), "b.sdk");
    Type("other");
    ClickEntry(1);
    EXPECT_EQ(Name()->text().toStdString(), "b.sdk");
    ClickEntry(0, true);
    EXPECT_FALSE(Dialog->isVisible());
    EXPECT_EQ(ChosenFilePath, Folder.Path("a.sdk"));
}

TEST_F(FileDialogWindow, TypingBringsTheFirstEntryThatBeginsSoIntoView)
{
    for (int i = 100; i < 300; ++i) {
        Folder.Write("Game " + std::to_string(i) + ".sdk", "");
    }
    Show(OpenGameCaption);
    ASSERT_EQ(Files()->model()->rowCount(), 200);
    ASSERT_FALSE(InView(150));
    Type("game 25");
    EXPECT_TRUE(InView(150));
    EXPECT_FALSE(InView(0));
    Name()->selectAll();
    QTest::keyClick(Name(), Qt::Key_Backspace);
    EXPECT_TRUE(InView(0));
    Type("game 25");
    ASSERT_FALSE(InView(0));
    Type(" ");
    EXPECT_TRUE(InView(0)) << "all entries begin with blanks that do not count";
}

TEST_F(FileDialogWindow, DeleteKeyInTheListAsksAndDeletes)
{
    Folder.Write("a & b.sdk", "");
    Folder.Write("c.sdk", "");
    GameFilePath = Folder.Path("a & b.sdk");
    Show(OpenGameCaption);
    ClickEntry(0);
    EXPECT_EQ(PressInBox([&] { QTest::keyClick(Files(), Qt::Key_Delete); }, Qt::Key_Return),
              "Are you sure you want to delete:\na & b.sdk");
    EXPECT_EQ(Folder.Entries(), 2);
    AnswerBoxes([&] { QTest::keyClick(Files(), Qt::Key_Delete); }, {QMessageBox::Yes});
    EXPECT_EQ(Folder.Entries(), 1);
    EXPECT_EQ(Listed(), std::vector<std::string>{"c.sdk"});
    EXPECT_EQ(Name()->text().toStdString(), "");
    EXPECT_EQ(GameModified, True);
}

TEST_F(FileDialogWindow, DeleteKeyIsTheKeyWhateverIsHeldWithIt)
{
    Folder.Write("a.sdk", "");
    Show(OpenGameCaption);
    ClickEntry(0);
    EXPECT_EQ(PressInBox([&] { QTest::keyClick(Files(), Qt::Key_D, Qt::ControlModifier); },
                         Qt::Key_Return),
              "");
    for (const Qt::KeyboardModifier held :
         {Qt::ShiftModifier, Qt::ControlModifier, Qt::KeypadModifier}) {
        EXPECT_EQ(
            PressInBox([&] { QTest::keyClick(Files(), Qt::Key_Delete, held); }, Qt::Key_Return),
            "Are you sure you want to delete:\na.sdk");
    }
    EXPECT_EQ(Folder.Entries(), 1);
}

TEST_F(FileDialogWindow, DeleteKeyElsewhereDeletesNoFile)
{
    Folder.Write("a.sdk", "");
    Show(OpenGameCaption);
    Files()->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(Files(), Qt::Key_Delete); // nothing is selected
    ClickEntry(0);
    Name()->setFocus();
    Name()->setCursorPosition(0);
    QTest::keyClick(Name(), Qt::Key_Delete);
    EXPECT_EQ(Name()->text().toStdString(), ".sdk");
    EXPECT_EQ(Folder.Entries(), 1);
}

TEST_F(FileDialogWindow, FolderChosenInTheTreeIsListedAndKept)
{
    std::filesystem::create_directory(Folder.Path("inner"));
    Folder.Write("inner/deep.sdk", "");
    Show(OpenGameCaption);
    EXPECT_EQ(Find<QLabel>("lblFolder")->text().toStdString(), Folder.Path());
    ASSERT_EQ(Tree()->currentItem()->childCount(), 1);
    Tree()->setCurrentItem(Tree()->currentItem()->child(0));
    EXPECT_EQ(DialogFolder, Folder.Path("inner/"));
    EXPECT_EQ(Find<QLabel>("lblFolder")->text().toStdString(), Folder.Path("inner/"));
    EXPECT_EQ(Listed(), std::vector<std::string>{"deep.sdk"});
    TypeAndEnter("deep");
    EXPECT_EQ(ChosenFilePath, Folder.Path("inner/deep.sdk"));
    Show(SaveGameCaption);
    EXPECT_EQ(Listed(), std::vector<std::string>{"deep.sdk"});
    EXPECT_EQ(Name()->text().toStdString(), "deep");
}

TEST_F(FileDialogWindow, TreeShowsTheFolderInHand)
{
    for (int i = 100; i < 200; ++i) {
        std::filesystem::create_directory(Folder.Path(std::to_string(i)));
    }
    DialogFolder = Folder.Path("190/");
    Show(OpenGameCaption);
    EXPECT_EQ(FolderTree::FolderOf(Tree()->currentItem()), DialogFolder);
    EXPECT_TRUE(FolderInView());
}

TEST_F(FileDialogWindow, ArrowsWalkTheTree)
{
    std::filesystem::create_directory(Folder.Path("inner"));
    Folder.Write("inner/deep.sdk", "");
    Show(OpenGameCaption);
    Tree()->setFocus();
    QTest::keyClick(Tree(), Qt::Key_Down);
    EXPECT_EQ(DialogFolder, Folder.Path("inner/"));
    QTest::keyClick(Tree(), Qt::Key_Left);
    EXPECT_EQ(DialogFolder, Folder.Path());
}

// ---- Its place -----------------------------------------------------------------------------

TEST_F(FileDialogWindow, ComesBackWhereItStood)
{
    Show(OpenGameCaption);
    Dialog->resize(431, 377);
    Dialog->move(57, 43);
    Dialog->reject();
    EXPECT_EQ(FileDialogPlace, (WindowPlace{57, 43, 431, 377}));
    Show(OpenGameCaption);
    EXPECT_EQ(Dialog->size(), QSize(431, 377));
    EXPECT_EQ(Dialog->pos(), QPoint(57, 43));
}

TEST_F(FileDialogWindow, NeverOpensOffTheScreen)
{
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const WindowPlace place : {WindowPlace{-3000, 20, 400, 300},
                                    {20, 5000, 400, 300},
                                    {most, -most - 1, most, most},
                                    {-most - 1, most, 1, 1},
                                    {700, 700, 400, 400}}) {
        FileDialogPlace = place;
        Show(OpenGameCaption);
        EXPECT_TRUE(screen.contains(QRect(Dialog->pos(), Dialog->size()))) << place.Left;
    }
}

TEST_F(FileDialogWindow, KeepsASmallestSize)
{
    FileDialogPlace = {10, 10, 50, 50};
    Show(OpenGameCaption);
    EXPECT_GE(Dialog->width(), 290);
    EXPECT_GE(Dialog->height(), 290);
}

// ---- From the commands ---------------------------------------------------------------------

// Runs an action and enters a name in the one file dialog that it opens.
void EnterName(const char *name, const std::function<void()> &action)
{
    const int dialogs = WhileModal<FileDialog>(action, [&](FileDialog &dialog) {
        auto *field = dialog.findChild<QLineEdit *>(QStringLiteral("txtFileName"));
        field->clear();
        QTest::keyClicks(field, QString::fromUtf8(name));
        QTest::keyClick(field, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs, 1);
}

TEST_F(FileDialogWindow, GameIsSavedAndOpenedThroughTheDialog)
{
    Grid[5][5] = BitTable[3] | GivenBit;
    StartGame(NewGame);
    EnterName("Mine", mnuSaveAs);
    EXPECT_EQ(Running.Main->windowTitle().toStdString(), "Kelvarine (mine.sdk)");
    EXPECT_EQ(GameModified, False);
    mnuGameBlankGrid();
    EXPECT_EQ(GivenCount, 0);
    GameModified = False;
    EnterName("Mine.sdk", mnuOpen);
    EXPECT_EQ(GivenCount, 1);
    EXPECT_EQ(GameFilePath, Folder.Path("Mine.sdk"));
}

TEST_F(FileDialogWindow, EscapeInTheDialogHoldsTheClosing)
{
    GameModified = True;
    const auto close = [&] {
        AnswerBoxes([&] { Running.Main->close(); }, {QMessageBox::Yes});
    };
    const auto escape = [](FileDialog &dialog) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    EXPECT_EQ(WhileModal<FileDialog>(close, escape), 1);
    EXPECT_TRUE(Running.Main->isVisible());
}

TEST_F(FileDialogWindow, SavedGameLetsTheWindowClose)
{
    GameModified = True;
    EnterName("last", [&] { AnswerBoxes([&] { Running.Main->close(); }, {QMessageBox::Yes}); });
    EXPECT_FALSE(Running.Main->isVisible());
    EXPECT_EQ(Folder.Read("last.sdk").size(), 41360U);
}

// ---- Names as bytes ------------------------------------------------------------------------

TEST(FileNames, ComeBackToTheByte)
{
    for (const std::string name :
         {"plain.sdk", "lat\xe4in.sdk", "\xff\xfe\x80", "\xc3\xa4\xc3", "\xf0\x9f\x99\x82\xf0\x9f",
          "\xed\xb2\x80", "\xef\xbf\xbd", ""}) {
        EXPECT_EQ(NameBytes(ShownName(name)), name);
    }
    EXPECT_EQ(ShownName("\xc3\xa4.sdk"), QString::fromUtf8("\xc3\xa4.sdk"));
}

TEST_F(FileDialogWindow, FileWhoseNameIsNoTextIsListedAndOpened)
{
    const std::string name = "lat\xe4in.sdk";
    Folder.Write(name, GameFileBytes());
    Show(OpenGameCaption);
    ASSERT_EQ(Files()->model()->rowCount(), 1);
    Files()->Select(0);
    QTest::mouseClick(Find<QPushButton>("cmdOK"), Qt::LeftButton);
    EXPECT_EQ(ChosenFilePath, Folder.Path(name));
    EXPECT_EQ(DialogName, name);
}

} // namespace
} // namespace kelvarine::testing
