// The file that a document is printed into: as safe as a game's own.
#include "failing/failing_calls.h"
#include "outside/printer.h"
#include "support/temporary_folder.h"
#include "support/widget_program.h"
#include "ui/outside/printer_qt.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

namespace kelvarine::testing {
namespace {

constexpr std::string_view Former = "the page before";

class PaperFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        ChosenPrinter().setOutputFormat(QPrinter::PdfFormat);
        ChosenPrinter().setOutputFileName(QString::fromStdString(Folder.Path("page.pdf")));
        Folder.Write("page.pdf", Former);
    }

    static std::string PrintAPage()
    {
        EXPECT_TRUE(PrintText(10, 10, "a page"));
        return EndDocument();
    }

    [[nodiscard]] bool HoldsAPage(std::string_view name) const
    {
        const std::string bytes = Folder.Read(name);
        return bytes.starts_with("%PDF") && bytes.ends_with("%%EOF\n");
    }

    const Program TheProgram;
    const TemporaryFolder Folder;
};

TEST_F(PaperFile, IsTheOldOneOrTheNewOneWhicheverCallFails)
{
    for (const int error : {ENOSPC, EIO, EDQUOT, EROFS, EINTR}) {
        int call = 0;
        for (int made = 0; made >= call;) {
            ++call;
            Folder.Write("page.pdf", Former);
            ASSERT_TRUE(PrintText(10, 10, "a page"));
            LetCallFail(call, error);
            const std::string words = EndDocument();
            made = CallsMade();
            LetCallFail(0, 0);
            ASSERT_TRUE(HoldsAPage("page.pdf") ||
                        (Folder.Read("page.pdf") == Former && !words.empty()))
                << "call " << call << ", error " << error;
        }
        EXPECT_GT(call, 10) << "there are calls to fail";
    }
}

TEST_F(PaperFile, IsTheOneThatThePrinterHadWhenTheDocumentBegan)
{
    ASSERT_TRUE(PrintText(10, 10, "a page"));
    ChosenPrinter().setOutputFileName(QString::fromStdString(Folder.Path("help.pdf")));
    EXPECT_EQ(EndDocument(), "");
    EXPECT_TRUE(HoldsAPage("page.pdf"));
    EXPECT_FALSE(std::filesystem::exists(Folder.Path("help.pdf")));
}

TEST_F(PaperFile, WithAnotherNameIsWrittenInPlaceOnAYesAlone)
{
    std::filesystem::create_hard_link(Folder.Path("page.pdf"), Folder.Path("other.pdf"));
    EXPECT_EQ(AnswerBoxes([] { EXPECT_EQ(PrintAPage(), ""); }, {QMessageBox::No}).Titles,
              std::vector<std::string>{"Overwrite?"});
    EXPECT_EQ(Folder.Read("page.pdf"), Former);
    AnswerBoxes([] { EXPECT_EQ(PrintAPage(), ""); }, {QMessageBox::Yes});
    EXPECT_TRUE(HoldsAPage("page.pdf"));
    EXPECT_TRUE(HoldsAPage("other.pdf"));
}

} // namespace
} // namespace kelvarine::testing
