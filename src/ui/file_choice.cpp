// Choosing a file over the toolkit's dialog.
#include "files/file_choice.h"

#include "game/lifecycle.h"
#include "ui/main_window.h"
#include "ui/text.h"

#include <QFileDialog>

#include <array>

namespace kelvarine {

namespace {

struct FileType {
    const char *Name;
    const char *Extension;
};

constexpr std::array<FileType, 3> FileTypes{
    {{"Sudoku files (*.sdk)", "sdk"}, {"Text files (*.txt)", "txt"}, {"All files (*.*)", ""}}};

} // namespace

bool ChooseFileToSave(std::string_view title, int firstType)
{
    QFileDialog dialog(Window(), Text(title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QStringList names;
    for (const FileType &type : FileTypes) {
        names.push_back(QString::fromLatin1(type.Name));
    }
    dialog.setNameFilters(names);
    dialog.selectNameFilter(names[firstType]);
    dialog.setDefaultSuffix(
        QString::fromLatin1(FileTypes[static_cast<std::size_t>(firstType)].Extension));
    LastAnswer = AnsweredCancel;
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    LastAnswer = AnsweredOk;
    ChosenFilePath = dialog.selectedFiles().front().toStdString();
    return true;
}

} // namespace kelvarine
