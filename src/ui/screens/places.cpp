#include "ui/screens/places.h"

#include "files/dialog_folders.h"
#include "outside/folders.h"
#include "paint/text.h"
#include "ui/screens/file_names.h"

#include <QApplication>
#include <QDir>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QStyle>

#include <algorithm>
#include <array>
#include <charconv>

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

// A line of the table, as the manual page proc_pid_mountinfo(5) has it: four words, the folder,
// some more up to a lone hyphen, and the kind of file system.
constexpr int FolderWord = 4;
constexpr std::string_view BeforeKind = " - ";
constexpr std::string_view WaitsToBeMounted = "autofs";

std::string_view TakeWord(std::string_view &line)
{
    const std::string_view word = line.substr(0, line.find(' '));
    line.remove_prefix(std::min(word.size() + 1, line.size()));
    return word;
}

std::string_view KindOf(std::string_view line)
{
    const std::size_t place = line.find(BeforeKind);
    if (place == std::string_view::npos) {
        return {};
    }
    line.remove_prefix(place + BeforeKind.size());
    return TakeWord(line);
}

// Blanks and the like stand as a backslash and three octal digits.
std::string Decoded(std::string_view word)
{
    std::string bytes;
    while (!word.empty()) {
        unsigned char byte = 0;
        const std::string_view digits = word.substr(1, 3);
        const bool isCode =
            word.front() == '\\' && digits.size() == 3 &&
            std::from_chars(digits.data(), digits.data() + 3, byte, 8).ptr == digits.data() + 3;
        bytes += isCode ? static_cast<char>(byte) : word.front();
        word.remove_prefix(isCode ? 4 : 1);
    }
    return bytes;
}

bool ComesAndGoes(const std::string &folder)
{
    return std::ranges::any_of(MountFolders,
                               [&](std::string_view parent) { return folder.starts_with(parent); });
}

} // namespace

std::vector<std::string> VolumesIn(std::string_view table)
{
    std::vector<std::string> volumes;
    while (!table.empty()) {
        const std::size_t end = std::min(table.find('\n'), table.size());
        std::string_view line = table.substr(0, end);
        table.remove_prefix(std::min(end + 1, table.size()));
        for (int before = 0; before < FolderWord; ++before) {
            TakeWord(line);
        }
        const std::string folder = Decoded(TakeWord(line)) + "/";
        if (ComesAndGoes(folder) && KindOf(line) != WaitsToBeMounted) {
            volumes.push_back(folder);
        }
    }
    return volumes;
}

std::vector<std::string> MountedVolumes()
{
    QFile table(MountsFile);
    table.open(QIODevice::ReadOnly);
    return VolumesIn(table.readAll().toStdString());
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
