#include "commands/save_question.h"
#include "commands/solutions_file.h"
#include "files/file_dialog.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "outside/folders.h"
#include "outside/whole_file.h"
#include "support/driver_games.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

class SolutionsFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        SolutionList = PlainSolution;
        SolutionCount = 1;
        Path = DataFolder() + "solutions.txt";
        std::string error;
        ASSERT_TRUE(ReplaceWholeFile(Path, "a former file that was longer than the text", error));
    }

    [[nodiscard]] std::string Read() const
    {
        std::string bytes;
        std::string error;
        EXPECT_TRUE(ReadWholeFile(Path, bytes, error)) << error;
        return bytes;
    }

    std::string Path;
};

TEST_F(SolutionsFile, HoldsTheTextOnViewInTheFormatOnView)
{
    for (const std::int32_t format : {0, 1}) {
        optSolutionsFormat(format);
        Seen.FileNames = {Path};
        Seen.YesNoAnswers = {true};
        cmdSaveAsTextFile();
        EXPECT_EQ(Read(), SolutionsText(format, PlainSolution) + "\r\n");
    }
}

TEST_F(SolutionsFile, IsChosenUnderItsTitleWithTextFilesFirst)
{
    Seen.Calls.clear();
    cmdSaveAsTextFile();
    EXPECT_EQ(Seen.Calls,
              (Texts{"file dialog: Save Solution(s) As Text File", "file dialog: cancelled"}));
    EXPECT_EQ(Seen.FileTypeSelected, TextFiles);
    EXPECT_EQ(Read(), "a former file that was longer than the text") << "cancelled";
}

TEST_F(SolutionsFile, KeepsToTheTextOnViewAfterLaterSearches)
{
    optSolutionsFormat(0);
    SolutionList = "something else";
    Seen.FileNames = {Path};
    Seen.YesNoAnswers = {true};
    cmdSaveAsTextFile();
    EXPECT_EQ(Read(), std::string(PlainSolution) + "\r\n\r\n");
}

TEST_F(SolutionsFile, EmptyTextIsOneLineEnd)
{
    Seen.FileNames = {Path};
    Seen.YesNoAnswers = {true};
    cmdSaveAsTextFile();
    EXPECT_EQ(Read(), "\r\n");
}

TEST_F(SolutionsFile, WritesNothingWhenItsDialogGoesWithTheProgram)
{
    ChosenFilePath = Path; // of the game that was opened before
    Seen.OnBox = [] {
        QuerySaveGame();
    };
    cmdSaveAsTextFile();
    EXPECT_EQ(Read(), "a former file that was longer than the text");
}

TEST_F(SolutionsFile, FolderThatIsGoneIsToldAndNotMadeAnew)
{
    const std::string folder = DataFolder() + "gone";
    std::filesystem::create_directories(folder);
    // Somebody deletes it between the dialog and its question whether to replace the file.
    Seen.YesNoAnswers = {true};
    std::ofstream(folder + "/solutions.txt") << "old";
    Seen.FileNames = {folder + "/solutions.txt"};
    Seen.OnBox = [&] {
        Seen.OnBox = [&] {
            std::filesystem::remove_all(folder);
        };
    };
    cmdSaveAsTextFile();
    EXPECT_EQ(Seen.Messages, Texts{"Unable to save file.\r\rNo such file or directory"});
    EXPECT_FALSE(FileExists(folder));
}

TEST_F(SolutionsFile, FailingWriteIsToldInTheSystemsWords)
{
    Seen.FileNames = {"/proc/file.txt"};
    cmdSaveAsTextFile();
    EXPECT_EQ(Seen.Messages, Texts{"Unable to save file.\r\rNo such file or directory"});
}

} // namespace
} // namespace kelvarine::testing
