// The compiled help as the program reads it: where it lies and how it is opened.
#pragma once

#include <QHelpEngine>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

namespace kelvarine {

// An open help. The toolkit keeps notes of its own beside a collection, and the index of all words;
// both go into a folder that lives as long as this, so that no two programs and no player's home
// are touched by it.
struct HelpCollection {
    HelpCollection() = default;
    HelpCollection(const HelpCollection &) = delete;
    HelpCollection &operator=(const HelpCollection &) = delete;
    HelpCollection(HelpCollection &&) = delete;
    HelpCollection &operator=(HelpCollection &&) = delete;
    ~HelpCollection(); // waits for what is still being gathered

    QTemporaryDir Folder;
    std::unique_ptr<QHelpEngine> Engine;
    bool Searchable = false; // false when there was no room for the index of words
};

// Folder of the compiled help, with a closing slash: that of the installed program, or the build's.
// Empty when it is found in neither.
QString HelpFolder();

// Opens the compiled help of a folder. Null when its files are missing or damaged.
std::unique_ptr<HelpCollection> OpenHelp(const QString &folder);

// Page of a context number, or of the default topic when no page has that number.
QUrl PageOfContext(const QHelpEngineCore &engine, int context);

} // namespace kelvarine
