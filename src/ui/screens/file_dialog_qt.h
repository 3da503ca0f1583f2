// The window of the file dialog: a tree of folders, a list of files, a name and a type. Its rules
// stand in files/file_dialog.h.
#pragma once

#include <QDialog>
#include <QFileSystemModel>
#include <QTimer>

class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTreeView;

namespace kelvarine {

class FileDialog : public QDialog {
    Q_OBJECT

public:
    // Sets up a showing with a file type selected; the caption and the rest stand in the state of
    // the rules.
    FileDialog(QWidget *parent, std::size_t fileType);

    // Keeps place and name for the next showing, however the dialog is closed.
    void done(int result) override;

protected:
    // The Delete key in the list of files.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void BuildControls(std::size_t fileType);
    void BuildFolders();
    QLayout *Arrange();
    void Connect();
    void ConnectFiles();
    void ShowFolder();
    void FollowLoading(const QString &loaded);
    void FolderChosen(const QModelIndex &index);
    void ListFiles();
    void CopyName();
    void SearchTyped(const QString &typed);
    void DeleteSelected();
    void PressOk();
    void PressHelp();

    QFileSystemModel folders;
    QTimer nextTurn;                 // of the event loop
    QMetaObject::Connection loading; // keeps the folder in sight while the tree fills up
    QLabel *lblFolder;
    QTreeView *dirDirectory;
    QListWidget *filFiles;
    QLineEdit *txtFileName;
    QComboBox *cmbFileTypes;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
    QPushButton *cmdHelp;
};

} // namespace kelvarine
