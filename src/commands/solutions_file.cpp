#include "commands/solutions_file.h"

#include "files/file_dialog.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "outside/messages.h"
#include "outside/whole_file.h"

namespace kelvarine {

void cmdSaveAsTextFile()
{
    ShowFileDialog(SaveSolutionsCaption, TextFiles);
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    std::string error;
    if (!ReplaceWholeFile(ChosenFilePath, SolutionsOnView + "\r\n", error,
                          MissingFolders::Refused)) {
        ShowMessage("Unable to save file.\r\r" + error);
    }
}

} // namespace kelvarine
