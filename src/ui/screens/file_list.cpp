#include "ui/screens/file_list.h"

#include "files/game_file.h"
#include "files/text_case.h"

#include <QDateTime>
#include <QFocusEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

QString DateOf(const FileEntry &entry)
{
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(entry.Changed), QLocale::ShortFormat);
}

QString TextOf(const FileEntry &entry, int column)
{
    switch (column) {
    case FileTable::NameColumn:
        return entry.Shown;
    case FileTable::SizeColumn:
        return QLocale().formattedDataSize(entry.Size, 1, QLocale::DataSizeTraditionalFormat);
    default:
        return DateOf(entry);
    }
}

bool ComesFirst(const FileEntry &a, const FileEntry &b, int column)
{
    switch (column) {
    case FileTable::SizeColumn:
        return a.Size < b.Size;
    case FileTable::DateColumn:
        return a.Changed < b.Changed;
    default:
        return ShownBefore(a, b);
    }
}

bool MovesInList(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home;
}

} // namespace

// ---- The table -----------------------------------------------------------------------------

// Games carry the program's picture, texts and the rest those of the desktop.
const QIcon &FileTable::IconOf(const FileEntry &entry) const
{
    const std::string name = LowerCase(entry.Name);
    if (name.ends_with(GameExtension)) {
        return gameIcon.isNull() ? fileIcon : gameIcon;
    }
    return name.ends_with(TextExtension) ? textIcon : fileIcon;
}

void FileTable::Fill(std::vector<FileEntry> entries)
{
    beginResetModel();
    entries_ = std::move(entries);
    SortEntries();
    endResetModel();
}

int FileTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int FileTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant FileTable::data(const QModelIndex &index, int role) const
{
    const FileEntry &entry = entries_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return TextOf(entry, index.column());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(IconOf(entry)) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == SizeColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                            : QVariant();
    case Qt::ToolTipRole:
        return index.column() == NameColumn ? QVariant(entry.Shown) : QVariant();
    default:
        return {};
    }
}

QVariant FileTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const std::array<QString, Columns> heads{"Name", "Size", "Date"};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return heads[static_cast<std::size_t>(section)];
}

void FileTable::sort(int column, Qt::SortOrder order)
{
    sortColumn = column;
    sortOrder = order;
    emit layoutAboutToBeChanged();
    const QModelIndexList held = persistentIndexList();
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(held.size()));
    for (const QModelIndex &index : held) {
        names.push_back(entries_[static_cast<std::size_t>(index.row())].Name);
    }
    SortEntries();
    for (std::size_t k = 0; k < names.size(); ++k) {
        const QModelIndex &former = held[static_cast<qsizetype>(k)];
        const auto place = std::ranges::find(entries_, names[k], &FileEntry::Name);
        changePersistentIndex(former,
                              index(static_cast<int>(place - entries_.begin()), former.column()));
    }
    emit layoutChanged();
}

void FileTable::SortEntries()
{
    const bool falling = sortOrder == Qt::DescendingOrder;
    std::ranges::stable_sort(entries_, [&](const FileEntry &a, const FileEntry &b) {
        return falling ? ComesFirst(b, a, sortColumn) : ComesFirst(a, b, sortColumn);
    });
}

// ---- The list ------------------------------------------------------------------------------

FileList::FileList(QWidget *parent) : QTreeView(parent)
{
    setModel(&table);
    setRootIsDecorated(false);
    setUniformRowHeights(true); // so that ten thousand rows need not be measured
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setTextElideMode(Qt::ElideMiddle);
    setTabKeyNavigation(false);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(FileTable::NameColumn, QHeaderView::Stretch);
    header()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 6);
    setColumnWidth(FileTable::SizeColumn, fontMetrics().horizontalAdvance("1023.9 KB ") + 12);
    const QString date = DateOf({});
    setColumnWidth(FileTable::DateColumn, fontMetrics().horizontalAdvance(date + "0000"));
    header()->setSortIndicator(FileTable::NameColumn, Qt::AscendingOrder);
    setSortingEnabled(true);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FileList::SelectionMoved);
}

void FileList::Show(std::vector<FileEntry> entries)
{
    const std::string selected = Selected() != nullptr ? Selected()->Name : std::string();
    table.Fill(std::move(entries));
    const auto &now = table.Entries();
    const auto place = std::ranges::find(now, selected, &FileEntry::Name);
    if (place != now.end()) {
        Select(static_cast<int>(place - now.begin()));
    }
}

void FileList::ExplainEmpty(const QString &words)
{
    emptyWords = words;
    viewport()->update();
}

const FileEntry *FileList::Selected() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.empty() ? nullptr : &table.Entries()[static_cast<std::size_t>(rows.front().row())];
}

void FileList::Select(int row)
{
    setCurrentIndex(table.index(row, FileTable::NameColumn));
}

void FileList::ScrollToRow(int row)
{
    scrollTo(table.index(row, FileTable::NameColumn));
}

void FileList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete) {
        emit DeletePressed();
    } else if (event->key() == Qt::Key_Backspace) {
        emit ParentWanted();
    } else if (Selected() == nullptr && MovesInList(event->key()) && table.rowCount() > 0) {
        Select(0);
    } else {
        QTreeView::keyPressEvent(event);
    }
}

// Who comes by the keyboard finds an entry to go on from.
void FileList::focusInEvent(QFocusEvent *event)
{
    QTreeView::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    const bool byKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                       reason == Qt::ShortcutFocusReason;
    if (byKey && Selected() == nullptr && table.rowCount() > 0) {
        const QSignalBlocker quiet(this);
        Select(0);
    }
    if (byKey) {
        emit EnteredByKey();
    }
}

void FileList::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (table.rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(viewport()->rect().marginsRemoved({8, 8, 8, 8}),
                         Qt::AlignCenter | Qt::TextWordWrap, emptyWords);
    }
}

} // namespace kelvarine
