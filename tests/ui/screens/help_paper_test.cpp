// Pages of the help on paper, which is white whatever the colours of the desktop are.
#include "outside/help.h"
#include "support/temporary_folder.h"
#include "support/widget_paper.h"
#include "support/widget_program.h"
#include "ui/screens/help_window.h"

#include <QPrinter>
#include <QTextDocument>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class HelpOnPaper : public ::testing::Test {
protected:
    void SetUp() override
    {
        ShowHelpTopic(0);
        Window = OpenHelpWindow();
        Window->Browser->setSource(
            Window->Browser->source().resolved(QUrl(QStringLiteral("xy-chain.html"))));
    }

    void TearDown() override
    {
        delete Window;
    }

    // Lets what is under way for the window's pictures come to its end, and shows what came of it.
    [[nodiscard]] QImage View() const
    {
        for (int turn = 0; turn < 3; ++turn) {
            Window->grab();
            static_cast<void>(Window->Browser->document()->size()); // lays out all of the page
            QCoreApplication::processEvents();
        }
        return Window->Browser->viewport()->grab().toImage();
    }

    std::vector<QImage> Print(const char *name)
    {
        QPrinter printer;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(Folder.Path(name)));
        EXPECT_TRUE(Window->Browser->PrintOn(printer));
        return PagesOf(Folder.Path(name));
    }

    const Program TheProgram;
    const TemporaryFolder Folder{};
    HelpWindow *Window = nullptr;
};

TEST_F(HelpOnPaper, IsTheSameUnderADarkDesktop)
{
    const std::vector<QImage> light = Print("light.pdf");
    QPalette dark = Window->Browser->palette();
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    Window->Browser->setPalette(dark);
    const QImage view = View();
    const std::vector<QImage> printed = Print("dark.pdf");
    ASSERT_EQ(printed.size(), light.size());
    for (std::size_t page = 0; page < light.size(); ++page) {
        EXPECT_TRUE(printed[page] == light[page]) << "page " << page;
    }
    EXPECT_TRUE(View() == view) << "and the window stays dark";
}

TEST_F(HelpOnPaper, IsTheSameFromANarrowWindow)
{
    Window->resize(1200, 800);
    static_cast<void>(View());
    const std::vector<QImage> wide = Print("wide.pdf");
    Window->resize(Window->minimumSizeHint().width(), 800);
    const QImage view = View();
    const std::vector<QImage> narrow = Print("narrow.pdf");
    ASSERT_EQ(narrow.size(), wide.size());
    for (std::size_t page = 0; page < wide.size(); ++page) {
        EXPECT_TRUE(narrow[page] == wide[page]) << "page " << page;
    }
    EXPECT_TRUE(View() == view) << "and the window stays narrow";
}

} // namespace
} // namespace kelvarine::testing
