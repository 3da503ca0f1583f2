// drvDrive: the places that a player goes to first: home, desktop and documents, the whole system,
// volumes that are mounted, and folders that were used last.
#pragma once

#include <QFile>
#include <QListWidget>
#include <QSocketNotifier>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine {

// Where volumes that come and go are mounted, each with a closing slash. No volume is asked for
// anything, as a server that is gone would not answer.
std::vector<std::string> MountedVolumes();

// The same out of the system's table of mounts, a line each.
std::vector<std::string> VolumesIn(std::string_view table);

class PlaceList : public QListWidget {
    Q_OBJECT

public:
    explicit PlaceList(QWidget *parent);

    // Shows the places that there are with these volumes.
    void ShowPlaces(const std::vector<std::string> &volumes);

    // Marks the place that a folder is, or none.
    void MarkFolder(const std::string &folder);

    // Folder of a place, with a closing slash.
    static std::string FolderOf(const QListWidgetItem *item);

signals:
    void PlaceChosen(const std::string &folder);
    void VolumesChanged();

private:
    void Add(const QString &caption, const std::string &folder, const char *icon);

    QFile mounts;
    std::unique_ptr<QSocketNotifier> watch;
    std::string marked;
};

} // namespace kelvarine
