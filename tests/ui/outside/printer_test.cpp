// The player's choice among printers, and what comes of places on their paper.
#include "outside/printer.h"
#include "support/ended_document.h"
#include "support/widget_paper.h"
#include "support/widget_printers.h"
#include "support/widget_program.h"
#include "ui/outside/printer_qt.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

constexpr double PointsPerInch = 72;

// Points on each side of the page that nothing is printed on.
double MarginInForce()
{
    return ChosenPrinter().pageLayout().margins(QPageLayout::Point).left();
}

TEST(Printer, AnotherPrinterPrintsAsFarOutAsItCan)
{
    const Program program;
    const PrintersInstalled printers({{"Narrow", 9}, {"Wide", 27}});
    ASSERT_TRUE(ChooseInDialog("Wide"));
    EXPECT_EQ(ChosenPrinter().printerName(), "Wide");
    EXPECT_NEAR(MarginInForce(), 27, 1);
    ASSERT_TRUE(ChooseInDialog("Narrow"));
    EXPECT_NEAR(MarginInForce(), 9, 1) << "and not those of the one before";
    const PrinterPage page = CurrentPrinterPage();
    EXPECT_NEAR(page.Width / page.PixelsPerInchAcross, (612 - 18) / PointsPerInch, 0.03);
    EXPECT_NEAR(page.Height / page.PixelsPerInchDown, (792 - 18) / PointsPerInch, 0.03);
}

// Where the pixels of a printer are large, a place that was cut to whole ones would be seen: it
// would end more than half a pixel before its measures.
TEST(Printer, PlacesAreRoundedToWholePixels)
{
    const Program program;
    const QTemporaryDir folder;
    const int usual = ChosenPrinter().resolution();
    constexpr int coarse = 20; // pixels to the inch
    constexpr double pixel = static_cast<double>(PixelsPerInch) / coarse;
    ChosenPrinter().setResolution(coarse);
    ChosenPrinter().setOutputFileName(folder.filePath("page.pdf"));
    EXPECT_TRUE(PrintPicture(PrintedPicture::Game, {19.7, 29.6, 80.8, 79.6}));
    EXPECT_EQ(EndAndHandOver(), "");
    ChosenPrinter().setResolution(usual);
    const std::vector<QImage> pages = PagesOf(folder.filePath("page.pdf").toStdString());
    ASSERT_EQ(pages.size(), 1U);
    const QRectF ink = InkIn(pages[0], pages[0].rect());
    const QRectF place =
        OnPage({20.0 / coarse, 30.0 / coarse, 81.0 / coarse, 80.0 / coarse}).toAlignedRect();
    EXPECT_NEAR(ink.left(), place.left(), pixel / 2);
    EXPECT_NEAR(ink.top(), place.top(), pixel / 2);
    EXPECT_NEAR(ink.width(), place.width(), pixel / 2);
    EXPECT_NEAR(ink.height(), place.height(), pixel / 2);
}

} // namespace
} // namespace kelvarine::testing
