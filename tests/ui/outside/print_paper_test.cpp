#include "board/look.h"
#include "commands/print_run.h"
#include "game/lifecycle.h"
#include "generator/generator.h"
#include "generator/random_source.h"
#include "grid/history.h"
#include "outside/whole_file.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "support/ended_document.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_modal.h"
#include "support/widget_paper.h"
#include "support/widget_program.h"
#include "ui/outside/printer_qt.h"

#include <QFile>
#include <QFileInfo>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <numeric>

namespace kelvarine::testing {
namespace {

constexpr std::uint32_t Seed = 20240917;
constexpr std::int32_t SixPerPage = 4; // index
constexpr std::int32_t TwelvePerPage = 6;

class Paper : public ::testing::Test {
protected:
    void SetUp() override
    {
        SetGame(EasyGame);
        StartGame(NewGame);
        GameModified = False;
        init_genrand(Seed);
    }

    [[nodiscard]] std::string Path(const std::string &name = "page.pdf") const
    {
        return folder.filePath(QString::fromStdString(name)).toStdString();
    }

    // Prints by the settings and gives the pages as pictures.
    [[nodiscard]] std::vector<QImage> Print() const
    {
        PrintTo(Path(), cmdPrint);
        return PagesOf(Path());
    }

    const Program program;
    const QTemporaryDir folder;
};

// Prints batches, and knows the games that the seed gives.
class BatchOnPaper : public Paper {
protected:
    void SetUp() override
    {
        Paper::SetUp();
        PrintMode = PrintNewGames;
    }

    static std::vector<GridTable> Games(int count)
    {
        const GridTable before = Grid;
        std::vector<GridTable> games;
        init_genrand(Seed);
        for (int k = 0; k < count; ++k) {
            EXPECT_TRUE(GenerateGame());
            games.push_back(Grid);
        }
        Grid = before;
        init_genrand(Seed);
        return games;
    }
};

QRectF PlaceOnPaper(const PageLayout &layout, int index)
{
    return OnPage(PlaceOf(layout, index));
}

// The solution of a game, all of it given.
GridTable SolvedGame(const GridTable &game)
{
    GridTable solved{};
    for (const Cell cell : Cells) {
        const CellWord solution = game[cell.Column][cell.Row] & SolutionMask;
        solved[cell.Column][cell.Row] = solution >> SolutionShift | GivenBit;
    }
    return solved;
}

void ExpectGame(const QImage &page, const QRectF &place, const GridTable &game)
{
    EXPECT_EQ(DigitsOn(page, place, game), NumbersOf(game));
}

void ExpectCorners(const QImage &page, const QRectF &place)
{
    // Some more all round, but nothing of the labels above and underneath.
    const double around = HalfMillimetre + 1;
    const QRect ink = InkIn(page, place.adjusted(-around, -around, around, 0.5));
    EXPECT_NEAR(ink.left(), place.left(), HalfMillimetre);
    EXPECT_NEAR(ink.top(), place.top(), HalfMillimetre);
    EXPECT_NEAR(ink.right() + 1, place.right(), HalfMillimetre);
    EXPECT_NEAR(ink.bottom() + 1, place.bottom(), HalfMillimetre);
}

// The strip under a picture, as high as the letters of a label.
QRectF StripUnder(const QRectF &place, double from, double to)
{
    constexpr double labelHeight = 10.0 / 72 * PixelsPerInch;
    return {place.left() + place.width() * from, place.bottom() + 1, place.width() * (to - from),
            labelHeight - 1};
}

// A label's letters begin and end within the advance of its first and last letter.
constexpr double SideBearing = 3;

void ExpectLabelAtTheLeft(const QImage &page, const QRectF &place)
{
    const QRect ink = InkIn(page, StripUnder(place, 0, 0.5));
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.left(), place.left(), SideBearing);
    EXPECT_LT(ink.right(), place.center().x() - 2);
}

void ExpectLabelAtTheRight(const QImage &page, const QRectF &place)
{
    const QRect ink = InkIn(page, StripUnder(place, 0.4, 1));
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.right() + 1, place.right(), SideBearing);
}

// ---- The current game ----------------------------------------------------------------------

TEST_F(Paper, CornersOfTheCurrentGameStandWhereTheMeasuresSay)
{
    const std::vector<PagePlace> measures{
        {0, 0, 3, 3}, {1, 2.5, 4.25, 6}, {2.37, 7.01, 1.5, 0.75}, {0.05, 0.05, 7.6, 11}};
    PrintAspect = False;
    PrintCentre = False;
    for (const PagePlace &place : measures) {
        PrintLeft = place.Left;
        PrintTop = place.Top;
        PrintWidth = place.Width;
        PrintHeight = place.Height;
        const std::vector<QImage> pages = Print();
        ASSERT_EQ(pages.size(), 1U);
        SCOPED_TRACE(place.Width);
        ExpectCorners(pages[0], OnPage(place));
    }
}

TEST_F(Paper, CurrentGameStandsInTheMiddleByDefault)
{
    const std::vector<QImage> pages = Print();
    ASSERT_EQ(pages.size(), 1U);
    const double middle = (PrintableWidth - 5) / 2;
    ExpectCorners(pages[0], OnPage({middle, (PrintableHeight - 5) / 2, 5, 5}));
    const QRect ink = InkIn(pages[0], pages[0].rect());
    EXPECT_NEAR(ink.center().x(), pages[0].width() / 2.0, 2);
}

TEST_F(Paper, FullPageReachesTheEdgesOfThePrintableArea)
{
    PrintAspect = False;
    TakePrintableArea();
    SetPrintFullPage(True);
    const std::vector<QImage> pages = Print();
    ExpectCorners(pages.at(0), OnPage({0, 0, PrintableWidth, PrintableHeight}));
}

TEST_F(Paper, LabelsOfTheCurrentGameStandLeftAndRight)
{
    const QImage page = Print().at(0);
    const QRectF place = OnPage(CurrentGamePlace(1, 1));
    ExpectLabelAtTheLeft(page, place);
    ExpectLabelAtTheRight(page, place);
}

TEST_F(Paper, GreyscaleMakesNoDifference)
{
    const QImage page = Print().at(0);
    PrintGreyScale = True;
    EXPECT_EQ(Print().at(0), page);
}

TEST_F(Paper, WidthOrHeightOfNoughtWritesNoFile)
{
    for (double *measure : {&PrintWidth, &PrintHeight}) {
        *measure = 0;
        ChosenPrinter().setOutputFileName(QString::fromStdString(Path()));
        const BoxRecord boxes = AnswerBoxes(cmdPrint);
        EXPECT_TRUE(boxes.Texts.empty());
        EXPECT_FALSE(FileExists(Path()));
        *measure = 5;
    }
}

TEST_F(Paper, AbsurdMeasuresPrintAPageAllTheSame)
{
    PrintAspect = False;
    PrintCentre = False;
    PrintLeft = PrintTop = -2e7;
    PrintWidth = PrintHeight = 4e7;
    EXPECT_EQ(Print().size(), 1U);
}

// ---- Batches -------------------------------------------------------------------------------

TEST_F(BatchOnPaper, EachLayoutShowsItsGamesWithTheirDigitsAndLabels)
{
    PrintIncludeSolutions = False;
    for (std::int32_t index = 0; index < 7; ++index) {
        SCOPED_TRACE(index);
        PrintGamesPerPage = index;
        const std::vector<GridTable> games = Games(GamesOnPage());
        const std::vector<QImage> pages = Print();
        ASSERT_EQ(pages.size(), 1U);
        const PageLayout layout =
            LayoutOfGames(static_cast<std::size_t>(index), PrintableWidth, PrintableHeight);
        for (int k = 0; k < GamesOnPage(); ++k) {
            const QRectF place = PlaceOnPaper(layout, k);
            ExpectCorners(pages[0], place);
            ExpectGame(pages[0], place, games[static_cast<std::size_t>(k)]);
            ExpectLabelAtTheLeft(pages[0], place);
            ExpectLabelAtTheRight(pages[0], place);
        }
    }
}

TEST_F(BatchOnPaper, TwelveGamesOnTwoPagesHaveOnePageOfSolutions)
{
    PrintGamesPerPage = SixPerPage;
    PrintPages = 2;
    const std::vector<GridTable> games = Games(12);
    const std::vector<QImage> pages = Print();
    ASSERT_EQ(pages.size(), 3U);
    const PageLayout layout = LayoutOfGames(SixPerPage, PrintableWidth, PrintableHeight);
    const PageLayout solutions = LayoutOfSolutions(PrintableWidth, PrintableHeight);
    for (int k = 0; k < 12; ++k) {
        SCOPED_TRACE(k);
        const GridTable &game = games[static_cast<std::size_t>(k)];
        ExpectGame(pages[static_cast<std::size_t>(k / 6)], PlaceOnPaper(layout, k % 6), game);
        const QRectF place = PlaceOnPaper(solutions, k);
        ExpectCorners(pages[2], place);
        ExpectGame(pages[2], place, SolvedGame(game));
        ExpectLabelAtTheRight(pages[2], place);
        EXPECT_TRUE(InkIn(pages[2], StripUnder(place, 0, 0.3)).isEmpty());
    }
    EXPECT_TRUE(InkIn(pages[2], PlaceOnPaper(solutions, 12)).isEmpty());
}

TEST_F(BatchOnPaper, TwentyFiveGamesHaveTwoPagesOfSolutionsEachRight)
{
    PrintPages = 25;
    const std::vector<GridTable> games = Games(25);
    const std::vector<QImage> pages = Print();
    ASSERT_EQ(pages.size(), 27U);
    const PageLayout layout = LayoutOfSolutions(PrintableWidth, PrintableHeight);
    for (int k = 0; k < 25; ++k) {
        SCOPED_TRACE(k);
        ExpectGame(pages[static_cast<std::size_t>(25 + k / 24)], PlaceOnPaper(layout, k % 24),
                   SolvedGame(games[static_cast<std::size_t>(k)]));
    }
}

TEST_F(BatchOnPaper, GameInHandIsBack)
{
    const GridTable before = Grid;
    EXPECT_FALSE(Print().empty());
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(GameRating, 1);
    EXPECT_EQ(GivenCount, 30);
}

TEST_F(BatchOnPaper, PageOfTwelveGamesIsSmall)
{
    constexpr qint64 most = 1'000'000;
    PrintIncludeSolutions = False;
    PrintGamesPerPage = TwelvePerPage;
    PrintTo(Path(), cmdPrint);
    EXPECT_LT(QFileInfo(QString::fromStdString(Path())).size(), most);
    // Textures and pencilmarks make it larger.
    GridTexture = 3;
    GivenTexture = 5;
    UnknownTexture = 7;
    FillOnStart = True;
    PrintTo(Path("textured.pdf"), cmdPrint);
    EXPECT_LT(QFileInfo(QString::fromStdString(Path("textured.pdf"))).size(), most);
}

TEST_F(BatchOnPaper, TwoPagesOfSixWithSolutionsAreSmall)
{
    constexpr qint64 most = 120'000;
    PrintGamesPerPage = SixPerPage;
    PrintPages = 2;
    PrintTo(Path(), cmdPrint);
    EXPECT_LT(QFileInfo(QString::fromStdString(Path())).size(), most);
}

// ---- Printers and failures -----------------------------------------------------------------

TEST_F(Paper, PaperIsALetterWhereInchesAreUsedAndA4ElsewhereWithoutAPrinter)
{
    EXPECT_EQ(UsualPaper(QLocale(QLocale::English, QLocale::UnitedStates)), QPageSize::Letter);
    EXPECT_EQ(UsualPaper(QLocale(QLocale::German, QLocale::Germany)), QPageSize::A4);
    EXPECT_EQ(UsualPaper(QLocale(QLocale::English, QLocale::UnitedKingdom)), QPageSize::A4);
}

TEST_F(Paper, PrintableAreaHasNothingOfTheMargins)
{
    const QPageLayout layout = ChosenPrinter().pageLayout();
    TakePrintableArea();
    const QMarginsF margins = layout.margins(QPageLayout::Inch);
    const QSizeF paper = layout.fullRect(QPageLayout::Inch).size();
    EXPECT_NEAR(PrintableWidth, paper.width() - margins.left() - margins.right(), 1e-9);
    EXPECT_NEAR(PrintableHeight, paper.height() - margins.top() - margins.bottom(), 1e-9);
    EXPECT_GT(margins.left(), 0);
}

TEST_F(Paper, FileThatCannotBeWrittenIsToldInTheSystemsWords)
{
    std::string error;
    ASSERT_TRUE(ReplaceWholeFile(Path("file"), "no folder", error));
    ChosenPrinter().setOutputFormat(QPrinter::PdfFormat);
    ChosenPrinter().setOutputFileName(QString::fromStdString(Path("file/page.pdf")));
    EXPECT_TRUE(PrintText(0, 0, "words"));
    const std::string words = EndAndHandOver();
    EXPECT_EQ(words, std::generic_category().message(ENOTDIR));
    EXPECT_EQ(EndAndHandOver(), "") << "the document has gone with its failure";
}

TEST_F(Paper, FolderThatIsGoneIsToldAndNotMadeAnew)
{
    ChosenPrinter().setOutputFormat(QPrinter::PdfFormat);
    ChosenPrinter().setOutputFileName(QString::fromStdString(Path("gone/page.pdf")));
    EXPECT_TRUE(PrintText(0, 0, "words"));
    EXPECT_EQ(EndAndHandOver(), std::generic_category().message(ENOENT));
    EXPECT_FALSE(FileExists(Path("gone")));
}

TEST_F(Paper, DocumentOnWhichNothingWasPrintedIsNone)
{
    ChosenPrinter().setOutputFileName(QString::fromStdString(Path()));
    EXPECT_EQ(EndAndHandOver(), "");
    EXPECT_FALSE(FileExists(Path()));
}

TEST_F(Paper, DialogThatIsCancelledPrintsNothing)
{
    ChosenPrinter().setOutputFileName(QString::fromStdString(Path()));
    const GridTable before = Grid;
    for (const std::int32_t mode : {PrintCurrent, PrintNewGames}) {
        PrintMode = mode;
        EXPECT_EQ(WhileModal<QPrintDialog>(cmdPrint, [](QPrintDialog &dialog) { dialog.reject(); }),
                  1);
    }
    EXPECT_FALSE(FileExists(Path()));
    EXPECT_EQ(Grid, before);
}

} // namespace
} // namespace kelvarine::testing
