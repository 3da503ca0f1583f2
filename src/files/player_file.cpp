#include "files/player_file.h"

#include "files/file_dialog.h"
#include "files/recovered_folder.h"
#include "outside/messages.h"
#include "outside/whole_file.h"

#include <filesystem>
#include <system_error>

namespace kelvarine {

namespace {

void TellFailure(const std::string &words)
{
    ShowMessage("Unable to save file.\r\r" + words);
}

bool AgreeToWriteInPlace(const std::string &path)
{
    return AskYesNo(WithDoubledMarks(path) +
                        "\rcannot be replaced by a new file.\r\rDo you want to write it in place?",
                    "Overwrite?");
}

bool WriteOver(const std::string &path, std::string_view bytes)
{
    std::string error;
    const std::string copy = CopyToRecovered(path, error);
    if (copy.empty()) {
        TellFailure(error);
        return false;
    }
    if (!WriteInPlace(path, bytes, error)) {
        TellFailure(error + "\r\rWhat it held is kept in\r" + copy);
        return false;
    }
    std::error_code unseen;
    std::filesystem::remove(copy, unseen);
    return true;
}

} // namespace

bool SavePlayerFile(const std::string &path, std::string_view bytes)
{
    if (NeedsWritingInPlace(path)) {
        return AgreeToWriteInPlace(path) && WriteOver(path, bytes);
    }
    std::string error;
    if (!ReplaceWholeFile(path, bytes, error, MissingFolders::Refused)) {
        TellFailure(error);
        return false;
    }
    return true;
}

} // namespace kelvarine
