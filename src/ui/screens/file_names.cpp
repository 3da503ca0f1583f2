#include "ui/screens/file_names.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace kelvarine {

namespace {

// The halves of letters that follow another half; alone they mean nothing.
constexpr char16_t StrayByte = 0xDC00;
constexpr char16_t FirstStray = StrayByte + 0x80;
constexpr char16_t LastStray = StrayByte + 0xFF;

constexpr std::size_t LongestLetter = 4; // in bytes

// Number of bytes of the letter that begins a text; 0 when none does.
std::size_t LetterLength(std::string_view bytes)
{
    for (std::size_t length = 1; length <= std::min(LongestLetter, bytes.size()); ++length) {
        const QByteArray letter(bytes.data(), static_cast<qsizetype>(length));
        if (QString::fromUtf8(letter).toUtf8() == letter) {
            return length;
        }
    }
    return 0;
}

bool IsStray(const QString &text, qsizetype place)
{
    const char16_t unit = text[place].unicode();
    return unit >= FirstStray && unit <= LastStray &&
           (place == 0 || !text[place - 1].isHighSurrogate());
}

// The entries of a folder whose kind is wanted; links count as what they point at.
template <typename Wanted>
FolderContents EntriesIn(const std::string &folder, Hidden hidden, const Wanted &wanted)
{
    FolderContents contents;
    std::error_code failure;
    std::filesystem::directory_iterator entry(folder, failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        const std::string &path = entry->path().native();
        std::string name = path.substr(path.rfind('/') + 1);
        struct stat kind {};
        if ((hidden == Hidden::Included || !name.starts_with('.')) &&
            ::stat(path.c_str(), &kind) == 0 && wanted(kind.st_mode)) {
            QString shown = ShownName(name);
            contents.Entries.push_back(
                {std::move(name), std::move(shown), kind.st_size, kind.st_mtime});
        }
        entry.increment(failure);
    }
    std::ranges::sort(contents.Entries, ShownBefore);
    if (failure) {
        contents.Failure = failure.message();
    }
    return contents;
}

} // namespace

QString ShownName(std::string_view bytes)
{
    QString shown = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    if (shown.toUtf8() == QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size()))) {
        return shown; // as nearly every name is
    }
    shown.clear();
    while (!bytes.empty()) {
        const std::size_t length = LetterLength(bytes);
        if (length == 0) {
            shown += QChar(StrayByte + static_cast<unsigned char>(bytes.front()));
        } else {
            shown += QString::fromUtf8(bytes.data(), static_cast<qsizetype>(length));
        }
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return shown;
}

std::string NameBytes(const QString &shown)
{
    std::string bytes;
    qsizetype start = 0;
    for (qsizetype place = 0; place < shown.size(); ++place) {
        if (IsStray(shown, place)) {
            bytes += shown.mid(start, place - start).toStdString();
            bytes += static_cast<char>(shown[place].unicode() - StrayByte);
            start = place + 1;
        }
    }
    return bytes + shown.mid(start).toStdString();
}

bool ShownBefore(const FileEntry &a, const FileEntry &b)
{
    const int order = a.Shown.compare(b.Shown, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a.Name < b.Name;
}

FolderContents FilesIn(const std::string &folder, Hidden hidden)
{
    return EntriesIn(folder, hidden, [](mode_t mode) { return S_ISREG(mode); });
}

FolderContents FoldersIn(const std::string &folder, Hidden hidden)
{
    return EntriesIn(folder, hidden, [](mode_t mode) { return S_ISDIR(mode); });
}

} // namespace kelvarine
