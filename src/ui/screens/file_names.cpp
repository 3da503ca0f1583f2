#include "ui/screens/file_names.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

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

} // namespace

QString ShownName(std::string_view bytes)
{
    QString shown;
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

std::vector<std::string> FilesIn(const std::string &folder)
{
    std::vector<std::string> names;
    std::error_code failure;
    std::filesystem::directory_iterator entry(folder, failure);
    while (!failure && entry != std::filesystem::directory_iterator()) {
        std::error_code unseen;
        const std::string name = entry->path().filename().string();
        if (!name.starts_with('.') && entry->is_regular_file(unseen)) {
            names.push_back(name);
        }
        entry.increment(failure);
    }
    std::ranges::sort(names, [](const std::string &a, const std::string &b) {
        const int order = ShownName(a).compare(ShownName(b), Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
    return names;
}

} // namespace kelvarine
