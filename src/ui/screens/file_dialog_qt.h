// The window of the file dialog: places, a tree of folders, a list of files with a picture of the
// selected game, a name and a type. Its rules stand in files/file_dialog.h.
#pragma once

#include <QDialog>
#include <QFileSystemWatcher>
#include <QTimer>

#include <string>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QPushButton;
class QSplitter;
class QToolButton;

namespace kelvarine {

class FileList;
class FolderTree;
class GamePicture;
class NameBox;
class PlaceList;

class FileDialog : public QDialog {
    Q_OBJECT

public:
    // Sets up a showing with a file type selected; the caption and the rest stand in the state of
    // the rules.
    FileDialog(QWidget *parent, std::size_t fileType);

    // Keeps place and name for the next showing, however the dialog is closed.
    void done(int result) override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void BuildControls(std::size_t fileType);
    void BuildTools();
    QLayout *Arrange();
    QLayout *ArrangeHead();
    void ArrangeLists();
    void SetTabOrder();
    void Connect();
    void ConnectFiles();
    void ConnectFolders();
    void GoTo(const std::string &folder);
    void TakeFolder(const std::string &folder);
    void PlaceWanted(const std::string &folder);
    void ParentWanted();
    void NewFolder();
    void ShowHidden(bool shown);
    void ListSoon();
    void FolderChanged();
    void ListFiles();
    void CopyName();
    void EnterList();
    void ShowPicture();
    void SearchTyped(const QString &typed);
    void OfferFor(const QString &typed);
    void DeleteSelected();
    void PressOk();
    void PressHelp();

    QFileSystemWatcher watcher; // of the folder in hand
    QTimer changes;             // until changes in it are shown
    QLabel *lblFolder;
    QToolButton *cmdParent;
    QToolButton *cmdNewFolder;
    QSplitter *lists;
    QWidget *placesPart = nullptr;
    PlaceList *drvDrive;
    FolderTree *dirDirectory;
    FileList *filFiles;
    QLabel *lblUnread; // why not all files of the folder are in the list
    GamePicture *picGame;
    NameBox *txtFileName;
    QComboBox *cmbFileTypes;
    QCheckBox *chkHidden;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
    QPushButton *cmdHelp;
};

} // namespace kelvarine
