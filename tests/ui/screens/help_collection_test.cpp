#include "ui/screens/help_collection.h"
#include "ui/screens/help_window.h"

#include <QCoreApplication>
#include <QFile>
#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QThread>
#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <sys/resource.h>

namespace kelvarine::testing {

namespace {

// As long as this lives no file can grow, as on a disk without room.
class FullDisk {
public:
    FullDisk() : handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit nothing{0, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &nothing);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    }

private:
    rlimit before{};
    void (*handler)(int);
};

QByteArray BytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

// The toolkit takes the tables of an engine away before it waits for the threads that read them,
// and a program that ends in this moment crashes now and then.
TEST(HelpCollection, GoesWhenItsContentsAndIndexAreGathered)
{
    for (int opening = 0; opening < 20; ++opening) {
        std::unique_ptr<HelpCollection> help = OpenHelp(HelpFolder());
        ASSERT_NE(help, nullptr);
        QObject *tables = help->Engine->contentModel()->QObject::parent();
        std::atomic<int> ended = 0;
        int gathered = -1; // threads that had ended when the tables went
        for (QThread *gathering : tables->findChildren<QThread *>()) {
            QObject::connect(
                gathering, &QThread::finished, gathering, [&ended] { ++ended; },
                Qt::DirectConnection);
        }
        QObject::connect(tables, &QObject::destroyed, tables,
                         [&ended, &gathered] { gathered = ended; });
        while (!help->Engine->contentModel()->isCreatingContents() ||
               !help->Engine->indexModel()->isCreatingIndex()) {
            if (ended > 0) {
                break;
            }
            QCoreApplication::processEvents();
        }
        help.reset();
        EXPECT_EQ(gathered, 2);
    }
}

TEST(HelpCollection, DamagedFileIsNoHelp)
{
    const QTemporaryDir folder;
    for (const char *name : {"kelvarine.qch", "kelvarine.qhc"}) {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("This is no database.");
    }
    EXPECT_EQ(OpenHelp(folder.path() + u'/'), nullptr);
}

TEST(HelpCollection, FullDiskStillShowsHelpButHasNoSearch)
{
    const QString collection = HelpFolder() + QStringLiteral("kelvarine.qhc");
    const QByteArray bytes = BytesOf(collection);
    {
        const FullDisk disk;
        const std::unique_ptr<HelpCollection> help = OpenHelp(HelpFolder());
        ASSERT_NE(help, nullptr);
        EXPECT_FALSE(help->Searchable);
        EXPECT_FALSE(help->Engine->fileData(PageOfContext(*help->Engine, 208)).isEmpty());
        HelpWindow window(OpenHelp(HelpFolder()));
        EXPECT_FALSE(window.SearchText->isEnabled());
        EXPECT_EQ(window.SearchResults->count(), 1);
        window.ShowTopic(208);
        EXPECT_EQ(window.Browser->documentTitle(), QStringLiteral("Settings: Logic"));
    }
    EXPECT_EQ(BytesOf(collection), bytes) << "the installed collection is left alone";
}

TEST(HelpCollection, LeavesNothingBehind)
{
    QString folder;
    {
        const std::unique_ptr<HelpCollection> help = OpenHelp(HelpFolder());
        ASSERT_NE(help, nullptr);
        folder = help->Folder.path();
        EXPECT_TRUE(QFile::exists(folder));
    }
    EXPECT_FALSE(QFile::exists(folder));
}

} // namespace kelvarine::testing
