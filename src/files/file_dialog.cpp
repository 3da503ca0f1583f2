#include "files/file_dialog.h"

#include "files/dialog_folders.h"
#include "files/game_file.h"
#include "files/text_case.h"
#include "game/lifecycle.h"
#include "grid/history.h"
#include "outside/file_dialog.h"
#include "outside/folders.h"
#include "outside/messages.h"

#include <cassert>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace kelvarine {

std::string ChosenFilePath;
std::string DialogFolder;
std::string DialogName;
std::string DialogCaption;
std::string FilePattern;
std::string DefaultExtension;
std::string LastFileError;

namespace {

constexpr std::string_view TextPattern = "*.txt";
constexpr std::string_view EveryFile = "*.*";

std::string_view PatternOf(std::string_view fileType)
{
    const std::size_t start = fileType.rfind('(') + 1;
    return fileType.substr(start, fileType.rfind(')') - start);
}

// A type that the program selects gives its own ending; one that the player selects knows but two.
void PresetFileType(std::size_t fileType)
{
    FilePattern = PatternOf(FileTypes[fileType]);
    DefaultExtension = FilePattern.substr(1);
}

enum class Presence : std::uint8_t { There, Missing, Unreachable };

// Whether the folder is there that a path names a file in.
bool LiesInAFolder(const std::string &path)
{
    std::error_code failure;
    return std::filesystem::is_directory(path.substr(0, path.rfind('/') + 1), failure);
}

void KeepError(int number)
{
    LastFileError = std::generic_category().message(number) + ", Error #" + std::to_string(number) +
                    " occurred, at: Form File Command OK";
}

Presence PresenceOf(const std::string &path)
{
    struct stat kind {};
    if (::stat(path.c_str(), &kind) == 0) {
        return Presence::There;
    }
    const int error = errno;
    KeepError(error);
    return error == ENOENT && LiesInAFolder(path) ? Presence::Missing : Presence::Unreachable;
}

void TellToCheck(std::string_view what)
{
    ShowMessage(std::string(what) + "\r\rCheck path and file name");
}

// Whether the file may be opened or written over, as the caption wants it.
bool AgreeOnFile(const std::string &path)
{
    switch (PresenceOf(path)) {
    case Presence::Unreachable:
        TellToCheck("Path, file, or device error.");
        return false;
    case Presence::Missing:
        if (DialogCaption == OpenGameCaption) {
            TellToCheck("File not found");
            return false;
        }
        return true;
    case Presence::There:
        break;
    }
    return DialogCaption == OpenGameCaption || AgreeToOverwrite(path);
}

// The full path that a typed name means.
std::string PathFor(std::string_view typed)
{
    std::string path = WithHomeWrittenOut(typed);
    if (path.find('/') == std::string::npos) {
        path.insert(0, DialogFolder);
    }
    if (path.find('.', path.rfind('/') + 1) == std::string::npos) {
        path += DefaultExtension;
    }
    return path;
}

// What belongs to one showing.
struct Showing {
    std::string Caption = DialogCaption;
    std::string Pattern = FilePattern;
    std::string Extension = DefaultExtension;
    std::string Folder = DialogFolder;
};

// Goes on with the showing that another one came over. Without one below, the folder and the type
// stay as they are.
void ReturnTo(const Showing &former)
{
    DialogCaption = former.Caption;
    if (!former.Caption.empty()) {
        FilePattern = former.Pattern;
        DefaultExtension = former.Extension;
        DialogFolder = former.Folder;
    }
}

bool IsGameFile(const std::string &path)
{
    std::error_code failure;
    return !GameFilePath.empty() && std::filesystem::equivalent(path, GameFilePath, failure);
}

} // namespace

void SetFileDialogDefaults()
{
    ChosenFilePath.clear();
    DialogFolder = HomeFolder();
    DialogName.clear();
    DialogCaption.clear();
    LastFileError.clear();
    PresetFileType(SudokuFiles);
    SetDialogFolderDefaults();
}

void ShowFileDialog(std::string_view caption, std::size_t fileType)
{
    const Showing former;
    LastAnswer = AnsweredCancel;
    DialogFolder = NearestFolder(DialogFolder);
    DialogCaption = caption;
    PresetFileType(fileType);
    const bool chosen = RunFileDialog(fileType);
    // Only now: the closing of the window may have asked its own question over the dialog.
    LastAnswer = chosen ? AnsweredOk : AnsweredCancel;
    ReturnTo(former);
}

void SelectFileType(std::size_t fileType)
{
    assert(fileType < FileTypes.size());
    FilePattern = PatternOf(FileTypes[fileType]);
    DefaultExtension = FilePattern == TextPattern ? TextExtension : GameExtension;
}

bool IsListed(std::string_view name)
{
    return FilePattern == EveryFile ||
           LowerCase(name).ends_with(LowerCase(std::string_view(FilePattern).substr(1)));
}

std::optional<std::size_t> EntryBeginning(const std::vector<std::string> &entries,
                                          std::string_view typed)
{
    const std::string beginning = LowerCase(WithoutOuterBlanks(typed));
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        if (LowerCase(WithoutOuterBlanks(entries[entry])).starts_with(beginning)) {
            return entry;
        }
    }
    return std::nullopt;
}

std::string FolderMeant(std::string_view typed)
{
    const std::string_view name = WithoutOuterBlanks(typed);
    const bool saysSo =
        name == "~" || name == "." || name == ".." || name.ends_with('/') || name.ends_with("/..");
    std::error_code failure;
    if (!saysSo && (DialogCaption != OpenGameCaption ||
                    std::filesystem::is_regular_file(PathFor(name), failure))) {
        return {};
    }
    return TypedFolder(name, DialogFolder);
}

bool AcceptFileName(std::string_view typed)
{
    const std::string name(WithoutOuterBlanks(typed));
    if (name.empty()) {
        ShowMessage("Please enter a file name.");
        return false;
    }
    const std::string path = PathFor(name);
    if (!AgreeOnFile(path)) {
        return false;
    }
    ChosenFilePath = path;
    RememberFolderOf(path);
    if (DialogCaption == SaveGameCaption) {
        GameFilePath = path;
    }
    return true;
}

std::string WithDoubledMarks(std::string_view text)
{
    std::string doubled;
    for (const char mark : text) {
        doubled.append(mark == '&' ? 2 : 1, mark);
    }
    return doubled;
}

bool AgreeToOverwrite(const std::string &path)
{
    return AskYesNo(WithDoubledMarks(path) + "\ralready exists.\r\rDo you want to overwrite it?",
                    "Overwrite?");
}

bool DeleteListedFile(std::string_view name)
{
    const std::string path = DialogFolder + std::string(name);
    if (!AskYesNo("Are you sure you want to delete:\r" + WithDoubledMarks(name))) {
        return false;
    }
    const bool ofGame = IsGameFile(path);
    if (::unlink(path.c_str()) != 0) {
        const std::error_code reason(errno, std::generic_category());
        ShowMessage("Unable to delete file.\r\r" + reason.message());
        return false;
    }
    if (ofGame) {
        GameModified = True;
    }
    return true;
}

} // namespace kelvarine
