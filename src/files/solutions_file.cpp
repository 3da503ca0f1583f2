#include "files/solutions_file.h"

#include "files/file_choice.h"
#include "files/whole_file.h"
#include "game/solutions.h"
#include "ui/presentation.h"

namespace kelvarine {

void cmdSaveAsTextFile()
{
    if (!ChooseFileToSave("Save Solution(s) As Text File", TextFiles)) {
        return;
    }
    std::string error;
    if (!ReplaceWholeFile(ChosenFilePath, SolutionsOnView + "\r\n", error)) {
        ShowMessage(error);
    }
}

} // namespace kelvarine
