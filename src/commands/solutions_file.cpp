#include "commands/solutions_file.h"

#include "files/file_dialog.h"
#include "files/player_file.h"
#include "game/lifecycle.h"
#include "game/solutions.h"

namespace kelvarine {

void cmdSaveAsTextFile()
{
    ShowFileDialog(SaveSolutionsCaption, TextFiles);
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    SavePlayerFile(ChosenFilePath, SolutionsOnView + "\r\n");
}

} // namespace kelvarine
