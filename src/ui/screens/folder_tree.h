// dirDirectory: the folders of the system as a tree that is read where it is opened. Names that are
// no text are folders like any others.
#pragma once

#include "ui/screens/file_names.h"

#include <QIcon>
#include <QTreeWidget>

#include <string>
#include <vector>

namespace kelvarine {

class FolderTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit FolderTree(QWidget *parent);

    // Opens the tree down to a folder, told with its closing slash, which is then the current one
    // and in view. Nothing is told of it by FolderChosen.
    void ShowFolder(const std::string &folder);

    // Reads the folders in the current one again.
    void RefreshCurrent();

    // Whether hidden folders are shown from now on.
    void SetHidden(Hidden hidden);

    // Full path of an entry, with a closing slash.
    static std::string FolderOf(const QTreeWidgetItem *item);

signals:
    void FolderChosen(const std::string &folder);
    void ParentWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void BringIntoView(QTreeWidgetItem &item);
    [[nodiscard]] QTreeWidgetItem *NewFolder(const std::string &path, const QString &shown) const;
    void RemoveOthers(QTreeWidgetItem *item, const std::vector<FileEntry> &folders) const;
    void Read(QTreeWidgetItem *item) const;
    QTreeWidgetItem *Child(QTreeWidgetItem *parent, const std::string &name) const;

    const QIcon icon;
    Hidden hidden_ = Hidden::LeftOut;
};

} // namespace kelvarine
