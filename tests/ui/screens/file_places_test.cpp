#include "files/dialog_folders.h"
#include "files/game_file.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "outside/folders.h"
#include "support/positions.h"
#include "support/widget_file_dialog.h"
#include "support/widget_modal.h"
#include "ui/screens/game_picture.h"
#include "ui/screens/name_box.h"
#include "ui/screens/places.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QToolButton>

#include <array>
#include <filesystem>

namespace kelvarine::testing {
namespace {

class FilePlaces : public FileDialogWindow {
protected:
    [[nodiscard]] PlaceList *Places() const
    {
        return Find<PlaceList>("drvDrive");
    }

    [[nodiscard]] GamePicture *Picture() const
    {
        return Find<GamePicture>("picGame");
    }

    [[nodiscard]] int RowOfPlace(const std::string &folder) const
    {
        for (int row = 0; row < Places()->count(); ++row) {
            if (PlaceList::FolderOf(Places()->item(row)) == folder) {
                return row;
            }
        }
        return -1;
    }

    void ClickPlace(const std::string &folder) const
    {
        QListWidgetItem *item = Places()->item(RowOfPlace(folder));
        ASSERT_NE(item, nullptr) << folder;
        Places()->scrollToItem(item);
        QTest::mouseClick(Places()->viewport(), Qt::LeftButton, {},
                          Places()->visualItemRect(item).center());
        QCoreApplication::processEvents();
    }

    // The folder that the tree, the label and the rules agree on.
    [[nodiscard]] std::string FolderInHand() const
    {
        EXPECT_EQ(FolderTree::FolderOf(Tree()->currentItem()), DialogFolder);
        EXPECT_EQ(Find<QLabel>("lblFolder")->text().toStdString(), DialogFolder);
        return DialogFolder;
    }
};

// ---- Places --------------------------------------------------------------------------------

TEST_F(FilePlaces, EveryOpeningShowsTheFolderInHand)
{
    std::filesystem::create_directories(Folder.Path("a/b/c"));
    for (int showing = 0; showing < 20; ++showing) {
        DialogFolder = Folder.Path(showing % 2 == 0 ? "a/b/c/" : "a/");
        Show(OpenGameCaption);
        EXPECT_EQ(FolderInHand(), Folder.Path(showing % 2 == 0 ? "a/b/c/" : "a/"));
        EXPECT_TRUE(FolderInView());
    }
}

TEST_F(FilePlaces, HomeSystemVolumesAndRecentFoldersAreThere)
{
    std::filesystem::create_directory(Folder.Path("stick"));
    RecentFolders = {Folder.Path()};
    Show(OpenGameCaption);
    Places()->ShowPlaces({Folder.Path("stick/")});
    for (const std::string &folder :
         {HomeFolder(), std::string("/"), Folder.Path("stick/"), Folder.Path()}) {
        ClickPlace(folder);
        EXPECT_EQ(FolderInHand(), folder);
    }
    Places()->ShowPlaces({});
    EXPECT_EQ(RowOfPlace(Folder.Path("stick/")), -1);
}

TEST_F(FilePlaces, VolumesAreReadFromTheTableOfMounts)
{
    EXPECT_EQ(VolumesIn("22 1 0:20 / / rw shared:1 - ext4 /dev/sda1 rw\n"
                        "23 22 0:5 / /media/anna/My\\040stick rw,nosuid shared:7 master:2 - vfat "
                        "/dev/sdb1 rw\n"
                        "24 22 0:6 / /mnt/lat\xe4in rw - ext4 /dev/sdc1 rw\n"
                        "25 22 0:7 / /mnt/server rw - autofs systemd-1 rw,fd=57\n"
                        "26 22 0:8 / /run/media/anna/a\\134b ro - iso9660 /dev/sr0 ro\n"
                        "27 22 0:9 / /home/media/disk rw - ext4 /dev/sdd1 rw\n"
                        "no line of the kind"),
              (std::vector<std::string>{"/media/anna/My stick/", "/mnt/lat\xe4in/",
                                        "/run/media/anna/a\\b/"}));
    EXPECT_EQ(VolumesIn(""), std::vector<std::string>{});
}

TEST_F(FilePlaces, DesktopAndDocumentsAreThereWhereTheyExist)
{
    std::filesystem::create_directory(HomeFolder() + "Documents");
    Show(OpenGameCaption);
    EXPECT_GE(RowOfPlace(HomeFolder() + "Documents/"), 0);
    EXPECT_EQ(RowOfPlace(HomeFolder() + "Desktop/"), -1);
}

TEST_F(FilePlaces, PlaceThatCannotBeReadIsToldAndTheFolderStays)
{
    Show(OpenGameCaption);
    Places()->ShowPlaces({Folder.Path("gone/")});
    const BoxRecord boxes =
        AnswerBoxes([&] { ClickPlace(Folder.Path("gone/")); }, {QMessageBox::Ok});
    EXPECT_EQ(boxes.Texts,
              std::vector<std::string>{"Unable to open folder.\n\nNo such file or directory"});
    EXPECT_EQ(FolderInHand(), Folder.Path());
    EXPECT_EQ(Places()->currentRow(), RowOfPlace(Folder.Path()));
}

TEST_F(FilePlaces, FolderThatGoesAwayGivesWayToTheOneAbove)
{
    std::filesystem::create_directories(Folder.Path("stick/games"));
    DialogFolder = Folder.Path("stick/games/");
    Show(OpenGameCaption);
    std::filesystem::remove_all(Folder.Path("stick"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return DialogFolder == Folder.Path(); }, Patience));
    EXPECT_EQ(FolderInHand(), Folder.Path());
    EXPECT_EQ(Tree()->currentItem()->childCount(), 0);
}

TEST_F(FilePlaces, WhatOthersPutIntoTheFolderIsListedAndTheSelectionStays)
{
    Folder.Write("b.sdk", "");
    Show(OpenGameCaption);
    Files()->Select(0);
    Type("typed");
    Folder.Write("a.sdk", "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Listed().size() == 2; }, Patience));
    ASSERT_NE(Files()->Selected(), nullptr);
    EXPECT_EQ(Files()->Selected()->Name, "b.sdk");
    EXPECT_EQ(Name()->text().toStdString(), "typed");
}

TEST_F(FilePlaces, FolderWithoutRightsSaysWhy)
{
    std::filesystem::create_directory(Folder.Path("empty"));
    Show(OpenGameCaption);
    EXPECT_EQ(FilesIn(Folder.Path("empty/")).Failure, "");
    EXPECT_EQ(FilesIn(Folder.Path("gone/")).Failure, "No such file or directory");
    Folder.Write("file", "");
    EXPECT_EQ(FilesIn(Folder.Path("file/")).Failure, "Not a directory");
}

// ---- Keys and buttons ----------------------------------------------------------------------

TEST_F(FilePlaces, BackspaceInTheListsAndTheButtonLeadToTheFolderAbove)
{
    std::filesystem::create_directories(Folder.Path("a/b/c"));
    DialogFolder = Folder.Path("a/b/c/");
    Show(OpenGameCaption);
    QTest::keyClick(Files(), Qt::Key_Backspace);
    EXPECT_EQ(FolderInHand(), Folder.Path("a/b/"));
    QTest::keyClick(Tree(), Qt::Key_Backspace);
    EXPECT_EQ(FolderInHand(), Folder.Path("a/"));
    Find<QToolButton>("cmdParent")->click();
    EXPECT_EQ(FolderInHand(), Folder.Path());
    Type("ab");
    QTest::keyClick(Name(), Qt::Key_Backspace);
    EXPECT_EQ(Name()->text().toStdString(), "a");
    EXPECT_EQ(FolderInHand(), Folder.Path());
}

TEST_F(FilePlaces, HiddenFilesAndFoldersComeAndGoWithCtrlH)
{
    Folder.Write(".hidden.sdk", "");
    std::filesystem::create_directory(Folder.Path(".inner"));
    Show(OpenGameCaption);
    EXPECT_EQ(Listed(), std::vector<std::string>{});
    QTest::keyClick(Name(), Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(Find<QCheckBox>("chkHidden")->isChecked());
    EXPECT_EQ(Listed(), std::vector<std::string>{".hidden.sdk"});
    EXPECT_EQ(Tree()->currentItem()->childCount(), 1);
    EXPECT_EQ(FolderInHand(), Folder.Path());
    Show(OpenGameCaption);
    EXPECT_EQ(Listed().size(), 1U) << "and stay for the next showing";
    QTest::keyClick(Name(), Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ(Listed().size(), 0U);
}

TEST_F(FilePlaces, NewFolderIsMadeAndEntered)
{
    Show(SaveGameCaption);
    QString asked;
    const auto name = [&asked](QInputDialog &box) {
        asked = box.windowTitle() + ": " + box.labelText();
        box.setTextValue("fresh");
        box.accept();
    };
    EXPECT_EQ(WhileModal<QInputDialog>([&] { Find<QToolButton>("cmdNewFolder")->click(); }, name),
              1);
    EXPECT_EQ(asked.toStdString(), "New folder: Name of the new folder:");
    EXPECT_TRUE(std::filesystem::is_directory(Folder.Path("fresh")));
    EXPECT_EQ(FolderInHand(), Folder.Path("fresh/"));
}

TEST_F(FilePlaces, ListEnteredByKeySelectsItsFirstEntry)
{
    Folder.Write("only.sdk", "");
    Show(OpenGameCaption);
    Tree()->setFocus();
    QTest::keyClick(Tree(), Qt::Key_Tab);
    ASSERT_NE(Files()->Selected(), nullptr);
    EXPECT_EQ(Name()->text().toStdString(), "only.sdk");
    EXPECT_EQ(PressInBox([&] { QTest::keyClick(Files(), Qt::Key_Delete); }, Qt::Key_Return),
              "Are you sure you want to delete:\nonly.sdk");
}

TEST_F(FilePlaces, NameTypedForSavingOutlivesAWalkThroughTheList)
{
    Folder.Write("a.sdk", "");
    Folder.Write("b.sdk", "");
    Show(SaveGameCaption);
    Type("mine");
    Tree()->setFocus();
    QTest::keyClick(Tree(), Qt::Key_Tab);
    EXPECT_EQ(Name()->text().toStdString(), "mine");
    QTest::keyClick(Files(), Qt::Key_Down);
    EXPECT_EQ(Name()->text().toStdString(), "b.sdk");
}

TEST_F(FilePlaces, DownInAListWithoutSelectionTakesTheFirst)
{
    Folder.Write("a.sdk", "");
    Folder.Write("b.sdk", "");
    Show(OpenGameCaption);
    Files()->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(Files(), Qt::Key_Down);
    EXPECT_EQ(Name()->text().toStdString(), "a.sdk");
}

// ---- The name box --------------------------------------------------------------------------

TEST_F(FilePlaces, PathToAFolderLeadsThereAndTheDialogStays)
{
    std::filesystem::create_directory(Folder.Path("inner"));
    Show(OpenGameCaption);
    TypeAndEnter(Folder.Path("inner").c_str());
    EXPECT_TRUE(Dialog->isVisible());
    EXPECT_EQ(FolderInHand(), Folder.Path("inner/"));
    EXPECT_EQ(Name()->text().toStdString(), "");
    TypeAndEnter("..");
    EXPECT_EQ(FolderInHand(), Folder.Path());
    TypeAndEnter("~");
    EXPECT_EQ(FolderInHand(), HomeFolder());
}

TEST_F(FilePlaces, NamesAndPathsAreCompleted)
{
    Folder.Write("Game 1.sdk", "");
    Folder.Write("Game 2.sdk", "");
    Folder.Write("other.txt", "");
    std::filesystem::create_directory(Folder.Path("gallery"));
    Folder.Write("gallery/deep.sdk", "");
    Show(OpenGameCaption);
    const auto *box = Find<NameBox>("txtFileName");
    Type("ga");
    EXPECT_EQ(box->Offered(), (QStringList{"Game 1.sdk", "Game 2.sdk"}));
    const QString folder = QString::fromStdString(Folder.Path());
    Type((Folder.Path() + "ga").c_str());
    EXPECT_EQ(box->Offered(),
              (QStringList{folder + "gallery/", folder + "Game 1.sdk", folder + "Game 2.sdk"}));
    Type((Folder.Path() + "gallery/").c_str());
    EXPECT_EQ(box->Offered(), QStringList{folder + "gallery/deep.sdk"});
}

TEST_F(FilePlaces, NothingIsOfferedThatLiesElsewhereThanItSeems)
{
    std::filesystem::create_directory(Folder.Path("gallery"));
    Folder.Write("gallery/deep.sdk", "");
    Show(OpenGameCaption);
    const auto *box = Find<NameBox>("txtFileName");
    for (const char *path : {"gallery/", "./gallery/", "gone/", "/gone/"}) {
        Type(path);
        EXPECT_EQ(box->Offered(), QStringList()) << path;
    }
}

TEST_F(FilePlaces, EnterTakesTheNameThoughOthersAreOnOffer)
{
    Folder.Write("game.sdk", "");
    Folder.Write("game 2.sdk", "");
    Show(OpenGameCaption);
    Type("game");
    ASSERT_FALSE(Find<NameBox>("txtFileName")->Offered().empty());
    QTest::keyClick(Name(), Qt::Key_Return);
    EXPECT_FALSE(Dialog->isVisible());
    EXPECT_EQ(ChosenFilePath, Folder.Path("game.sdk"));
}

// ---- The list ------------------------------------------------------------------------------

TEST_F(FilePlaces, ColumnsSortAndTheSelectionGoesAlong)
{
    Folder.Write("a.sdk", "222");
    Folder.Write("b.sdk", "1");
    Folder.Write("C.sdk", "33333");
    const auto now = std::filesystem::file_time_type::clock::now();
    std::filesystem::last_write_time(Folder.Path("a.sdk"), now - std::chrono::hours(2));
    std::filesystem::last_write_time(Folder.Path("b.sdk"), now - std::chrono::hours(1));
    std::filesystem::last_write_time(Folder.Path("C.sdk"), now - std::chrono::hours(3));
    Show(OpenGameCaption);
    using Names = std::vector<std::string>;
    EXPECT_EQ(Listed(), (Names{"a.sdk", "b.sdk", "C.sdk"}));
    Files()->Select(0);
    Files()->sortByColumn(FileTable::SizeColumn, Qt::AscendingOrder);
    EXPECT_EQ(Listed(), (Names{"b.sdk", "a.sdk", "C.sdk"}));
    EXPECT_EQ(Files()->Selected()->Name, "a.sdk");
    Files()->sortByColumn(FileTable::DateColumn, Qt::DescendingOrder);
    EXPECT_EQ(Listed(), (Names{"b.sdk", "a.sdk", "C.sdk"}));
    Files()->sortByColumn(FileTable::NameColumn, Qt::DescendingOrder);
    EXPECT_EQ(Listed(), (Names{"C.sdk", "b.sdk", "a.sdk"}));
    EXPECT_EQ(Files()->Selected()->Name, "a.sdk");
}

TEST_F(FilePlaces, PictureTellsTheGameAndLeavesTheOneInHand)
{
    Grid[5][5] = BitTable[3] | GivenBit;
    StartGame(NewGame);
    Folder.Write("a game.sdk", GameFileBytes());
    Folder.Write("noise.sdk", "Dear player");
    Grid[5][5] = 0;
    StartGame(NewGame);
    const std::string before = GameFileBytes();
    Show(OpenGameCaption);
    EXPECT_EQ(Picture()->Words().toStdString(), "");
    const auto tells = [this](const QString &words) {
        return QTest::qWaitFor([&] { return Picture()->Words() == words; }, Patience);
    };
    Files()->Select(0);
    EXPECT_TRUE(tells("Multiple solutions\n1 given\nTime 0:00"));
    Files()->Select(1);
    EXPECT_TRUE(tells("This file holds no game."));
    EXPECT_EQ(GameFileBytes(), before);
    EXPECT_EQ(GivenCount, 0);
}

TEST_F(FilePlaces, FolderWhoseNameIsNoTextIsEnteredAndSavedTo)
{
    const std::string folder = Folder.Path("lat\xe4in/");
    std::filesystem::create_directory(folder);
    Show(SaveSolutionsCaption);
    ASSERT_EQ(Tree()->currentItem()->childCount(), 1);
    Tree()->setCurrentItem(Tree()->currentItem()->child(0));
    EXPECT_EQ(DialogFolder, folder);
    TypeAndEnter("game");
    EXPECT_EQ(ChosenFilePath, folder + "game.sdk");
}

TEST_F(FilePlaces, LargerWindowGivesItsRoomToTheFilesAndTheFolders)
{
    Show(OpenGameCaption);
    const auto sizes = [this] {
        return std::array{Places()->size(), Tree()->size(), Files()->size(), Picture()->size()};
    };
    const auto before = sizes();
    Dialog->resize(Dialog->size() + QSize(200, 100));
    QCoreApplication::processEvents();
    const auto after = sizes();
    EXPECT_EQ(after[0], before[0]) << "places";
    EXPECT_EQ(after[1], before[1] + QSize(0, 100)) << "folders";
    EXPECT_EQ(after[2], before[2] + QSize(200, 100)) << "files";
    EXPECT_EQ(after[3], before[3] + QSize(0, 100)) << "picture";
}

TEST_F(FilePlaces, SmallWindowsLeaveTheRoomToTheLists)
{
    FileDialogPlace = {10, 10, 290, 290};
    Show(OpenGameCaption);
    EXPECT_EQ(Dialog->size(), QSize(290, 290));
    EXPECT_FALSE(Picture()->isVisible());
    EXPECT_FALSE(Places()->isVisible());
    Dialog->resize(640, 480);
    EXPECT_TRUE(Picture()->isVisible());
    EXPECT_TRUE(Places()->isVisible());
    EXPECT_EQ(Dialog->size(), QSize(640, 480));
}

} // namespace
} // namespace kelvarine::testing
