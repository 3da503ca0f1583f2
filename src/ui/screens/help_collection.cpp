#include "ui/screens/help_collection.h"

#include "paint/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHelpContentWidget>
#include <QHelpEngineCore>
#include <QHelpLink>
#include <QThread>

#include <array>

namespace kelvarine {

namespace {

constexpr const char *CompiledHelp = "kelvarine.qch";
constexpr const char *Collection = "kelvarine.qhc";
constexpr int DefaultTopic = 0;

// A fresh collection in a folder of our own, with the compiled help in it.
bool MakeCollection(const QString &collection, const QString &compiled)
{
    QHelpEngineCore engine(collection);
    engine.setReadOnly(false);
    return engine.setupData() && engine.registerDocumentation(compiled);
}

std::unique_ptr<QHelpEngine> OpenEngine(const QString &collection, bool readOnly)
{
    auto engine = std::make_unique<QHelpEngine>(collection);
    engine->setReadOnly(readOnly);
    engine->setUsesFilterEngine(false);
    const bool usable = engine->setupData() && !engine->registeredDocumentations().isEmpty() &&
                        PageOfContext(*engine, DefaultTopic).isValid();
    return usable ? std::move(engine) : nullptr;
}

} // namespace

// Contents and index are gathered by threads of the engine, which takes away what they read before
// it waits for them.
HelpCollection::~HelpCollection()
{
    if (Engine == nullptr) {
        return;
    }
    for (QThread *gathering :
         Engine->contentModel()->QObject::parent()->findChildren<QThread *>()) {
        gathering->wait();
    }
}

QString HelpFolder()
{
    // Installed, beside the program in the build folder, beside the folder of a built test.
    constexpr std::array places{"/../share/kelvarine/help/", "/help/", "/../help/"};
    for (const char *place : places) {
        QString folder =
            QDir::cleanPath(QCoreApplication::applicationDirPath() + Text(place)) + u'/';
        if (QFile::exists(folder + Text(CompiledHelp))) {
            return folder;
        }
    }
    return {};
}

std::unique_ptr<HelpCollection> OpenHelp(const QString &folder)
{
    if (folder.isEmpty()) {
        return nullptr;
    }
    auto help = std::make_unique<HelpCollection>();
    if (help->Folder.isValid()) {
        const QString collection = help->Folder.filePath(Text(Collection));
        if (MakeCollection(collection, folder + Text(CompiledHelp))) {
            help->Engine = OpenEngine(collection, false);
            help->Searchable = help->Engine != nullptr;
        }
    }
    if (help->Engine == nullptr) {
        // No room to write in: the collection as it was built will do, without the search.
        help->Engine = OpenEngine(folder + Text(Collection), true);
    }
    return help->Engine != nullptr ? std::move(help) : nullptr;
}

QUrl PageOfContext(const QHelpEngineCore &engine, int context)
{
    const QList<QHelpLink> pages = engine.documentsForIdentifier(QString::number(context));
    if (!pages.isEmpty()) {
        return pages.front().url;
    }
    return context == DefaultTopic ? QUrl() : PageOfContext(engine, DefaultTopic);
}

} // namespace kelvarine
