#include "files/player_file.h"

#include "files/file_dialog.h"
#include "files/recovered_folder.h"
#include "outside/messages.h"
#include "outside/whole_file.h"

#include <filesystem>
#include <system_error>

namespace kelvarine {

namespace {

bool AgreeToWriteInPlace(const std::string &path)
{
    return AskYesNo(WithDoubledMarks(path) +
                        "\rcannot be replaced by a new file.\r\rDo you want to write it in place?",
                    "Overwrite?");
}

bool WriteOver(const std::string &path, std::string_view bytes, std::string &failure)
{
    const std::string copy = CopyToRecovered(path, failure);
    if (copy.empty()) {
        return false;
    }
    if (!WriteInPlace(path, bytes, failure)) {
        failure += "\r\rWhat it held is kept in\r" + copy;
        return false;
    }
    std::error_code unseen;
    std::filesystem::remove(copy, unseen);
    return true;
}

} // namespace

bool WritePlayerFile(const std::string &path, std::string_view bytes, std::string &failure)
{
    if (NeedsWritingInPlace(path, failure)) {
        return AgreeToWriteInPlace(path) && WriteOver(path, bytes, failure);
    }
    return failure.empty() && ReplaceWholeFile(path, bytes, failure, MissingFolders::Refused);
}

bool SavePlayerFile(const std::string &path, std::string_view bytes)
{
    std::string failure;
    const bool saved = WritePlayerFile(path, bytes, failure);
    if (!failure.empty()) {
        ShowMessage("Unable to save file.\r\r" + failure);
    }
    return saved;
}

} // namespace kelvarine
