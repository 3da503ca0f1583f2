#include "ui/screens/folder_tree.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_set>

namespace kelvarine {

namespace {

constexpr int FolderRole = Qt::UserRole;   // bytes of the full path, with a closing slash
constexpr int ReadRole = Qt::UserRole + 1; // whether the folders in it were read

std::string NameOf(const QTreeWidgetItem *item)
{
    const std::string folder = FolderTree::FolderOf(item);
    const std::size_t start = folder.rfind('/', folder.size() - 2) + 1;
    return folder.substr(start, folder.size() - 1 - start);
}

FileEntry EntryOf(const QTreeWidgetItem *item)
{
    return {NameOf(item), item->text(0)};
}

QTreeWidgetItem *ChildNamed(const QTreeWidgetItem *parent, const std::string &folder)
{
    for (int place = 0; place < parent->childCount(); ++place) {
        if (FolderTree::FolderOf(parent->child(place)) == folder) {
            return parent->child(place);
        }
    }
    return nullptr;
}

// The place that a folder has among those in its parent, or would have; from a place on that is not
// behind it.
int PlaceFor(const FileEntry &folder, const QTreeWidgetItem *parent, int place)
{
    while (place < parent->childCount() && ShownBefore(EntryOf(parent->child(place)), folder)) {
        ++place;
    }
    return place;
}

bool IsAtOrBelow(const QTreeWidgetItem *item, const QTreeWidgetItem *above)
{
    while (item != nullptr && item != above) {
        item = item->parent();
    }
    return item != nullptr;
}

} // namespace

FolderTree::FolderTree(QWidget *parent)
    : QTreeWidget(parent), icon(style()->standardIcon(QStyle::SP_DirIcon))
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    addTopLevelItem(NewFolder("/", "/"));
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem *item) { Read(item); });
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem *item) {
        if (item != nullptr) {
            emit FolderChosen(FolderOf(item));
        }
    });
}

std::string FolderTree::FolderOf(const QTreeWidgetItem *item)
{
    return item->data(0, FolderRole).toByteArray().toStdString();
}

QTreeWidgetItem *FolderTree::NewFolder(const std::string &path, const QString &shown) const
{
    auto *item = new QTreeWidgetItem({shown});
    item->setData(0, FolderRole, QByteArray::fromStdString(path));
    item->setIcon(0, icon);
    // Whether there are folders in it is known when it is opened.
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return item;
}

// Takes away what is not among the folders in an entry any more, but for the way to the folder in
// hand: that may be hidden, and is left by the player alone while it is there.
void FolderTree::RemoveOthers(QTreeWidgetItem *item, const std::vector<FileEntry> &folders) const
{
    std::unordered_set<std::string> names;
    for (const FileEntry &folder : folders) {
        names.insert(folder.Name);
    }
    for (int place = item->childCount() - 1; place >= 0; --place) {
        const QTreeWidgetItem *child = item->child(place);
        std::error_code unseen;
        const bool stays = names.contains(NameOf(child)) ||
                           (IsAtOrBelow(currentItem(), child) &&
                            std::filesystem::is_directory(FolderOf(child), unseen));
        if (!stays) {
            delete child;
        }
    }
}

// Entries that are still there stay as they are, with what is open below them. They stand in the
// order of the folders, so both are gone through side by side.
void FolderTree::Read(QTreeWidgetItem *item) const
{
    const std::string path = FolderOf(item);
    const FolderContents folders = FoldersIn(path, hidden_);
    if (folders.Failure.empty()) {
        RemoveOthers(item, folders.Entries);
    }
    const bool wasEmpty = item->childCount() == 0;
    QList<QTreeWidgetItem *> fresh;
    int place = 0;
    for (const FileEntry &folder : folders.Entries) {
        place = PlaceFor(folder, item, place);
        const std::string inner = path + folder.Name + "/";
        if (wasEmpty) {
            fresh.append(NewFolder(inner, folder.Shown));
        } else if (place == item->childCount() || FolderOf(item->child(place)) != inner) {
            item->insertChild(place, NewFolder(inner, folder.Shown));
        }
    }
    item->addChildren(fresh); // in one go, as most are read
    item->setData(0, ReadRole, true);
    item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

// A folder that cannot be seen from above, since it is hidden or the one above cannot be read, is
// there all the same when it is asked for by name.
QTreeWidgetItem *FolderTree::Child(QTreeWidgetItem *parent, const std::string &name) const
{
    if (!parent->data(0, ReadRole).toBool()) {
        Read(parent);
    }
    const std::string folder = FolderOf(parent) + name + "/";
    QTreeWidgetItem *child = ChildNamed(parent, folder);
    if (child == nullptr) {
        const FileEntry entry{name, ShownName(name)};
        child = NewFolder(folder, entry.Shown);
        parent->insertChild(PlaceFor(entry, parent, 0), child);
    }
    return child;
}

void FolderTree::ShowFolder(const std::string &folder)
{
    const QSignalBlocker quiet(this);
    QTreeWidgetItem *item = topLevelItem(0);
    std::size_t start = 1;
    while (start < folder.size()) {
        const std::size_t end = std::min(folder.find('/', start), folder.size());
        if (end > start) {
            item->setExpanded(true);
            item = Child(item, folder.substr(start, end - start));
        }
        start = end + 1;
    }
    if (!item->data(0, ReadRole).toBool()) {
        Read(item);
    }
    setCurrentItem(item);
    item->setExpanded(true);
    BringIntoView(*item);
}

// In the middle, and with the beginning of its name however deep it lies.
void FolderTree::BringIntoView(QTreeWidgetItem &item)
{
    scrollToItem(&item, PositionAtCenter);
    int left = indentation();
    for (const QTreeWidgetItem *above = item.parent(); above != nullptr; above = above->parent()) {
        left += indentation();
    }
    const int words = 2 * indentation() + fontMetrics().horizontalAdvance(item.text(0));
    const bool fits = left + words <= viewport()->width();
    horizontalScrollBar()->setValue(fits ? 0 : left - indentation());
}

void FolderTree::RefreshCurrent()
{
    if (currentItem() != nullptr) {
        Read(currentItem());
    }
}

void FolderTree::SetHidden(Hidden hidden)
{
    hidden_ = hidden;
    const std::string folder = currentItem() != nullptr ? FolderOf(currentItem()) : "/";
    const QSignalBlocker quiet(this);
    clear();
    addTopLevelItem(NewFolder("/", "/"));
    ShowFolder(folder);
}

void FolderTree::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Backspace) {
        emit ParentWanted();
    } else {
        QTreeWidget::keyPressEvent(event);
    }
}

// Before it is on view, a tree knows too little of its size to bring a folder to its middle.
void FolderTree::showEvent(QShowEvent *event)
{
    QTreeWidget::showEvent(event);
    if (currentItem() != nullptr) {
        BringIntoView(*currentItem());
    }
}

} // namespace kelvarine
