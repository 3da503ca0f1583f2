#include "ui/screens/folder_tree.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int FolderRole = Qt::UserRole;   // bytes of the full path, with a closing slash
constexpr int ReadRole = Qt::UserRole + 1; // whether the folders in it were read

QTreeWidgetItem *NewFolder(const std::string &path, const QString &shown)
{
    static const QIcon icon = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
    auto *item = new QTreeWidgetItem({shown});
    item->setData(0, FolderRole, QByteArray::fromStdString(path));
    item->setIcon(0, icon);
    // Whether there are folders in it is known when it is opened.
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return item;
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

} // namespace

FolderTree::FolderTree(QWidget *parent) : QTreeWidget(parent)
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

// Entries that are still there stay as they are, with what is open below them.
void FolderTree::Read(QTreeWidgetItem *item) const
{
    const std::string path = FolderOf(item);
    QList<QTreeWidgetItem *> wanted;
    for (const FileEntry &folder : FoldersIn(path, hidden_)) {
        const std::string inner = path + folder.Name + "/";
        QTreeWidgetItem *known = item->childCount() > 0 ? ChildNamed(item, inner) : nullptr;
        wanted.append(known != nullptr ? known : NewFolder(inner, folder.Shown));
    }
    for (int place = item->childCount() - 1; place >= 0; --place) {
        if (!wanted.contains(item->child(place))) {
            delete item->child(place);
        }
    }
    if (item->childCount() == 0) {
        item->addChildren(wanted);
    }
    for (int place = 0; place < wanted.size(); ++place) {
        if (item->child(place) != wanted[place]) {
            item->insertChild(place, wanted[place]);
        }
    }
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
        child = NewFolder(folder, ShownName(name));
        parent->addChild(child);
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
