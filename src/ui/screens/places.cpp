#include "ui/screens/places.h"

#include "files/dialog_folders.h"
#include "outside/folders.h"
#include "paint/text.h"
#include "ui/screens/file_names.h"

#include <QApplication>
#include <QDir>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QStyle>

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

// Where desktops and their users mount what comes and goes.
constexpr std::array<std::string_view, 3> MountFolders{"/media/", "/run/media/", "/mnt/"};

// The kernel raises this file when a volume comes or goes.
constexpr const char *MountsFile = "/proc/self/mountinfo";

QIcon PlaceIcon(const char *name)
{
    return QIcon::fromTheme(name, QApplication::style()->standardIcon(QStyle::SP_DirIcon));
}

std::string LastPart(const std::string &folder)
{
    const std::string open = folder.substr(0, folder.size() - 1);
    return open.substr(open.rfind('/') + 1);
}

} // namespace

std::vector<std::string> MountedVolumes()
{
    std::vector<std::string> volumes;
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        const std::string folder = NameBytes(volume.rootPath()) + "/";
        const bool removable = std::ranges::any_of(
            MountFolders, [&](std::string_view parent) { return folder.starts_with(parent); });
        if (removable) {
            volumes.push_back(folder);
        }
    }
    return volumes;
}

PlaceList::PlaceList(QWidget *parent) : QListWidget(parent), mounts(MountsFile)
{
    setTextElideMode(Qt::ElideMiddle);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setIconSize({side, side});
    connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem *item) {
        if (item != nullptr) {
            emit PlaceChosen(FolderOf(item));
        }
    });
    if (mounts.open(QIODevice::ReadOnly)) {
        watch = std::make_unique<QSocketNotifier>(mounts.handle(), QSocketNotifier::Exception);
        connect(watch.get(), &QSocketNotifier::activated, this, &PlaceList::VolumesChanged);
    }
}

std::string PlaceList::FolderOf(const QListWidgetItem *item)
{
    return item->data(Qt::UserRole).toByteArray().toStdString();
}

void PlaceList::Add(const QString &caption, const std::string &folder, const char *icon)
{
    for (int row = 0; row < count(); ++row) {
        if (FolderOf(item(row)) == folder) {
            return;
        }
    }
    auto *place = new QListWidgetItem(PlaceIcon(icon), caption, this);
    place->setData(Qt::UserRole, QByteArray::fromStdString(folder));
    place->setToolTip(ShownName(folder));
}

void PlaceList::ShowPlaces(const std::vector<std::string> &volumes)
{
    const QSignalBlocker quiet(this);
    clear();
    Add("Home", HomeFolder(), "user-home");
    struct Known {
        QStandardPaths::StandardLocation Location;
        const char *Caption;
        const char *Icon;
    };
    for (const Known &known :
         {Known{QStandardPaths::DesktopLocation, "Desktop", "user-desktop"},
          Known{QStandardPaths::DocumentsLocation, "Documents", "folder-documents"}}) {
        const QString folder = QStandardPaths::writableLocation(known.Location);
        if (QDir(folder).exists()) {
            Add(Text(known.Caption), NameBytes(folder) + "/", known.Icon);
        }
    }
    Add("File system", "/", "drive-harddisk");
    for (const std::string &volume : volumes) {
        Add(ShownName(LastPart(volume)), volume, "drive-removable-media");
    }
    for (const std::string &folder : RecentFolders) {
        Add(ShownName(LastPart(folder)), folder, "folder-recent");
    }
    MarkFolder(marked);
}

void PlaceList::MarkFolder(const std::string &folder)
{
    marked = folder;
    const QSignalBlocker quiet(this);
    clearSelection();
    setCurrentItem(nullptr);
    for (int row = 0; row < count(); ++row) {
        if (FolderOf(item(row)) == folder) {
            setCurrentRow(row);
        }
    }
}

} // namespace kelvarine
