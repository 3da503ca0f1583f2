// The pictures of the help: whether what they show can be read, in both forms and at every size.
#include "files/text_format.h"
#include "grid/grid.h"
#include "help_example.h"
#include "help_picture.h"
#include "outside/help.h"
#include "support/widget_program.h"
#include "ui/screens/help_page.h"
#include "ui/screens/help_window.h"

#include <QAbstractTextDocumentLayout>
#include <QFileInfo>
#include <QHeaderView>
#include <QHelpContentWidget>
#include <QLineEdit>
#include <QPrinter>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QtTest>
#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace kelvarine::testing {

namespace {

// How bright a colour is, 0 to 1, and how far two stand apart, 1 to 21: after the definitions of
// relative luminance and contrast ratio in the W3C's guidelines on accessible content.
double Luminance(QColor colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(QColor one, QColor other)
{
    const double first = Luminance(one) + 0.05;
    const double second = Luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

struct HelpPictures : ::testing::Test {
    std::unique_ptr<HelpCollection> Help = OpenHelp(HelpFolder());

    [[nodiscard]] QImage Picture(const QString &file) const
    {
        return QImage::fromData(
            Help->Engine->fileData(PageOfContext(*Help->Engine, 0).resolved(QUrl(file))));
    }
};

// A cell of a picture, without its edge.
QRect CellOf(int column, int row)
{
    const int side = HelpPictureRatio * PictureCellSide;
    return QRect(HelpPictureRatio * PicturePlace(column), HelpPictureRatio * PicturePlace(row),
                 side, side)
        .adjusted(2, 2, -2, -2);
}

// The colour that most pixels of an area have.
QColor GroundOf(const QImage &picture, QRect area)
{
    std::map<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end(), [](auto one, auto other) {
        return one.second < other.second;
    });
    return QColor::fromRgb(most->first);
}

// The rows of an area in which a pixel stands well apart from the ground; nothing where none does.
QRect InkOf(const QImage &picture, QRect area, QColor ground, double contrast)
{
    QRect ink;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (Contrast(picture.pixelColor(x, y), ground) >= contrast) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

struct HelpView : ::testing::Test {
    HelpView() = default;
    HelpView(const HelpView &) = delete;
    HelpView &operator=(const HelpView &) = delete;
    ~HelpView() override
    {
        QApplication::setPalette(Before);
        delete OpenHelpWindow();
    }

    static HelpWindow *Show(const QString &page)
    {
        ShowHelpTopic(0);
        HelpWindow *window = OpenHelpWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window, Patience));
        window->Browser->setSource(window->Browser->source().resolved(QUrl(page)));
        return window;
    }

    // All pages of the help.
    static QList<QUrl> Pages()
    {
        const std::unique_ptr<HelpCollection> help = OpenHelp(HelpFolder());
        return help != nullptr ? help->Engine->files(QStringLiteral("kelvarine"), QStringList(),
                                                     QStringLiteral("html"))
                               : QList<QUrl>();
    }

    // The picture as the page shows it.
    static QImage PictureOnView(const QString &name)
    {
        return qvariant_cast<QImage>(OpenHelpWindow()->Browser->document()->resource(
            QTextDocument::ImageResource, QUrl(name)));
    }

    Program Game;
    QPalette Before = QApplication::palette();
};

} // namespace

// The room of a pencilmark in a cell of a picture: every number has a place of its own.
QRect MarkOf(QRect cell, int number)
{
    const int side = HelpPictureRatio * PictureCellSide / 3;
    return QRect(cell.x() - 2 + (number - 1) % 3 * side, cell.y() - 2 + (number - 1) / 3 * side,
                 side, side)
        .intersected(cell);
}

// Every number and every pencilmark on the board is large and strong enough in the picture.
void ExpectNumbersToStandOut(const QImage &picture)
{
    ASSERT_EQ(picture.width(), HelpPictureRatio * PictureSide);
    for (const Cell where : Cells) {
        const QRect cell = CellOf(where.Column, where.Row);
        const QColor ground = GroundOf(picture, cell);
        for (int number = 1; number <= 9; ++number) {
            if ((WordAt(where) & BitTable[static_cast<std::size_t>(number)]) != 0) {
                const bool alone = CountCandidates(where.Column, where.Row) == 1;
                const QRect ink = InkOf(picture, alone ? cell : MarkOf(cell, number), ground, 3);
                EXPECT_GE(ink.height(), 14 * HelpPictureRatio)
                    << where.Column << ' ' << where.Row << ' ' << number;
            }
        }
    }
}

TEST_F(HelpPictures, EveryNumberStandsOutFromItsCell)
{
    ASSERT_NE(Help, nullptr);
    const Program program;
    int pictures = 0;
    for (const QUrl &url :
         Help->Engine->files(QStringLiteral("kelvarine"), QStringList(), QStringLiteral("html"))) {
        const std::string page = Help->Engine->fileData(url).toStdString();
        QString name = url.fileName().replace(QStringLiteral(".html"), QStringLiteral(".png"));
        for (int which = 1; !PositionOf(page, which).empty(); ++which) {
            ReadPosition(PositionOf(page, which));
            for (const QString &form : {name, DarkFormOf(name)}) {
                SCOPED_TRACE(form.toStdString());
                ExpectNumbersToStandOut(Picture(form));
                ++pictures;
            }
            name = url.fileName().replace(QStringLiteral(".html"),
                                          QStringLiteral("-%1.png").arg(which + 1));
        }
    }
    EXPECT_EQ(pictures, 2 * (3 * 18 + 11));
}

TEST(HelpPictureLook, NumbersStandOutByFourAndAHalfAndPaleMarksByThree)
{
    for (const PictureLook *look : {&LightPicture, &DarkPicture}) {
        for (const QColor &ground : {look->Paper, look->Given, look->House, look->Pattern,
                                     look->Second, look->Target, look->Spoiler}) {
            EXPECT_GE(Contrast(look->Ink, ground), 4.5);
            EXPECT_GE(Contrast(look->PaleInk, ground), 3);
            EXPECT_GE(Contrast(look->Chain, ground), 3);
        }
        EXPECT_GE(Contrast(look->Strike, look->Target), 4.5) << "a number to be placed";
        EXPECT_GE(Contrast(look->Strike, look->Pattern), 3) << "what strikes through";
        EXPECT_GE(Contrast(look->Strike, look->Spoiler), 3) << "a ring";
        EXPECT_GE(Contrast(look->JointInk, look->Chain), 4.5);
        EXPECT_GE(Contrast(look->Lines, look->Paper), 3);
    }
}

TEST_F(HelpPictures, WhatFallsIsStruckThroughInTheCellOfTheHint)
{
    ASSERT_NE(Help, nullptr);
    const std::string name = "xy-chain"; // [D8] contains a 4
    for (const PictureLook *look : {&LightPicture, &DarkPicture}) {
        const QString file = QString::fromStdString(name) + QStringLiteral(".png");
        const QImage picture = Picture(look == &DarkPicture ? DarkFormOf(file) : file);
        const QRect cell = CellOf(4, 8);
        EXPECT_EQ(GroundOf(picture, cell), look->Target);
        int struck = 0;
        for (int y = cell.top(); y <= cell.bottom(); ++y) {
            for (int x = cell.left(); x <= cell.right(); ++x) {
                struck += picture.pixelColor(x, y) == look->Strike ? 1 : 0;
                const bool middleLeft = x < cell.left() + cell.width() / 3 + 3 &&
                                        std::abs(y - cell.center().y()) < cell.height() / 5 + 3;
                EXPECT_TRUE(picture.pixelColor(x, y) != look->Strike || middleLeft)
                    << x << ' ' << y;
            }
        }
        EXPECT_GT(struck, 40);
        EXPECT_EQ(GroundOf(picture, CellOf(4, 5)), look->Pattern);
        EXPECT_EQ(GroundOf(picture, CellOf(9, 5)), look->Second);
        EXPECT_EQ(GroundOf(picture, CellOf(1, 1)), look->Given);
    }
}

TEST_F(HelpPictures, TheWholeHelpStaysBelowSixMegabytes)
{
    EXPECT_LT(QFileInfo(HelpFolder() + QStringLiteral("kelvarine.qch")).size(), 6'000'000);
}

// How many pictures the page on view has; each fills its block of the page.
int ExpectPicturesWithoutStripes(const HelpBrowser &browser)
{
    const QTextDocument *document = browser.document();
    int pictures = 0;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        if (block.text().contains(QChar::ObjectReplacementCharacter)) {
            ++pictures;
            const double height = document->documentLayout()->blockBoundingRect(block).height();
            EXPECT_GE(height, PictureSide);
            EXPECT_LE(height, PictureSide + 24);
        }
    }
    return pictures;
}

TEST_F(HelpView, NothingEmptyStandsBelowAPicture)
{
    const HelpWindow *window = Show(QStringLiteral("index.html"));
    int pictures = 0;
    for (const QUrl &page : Pages()) {
        SCOPED_TRACE(page.fileName().toStdString());
        window->Browser->setSource(page);
        pictures += ExpectPicturesWithoutStripes(*window->Browser);
    }
    EXPECT_EQ(pictures, 3 * 18 + 11);
}

// At the size at which the window opens, and at the smallest that it can be given.
TEST_F(HelpView, NoPageScrollsSideways)
{
    HelpWindow *window = Show(QStringLiteral("naked-pair.html"));
    const QScrollBar *bar = window->Browser->horizontalScrollBar();
    const QUrl first = window->Browser->source();
    const QList<QUrl> all = Pages();
    EXPECT_GT(all.size(), 50);
    for (const QSize size : {window->size(), QSize(1, 1)}) {
        window->Browser->setSource(first);
        window->resize(size);
        EXPECT_TRUE(QTest::qWaitFor([&] { return bar->maximum() == 0; }, Patience))
            << "the page on view";
        for (const QUrl &page : all) {
            window->Browser->setSource(page);
            QCoreApplication::processEvents();
            EXPECT_EQ(bar->maximum(), 0)
                << page.fileName().toStdString() << " at " << window->width();
        }
    }
    EXPECT_LT(window->width(), 800) << "a small screen";
}

// What a narrow page has made smaller is back at its size when there is room.
TEST_F(HelpView, PictureFollowsTheWindow)
{
    const QString name = QStringLiteral("naked-pair.png");
    HelpWindow *window = Show(QStringLiteral("naked-pair.html"));
    const QSize before = window->size();
    const int side = PictureOnView(name).width();
    window->resize(1, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return PictureOnView(name).width() < side; }, Patience));
    window->resize(before);
    EXPECT_TRUE(QTest::qWaitFor([&] { return PictureOnView(name).width() == side; }, Patience));
}

TEST_F(HelpView, DarkWindowShowsTheDarkForm)
{
    const QString name = QStringLiteral("naked-pair.png");
    const HelpWindow *window = Show(QStringLiteral("naked-pair.html"));
    const auto corner = [&name] {
        return PictureOnView(name).pixelColor(0, 0);
    };
    EXPECT_EQ(corner(), LightPicture.Paper);
    QPalette dark = Before;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    QApplication::setPalette(dark);
    EXPECT_TRUE(QTest::qWaitFor([&] { return corner() == DarkPicture.Paper; }, Patience));
    EXPECT_EQ(window->Browser->source().fileName().toStdString(), "naked-pair.html");
    QApplication::setPalette(Before);
    EXPECT_TRUE(QTest::qWaitFor([&] { return corner() == LightPicture.Paper; }, Patience));
}

TEST_F(HelpView, PictureHasThePixelsOfTheScreenAtItsUsualSize)
{
    const HelpWindow *window = Show(QStringLiteral("naked-pair.html"));
    const QImage picture = PictureOnView(QStringLiteral("naked-pair.png"));
    const double ratio = window->devicePixelRatioF();
    EXPECT_EQ(picture.width(), std::lround(PictureSide * ratio));
    EXPECT_DOUBLE_EQ(picture.devicePixelRatio(), ratio);
}

TEST_F(HelpView, LetterOfATabLeadsIntoItsPane)
{
    HelpWindow *window = Show(QStringLiteral("index.html"));
    for (int round = 0; round < 2; ++round) {
        window->Browser->setFocus();
        QTest::keyClick(window->windowHandle(), Qt::Key_I, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return window->IndexText->hasFocus(); }, Patience));
        EXPECT_EQ(window->Tabs->currentIndex(), 1);
    }
    QTest::keyClick(window->windowHandle(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->SearchText->hasFocus(); }, Patience));
    QTest::keyClick(window->windowHandle(), Qt::Key_C, Qt::AltModifier);
    auto *contents = window->findChild<QHelpContentWidget *>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return contents->hasFocus(); }, Patience));
}

TEST_F(HelpView, NoTitleOfTheContentsIsCut)
{
    const HelpWindow *window = Show(QStringLiteral("index.html"));
    auto *contents = window->findChild<QHelpContentWidget *>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return contents->model()->rowCount() > 0; }, Patience));
    contents->expandAll();
    QCoreApplication::processEvents();
    int titles = 0;
    for (QModelIndex at = contents->model()->index(0, 0); at.isValid();
         at = contents->indexBelow(at)) {
        ++titles;
        EXPECT_LE(contents->visualRect(at).left() +
                      contents->fontMetrics().horizontalAdvance(at.data().toString()),
                  contents->header()->sectionSize(0))
            << at.data().toString().toStdString();
    }
    EXPECT_GT(titles, 40);
}

// Number of pages of a printed page of the help; 0 when it could not be printed.
int PagesOf(HelpBrowser &browser, QPageSize::PageSizeId paper, const QString &path)
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(paper));
    if (!browser.PrintOn(printer)) {
        return 0;
    }
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return static_cast<int>(file.readAll().count("/Type /Page\n"));
}

TEST_F(HelpView, ReferencePrintsOnOnePageOfEitherPaper)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("page.pdf"));
    HelpWindow *window = Show(QStringLiteral("reference.html"));
    EXPECT_EQ(PagesOf(*window->Browser, QPageSize::A4, path), 1);
    EXPECT_EQ(PagesOf(*window->Browser, QPageSize::Letter, path), 1);
    window->Browser->setSource(
        window->Browser->source().resolved(QUrl(QStringLiteral("xy-chain.html"))));
    EXPECT_GE(PagesOf(*window->Browser, QPageSize::A6, path), 2) << "the count is a count";
}

TEST_F(HelpView, PageThatCannotBePrintedIsTold)
{
    const HelpWindow *window = Show(QStringLiteral("reference.html"));
    EXPECT_EQ(PagesOf(*window->Browser, QPageSize::A4, QStringLiteral("/nowhere/page.pdf")), 0);
}

} // namespace kelvarine::testing
