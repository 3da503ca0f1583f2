// The file that a document is printed into: as safe as a game's own.
#include "failing/failing_calls.h"
#include "outside/printer.h"
#include "support/ended_document.h"
#include "support/temporary_folder.h"
#include "support/widget_listener.h"
#include "support/widget_program.h"
#include "ui/outside/printer_qt.h"

#include <QFile>
#include <QPainter>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <iterator>

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
        return EndAndHandOver();
    }

    // Ends a document again and again, each time with another call of its writing failing.
    void FailEach(const std::function<void()> &begin,
                  const std::function<std::string()> &finish) const
    {
        for (const int error : {ENOSPC, EIO, EDQUOT, EROFS, EINTR}) {
            int call = 0;
            for (int made = 0; made >= call;) {
                ++call;
                Folder.Write("page.pdf", Former);
                begin();
                LetCallFail(call, error);
                const std::string words = finish();
                made = CallsMade();
                LetCallFail(0, 0);
                ASSERT_TRUE(HoldsAPage("page.pdf") ||
                            (Folder.Read("page.pdf") == Former && !words.empty()))
                    << "call " << call << ", error " << error;
            }
            EXPECT_GT(call, 10) << "there are calls to fail";
        }
    }

    [[nodiscard]] bool HoldsAPage(std::string_view name) const
    {
        const std::string bytes = Folder.Read(name);
        return bytes.starts_with("%PDF") && bytes.ends_with("%%EOF\n");
    }

    const Program TheProgram;
    const TemporaryFolder Folder{};
};

TEST_F(PaperFile, IsTheOldOneOrTheNewOneWhicheverCallFails)
{
    FailEach([] { ASSERT_TRUE(PrintText(10, 10, "a page")); }, EndAndHandOver);
}

TEST_F(PaperFile, OfAnotherWindowIsAsSafe)
{
    FailEach([] {},
             [] {
                 return PrintInOneGo([](QPagedPaintDevice &paper) {
                     QPainter(&paper).drawText(100, 100, "a page");
                     return true;
                 });
             });
    EXPECT_EQ(PrintInOneGo([](QPagedPaintDevice & /*paper*/) { return false; }),
              "The printer does not answer.");
    EXPECT_FALSE(IsPrinting());
}

// The dialog shows such a name, but what comes back of it is another one.
TEST_F(PaperFile, WhoseNameIsNoTextIsToldAndStays)
{
    Folder.Write("lat\xe4in.pdf", Former);
    const QByteArray path = QByteArray::fromStdString(Folder.Path("lat\xe4in.pdf"));
    ChosenPrinter().setOutputFileName(QFile::decodeName(path));
    EXPECT_FALSE(PrintText(10, 10, "a page"));
    EXPECT_EQ(EndAndHandOver(), "The name of this file is no text.\r\rPlease choose another one.");
    EXPECT_EQ(Folder.Read("lat\xe4in.pdf"), Former);
    const std::filesystem::directory_iterator files(Folder.Path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 2) << "and the page of every test";
}

TEST_F(PaperFile, IsTheOneThatThePrinterHadWhenTheDocumentBegan)
{
    ASSERT_TRUE(PrintText(10, 10, "a page"));
    ChosenPrinter().setOutputFileName(QString::fromStdString(Folder.Path("help.pdf")));
    EXPECT_EQ(EndAndHandOver(), "");
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

TEST_F(PaperFile, IsToldToThoseWhoListenWhenItIsThere)
{
    using Texts = std::vector<std::string>;
    Listener listener;
    listener.Heard();
    ChosenPrinter().setOutputFileName(QString::fromStdString(Folder.Path("new.pdf")));
    PrintAPage();
    EXPECT_EQ(listener.Heard(), Texts{"ObjectShow printed"});
    EXPECT_EQ(EndAndHandOver(), "");
    EXPECT_EQ(listener.Heard(), Texts{}) << "there was nothing to print";
    PrintInOneGo([](QPagedPaintDevice & /*paper*/) { return false; });
    EXPECT_EQ(listener.Heard(), Texts{}) << "of a failure a box tells";
    std::filesystem::create_hard_link(Folder.Path("new.pdf"), Folder.Path("other.pdf"));
    AnswerBoxes([] { PrintAPage(); }, {QMessageBox::No});
    const Texts heard = listener.Heard();
    EXPECT_EQ(std::ranges::count(heard, "ObjectShow printed"), 0) << "the player would rather not";
}

} // namespace
} // namespace kelvarine::testing
