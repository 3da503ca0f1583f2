// Folders of the file dialog that are hidden, out of order, closed to the player or never at rest.
#include "failing/failing_calls.h"
#include "files/dialog_folders.h"
#include "support/widget_file_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include <cerrno>
#include <filesystem>
#include <sys/resource.h>

namespace kelvarine::testing {
namespace {

class FileFolders : public FileDialogWindow {
protected:
    [[nodiscard]] std::vector<std::string> FoldersBelow(const QTreeWidgetItem *item) const
    {
        std::vector<std::string> names;
        names.reserve(static_cast<std::size_t>(item->childCount()));
        for (int place = 0; place < item->childCount(); ++place) {
            names.push_back(item->child(place)->text(0).toStdString());
        }
        return names;
    }
};

using Names = std::vector<std::string>;

// No folder can be opened as long as this lives.
class NoFoldersToOpen {
public:
    NoFoldersToOpen()
    {
        ::getrlimit(RLIMIT_NOFILE, &before);
        rlimit none = before;
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    NoFoldersToOpen(const NoFoldersToOpen &) = delete;
    NoFoldersToOpen &operator=(const NoFoldersToOpen &) = delete;
    ~NoFoldersToOpen()
    {
        ::setrlimit(RLIMIT_NOFILE, &before);
    }

private:
    rlimit before{};
};

TEST_F(FileFolders, HiddenFolderInHandStandsInItsPlaceAndStays)
{
    for (const char *name : {"-first", ".hidden", "b", "A"}) {
        std::filesystem::create_directory(Folder.Path(name));
    }
    DialogFolder = Folder.Path(".hidden/");
    Show(OpenGameCaption);
    QTreeWidgetItem *above = Tree()->currentItem()->parent();
    EXPECT_EQ(FoldersBelow(above), (Names{"-first", ".hidden", "A", "b"}));
    above->setExpanded(false);
    Tree()->setCurrentItem(above);
    Tree()->ShowFolder(Folder.Path(".hidden/"));
    std::filesystem::create_directory(Folder.Path("a new one"));
    above->setExpanded(false);
    above->setExpanded(true);
    EXPECT_EQ(FoldersBelow(above), (Names{"-first", ".hidden", "A", "a new one", "b"}));
    EXPECT_EQ(FolderTree::FolderOf(Tree()->currentItem()), Folder.Path(".hidden/"));
}

TEST_F(FileFolders, FolderOnTheWayToTheOneInHandStaysAndOneThatWentGoes)
{
    std::filesystem::create_directories(Folder.Path(".a/b"));
    std::filesystem::create_directories(Folder.Path("c"));
    DialogFolder = Folder.Path(".a/b/");
    Show(OpenGameCaption);
    QTreeWidgetItem *above = Tree()->currentItem()->parent()->parent();
    std::filesystem::remove(Folder.Path("c"));
    emit Tree()->itemExpanded(above);
    EXPECT_EQ(FoldersBelow(above), Names{".a"});
    EXPECT_EQ(DialogFolder, Folder.Path(".a/b/"));
}

TEST_F(FileFolders, PathToAFolderThatCannotBeReadStaysInTheName)
{
    std::filesystem::create_directory(Folder.Path("inner"));
    Show(OpenGameCaption);
    Type(Folder.Path("inner").c_str());
    const BoxRecord boxes = AnswerBoxes(
        [&] {
            const NoFoldersToOpen none;
            QTest::keyClick(Name(), Qt::Key_Return);
        },
        {QMessageBox::Ok});
    EXPECT_EQ(boxes.Texts, Names{"Unable to open folder.\n\nToo many open files"});
    EXPECT_EQ(Name()->text().toStdString(), Folder.Path("inner"));
    EXPECT_EQ(DialogFolder, Folder.Path());
}

TEST_F(FileFolders, FolderThatFailsInTheMiddleShowsWhatWasReadAndSaysWhy)
{
    for (const char *name : {"a.txt", "b.txt", "c.txt"}) {
        Folder.Write(name, "");
    }
    Show(OpenGameCaption);
    const auto *told = Find<QLabel>("lblUnread");
    EXPECT_FALSE(told->isVisible());
    LetReadingFail(5, EIO); // with the folder itself and the one above there are five
    Find<QComboBox>("cmbFileTypes")->setCurrentIndex(static_cast<int>(TextFiles));
    EXPECT_GE(Listed().size(), 2U);
    EXPECT_TRUE(told->isVisible());
    EXPECT_EQ(told->text(), "This folder cannot be read to its end.\nInput/output error");
    LetReadingFail(0, 0);
    Find<QCheckBox>("chkHidden")->toggle();
    EXPECT_EQ(Listed(), (Names{"a.txt", "b.txt", "c.txt"}));
    EXPECT_FALSE(told->isVisible());
}

TEST_F(FileFolders, FolderThatFailsInTheMiddleLosesNoneInTheTree)
{
    const Names all{"a", "b", "c"};
    for (const std::string &name : all) {
        std::filesystem::create_directory(Folder.Path(name));
    }
    Show(OpenGameCaption);
    EXPECT_EQ(FoldersBelow(Tree()->currentItem()), all);
    LetReadingFail(3, EIO);
    Tree()->RefreshCurrent();
    EXPECT_EQ(FoldersBelow(Tree()->currentItem()), all);
    LetReadingFail(0, 0);
}

TEST_F(FileFolders, FolderThatChangesAllTheTimeIsListedAnew)
{
    Show(OpenGameCaption);
    int written = 0;
    QTimer writing;
    QObject::connect(&writing, &QTimer::timeout, &writing,
                     [&] { Folder.Write("game " + std::to_string(++written) + ".sdk", ""); });
    writing.start(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Listed().empty(); }, Patience));
}

} // namespace
} // namespace kelvarine::testing
