// The rules of the file dialog, without its window: how a typed name becomes a path, what is asked
// and told on the way, and what a showing leaves behind.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvarine {

// What a showing of the dialog is for; the caption decides what OK does.
inline constexpr std::string_view OpenGameCaption = "Open Game";
inline constexpr std::string_view SaveGameCaption = "Save Game As";
inline constexpr std::string_view SaveSolutionsCaption = "Save Solution(s) As Text File";

// Entries of cmbFileTypes: a name, and the pattern in brackets.
inline constexpr std::array<std::string_view, 3> FileTypes{
    "Sudoku files (*.sdk)",
    "Text files (*.txt)",
    "All files (*.*)",
};
inline constexpr std::size_t SudokuFiles = 0;
inline constexpr std::size_t TextFiles = 1;
inline constexpr std::size_t AllFiles = 2;

inline constexpr int FileDialogTopic = 600; // of the help

// ---- State ---------------------------------------------------------------------------------

// Full path of the file chosen last.
extern std::string ChosenFilePath;

// Kept from one showing to the next.
extern std::string DialogFolder; // with a closing slash; at first the player's home folder
extern std::string DialogName;   // text of txtFileName

// Of the showing under way.
extern std::string DialogCaption;    // empty while there is none
extern std::string FilePattern;      // which files are listed, such as "*.sdk"
extern std::string DefaultExtension; // what a name without a point gets

// The last error of the system that OK came upon: its words, its number and where that was. It is
// kept for diagnosis and shown nowhere.
extern std::string LastFileError;

// Puts the state above to its defaults.
void SetFileDialogDefaults();

// ---- Operations ----------------------------------------------------------------------------

// Shows the dialog until the player has chosen a file or given up. LastAnswer is AnsweredOk or
// AnsweredCancel afterwards, whatever was asked while the dialog stood; on AnsweredOk
// ChosenFilePath is the file, and GameFilePath too under SaveGameCaption. A showing may come up
// over another, which goes on as it was.
void ShowFileDialog(std::string_view caption, std::size_t fileType);

// The player selects a type.
void SelectFileType(std::size_t fileType);

// True when a file by that name belongs to the list.
bool IsListed(std::string_view name);

// The first entry that begins as the typed text does, both without outer blanks and in small
// letters, so that blanks alone are the beginning of all; none when no entry does.
std::optional<std::size_t> EntryBeginning(const std::vector<std::string> &entries,
                                          std::string_view typed);

// The folder that OK leads to instead of taking a file: for "~", "." and "..", for a path to a
// folder that ends with a slash, and when opening also for one without, unless there is a file that
// the path names. Empty for everything else.
std::string FolderMeant(std::string_view typed);

// cmdOK with what stands in txtFileName: tells or asks what there is to tell or to ask. True, with
// the paths set, when the dialog closes; else it stays.
bool AcceptFileName(std::string_view typed);

// Asks whether a file that is there may be overwritten. True for Yes.
bool AgreeToOverwrite(const std::string &path);

// A text for a question, in which a single "&" would mark a key.
std::string WithDoubledMarks(std::string_view text);

// The Delete key on an entry of the list: asks, and deletes the file. True when it is gone. The
// file of the game in hand leaves the game modified.
bool DeleteListedFile(std::string_view name);

} // namespace kelvarine
