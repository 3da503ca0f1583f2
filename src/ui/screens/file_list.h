// filFiles: the files of a folder with their size and date, in the order of the column that the
// player chose.
#pragma once

#include "ui/screens/file_names.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QIcon>
#include <QStyle>
#include <QTreeView>

#include <string>
#include <vector>

namespace kelvarine {

class FileTable : public QAbstractTableModel {
public:
    enum Column { NameColumn, SizeColumn, DateColumn, Columns };

    using QAbstractTableModel::QAbstractTableModel;

    // Takes the place of all entries before; they come in the order of their names.
    void Fill(std::vector<FileEntry> entries);

    [[nodiscard]] const std::vector<FileEntry> &Entries() const
    {
        return entries_;
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    [[nodiscard]] const QIcon &IconOf(const FileEntry &entry) const;
    void SortEntries();

    const QIcon fileIcon = QApplication::style()->standardIcon(QStyle::SP_FileIcon);
    const QIcon textIcon = QIcon::fromTheme("text-x-generic", fileIcon);
    const QIcon gameIcon = QApplication::windowIcon();
    std::vector<FileEntry> entries_;
    int sortColumn = NameColumn;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
};

class FileList : public QTreeView {
    Q_OBJECT

public:
    explicit FileList(QWidget *parent);

    // Shows other entries; the one that was selected stays so if it is among them.
    void Show(std::vector<FileEntry> entries);

    // What stands in the list's place while it is empty.
    void ExplainEmpty(const QString &words);

    [[nodiscard]] const std::vector<FileEntry> &Entries() const
    {
        return table.Entries();
    }

    // The selected entry; null when there is none.
    [[nodiscard]] const FileEntry *Selected() const;

    void Select(int row);
    void ScrollToRow(int row);

signals:
    void SelectionMoved();
    void EnteredByKey(); // an entry is selected by then if there is one
    void DeletePressed();
    void ParentWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    FileTable table;
    QString emptyWords;
};

} // namespace kelvarine
