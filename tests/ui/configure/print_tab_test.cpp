#include "commands/print_run.h"
#include "game/lifecycle.h"
#include "generator/generator.h"
#include "logic/driver.h"
#include "outside/board.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_pace.h"
#include "support/widget_paper.h"
#include "support/widget_program.h"
#include "ui/configure/print_tab.h"
#include "ui/controls/measure_box.h"
#include "ui/controls/print_preview.h"
#include "ui/outside/printer_qt.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class PrintTabs : public ::testing::Test {
protected:
    void SetUp() override
    {
        SetGame(EasyGame);
        StartGame(NewGame);
        DrawBoard();
        panel.reset(MakePrintTab(nullptr));
        panel->show();
        QCoreApplication::processEvents();
    }

    void TearDown() override
    {
        QLocale::setDefault(QLocale::c());
    }

    template <typename Control>
    Control *Find(const char *name) const
    {
        auto *control = panel->findChild<Control *>(name);
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    MeasureBox *Box(const char *name) const
    {
        return Find<MeasureBox>(name);
    }
    QCheckBox *Check(const char *name) const
    {
        return Find<QCheckBox>(name);
    }
    QString TextOf(const char *name) const
    {
        return Find<QLineEdit>(name)->text();
    }

    // Types into a box as a player does who goes there with the tabulator.
    void Type(const char *name, const QString &keys) const
    {
        auto *box = Find<QLineEdit>(name);
        panel->activateWindow();
        box->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        box->selectAll();
        QTest::keyClicks(box, keys);
    }

    [[nodiscard]] QImage Preview() const
    {
        return Find<PrintPreview>("picPrintPreview")->grab().toImage();
    }

    const Program program;
    std::unique_ptr<QWidget> panel;
};

QString Shown(double inches)
{
    return QString::fromStdString(MeasureText(inches, "."));
}

// ---- What the tab shows --------------------------------------------------------------------

TEST_F(PrintTabs, HasItsCaptions)
{
    EXPECT_EQ(panel->objectName(), "picTabPrint");
    EXPECT_LE(panel->minimumSizeHint().width(), 458) << "the narrowest window has room for it";
    EXPECT_LE(panel->minimumSizeHint().height(), 475);
    EXPECT_EQ(Find<QRadioButton>("optPrintGame(0)")->text(), " Current game");
    EXPECT_EQ(Find<QRadioButton>("optPrintGame(1)")->text(), " New game(s)");
    EXPECT_EQ(Check("chkPrintCenter")->text(), " Center on page");
    EXPECT_EQ(Check("chkFullPage")->text(), " Fit to full page");
    EXPECT_EQ(Check("chkAspect")->text(), " Maintain aspect");
    EXPECT_EQ(Check("chkIncludeSolutions")->text(), " Include solutions");
    EXPECT_EQ(Check("chkGreyScale")->text(), " Print in greyscale");
    EXPECT_EQ(Find<QPushButton>("cmdPrint")->text(), "Print");
    QStringList layouts;
    const auto *list = Find<QComboBox>("cmbGamesPerPage");
    for (int index = 0; index < list->count(); ++index) {
        layouts.append(list->itemText(index));
    }
    EXPECT_EQ(layouts, QStringList({"1 game/page", "2 games/page", "3 games/page", "4 games/page",
                                    "6 games/page", "8 games/page", "12 games/page"}));
}

TEST_F(PrintTabs, ShowsTheDefaults)
{
    EXPECT_TRUE(Find<QRadioButton>("optPrintGame(0)")->isChecked());
    EXPECT_TRUE(Check("chkPrintCenter")->isChecked());
    EXPECT_TRUE(Check("chkAspect")->isChecked());
    EXPECT_FALSE(Check("chkFullPage")->isChecked());
    EXPECT_TRUE(Check("chkIncludeSolutions")->isChecked());
    EXPECT_FALSE(Check("chkGreyScale")->isChecked());
    EXPECT_EQ(TextOf("txtPrintWidth"), "5.0");
    EXPECT_EQ(TextOf("txtPrintHeight"), "5.0");
    EXPECT_EQ(TextOf("txtPrintLeft"), Shown((PrintableWidth - 5) / 2));
    EXPECT_EQ(TextOf("txtPrintTop"), Shown((PrintableHeight - 5) / 2));
    EXPECT_EQ(TextOf("txtNumPages"), "1");
    EXPECT_EQ(Find<QLabel>("lblNumGames")->text(), "1 game");
    EXPECT_EQ(Find<QLabel>("lblPrintableArea")->text().toStdString(), PrintableAreaText("."));
}

TEST_F(PrintTabs, EveryControlHasANameForThoseWhoListen)
{
    for (const char *name : {"txtPrintLeft", "txtPrintTop", "txtPrintWidth", "txtPrintHeight",
                             "txtNumPages", "cmbGamesPerPage", "picPrintPreview"}) {
        EXPECT_FALSE(Find<QWidget>(name)->accessibleName().isEmpty()) << name;
    }
}

TEST_F(PrintTabs, TabulatorGoesThroughTheControlsAsTheyAreRead)
{
    Check("chkPrintCenter")->click();
    const QStringList order{"optPrintGame(0)", "txtPrintLeft",   "txtPrintTop", "txtPrintWidth",
                            "txtPrintHeight",  "chkPrintCenter", "chkFullPage", "chkAspect",
                            "chkGreyScale",    "cmdPrint"};
    panel->activateWindow();
    Find<QWidget>("optPrintGame(0)")->setFocus();
    QStringList met;
    for (int step = 0; step < order.size(); ++step) {
        met.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(met, order);
}

// ---- Place and size ------------------------------------------------------------------------

TEST_F(PrintTabs, CurrentGameEnablesTheFrameOfThePlaceAndNewGamesThatOfTheBatch)
{
    EXPECT_TRUE(Find<QGroupBox>("framePrintPlace")->isEnabled());
    EXPECT_FALSE(Find<QGroupBox>("framePrintBatch")->isEnabled());
    Find<QRadioButton>("optPrintGame(1)")->click();
    EXPECT_EQ(PrintMode, PrintNewGames);
    EXPECT_FALSE(Find<QGroupBox>("framePrintPlace")->isEnabled());
    EXPECT_TRUE(Find<QGroupBox>("framePrintBatch")->isEnabled());
    Find<QRadioButton>("optPrintGame(0)")->click();
    EXPECT_EQ(PrintMode, PrintCurrent);
}

TEST_F(PrintTabs, CentreShutsLeftAndTopAndWithoutItTheyAreOpen)
{
    EXPECT_FALSE(Box("txtPrintLeft")->isEnabled());
    EXPECT_FALSE(Box("txtPrintTop")->isEnabled());
    Check("chkPrintCenter")->click();
    EXPECT_EQ(PrintCentre, False);
    EXPECT_TRUE(Box("txtPrintLeft")->isEnabled());
    EXPECT_TRUE(Box("txtPrintTop")->isEnabled());
}

TEST_F(PrintTabs, FullPageShutsTheSizeAndTicksAndShutsCentre)
{
    Check("chkPrintCenter")->click();
    Check("chkAspect")->click();
    Check("chkFullPage")->click();
    EXPECT_TRUE(Check("chkPrintCenter")->isChecked());
    for (const char *name :
         {"chkPrintCenter", "txtPrintWidth", "txtPrintHeight", "txtPrintLeft", "txtPrintTop"}) {
        EXPECT_FALSE(Find<QWidget>(name)->isEnabled()) << name;
    }
    EXPECT_EQ(TextOf("txtPrintWidth"), Shown(PrintableWidth));
    EXPECT_EQ(TextOf("txtPrintHeight"), Shown(PrintableHeight));
    Check("chkFullPage")->click();
    for (const char *name : {"chkPrintCenter", "txtPrintWidth", "txtPrintHeight"}) {
        EXPECT_TRUE(Find<QWidget>(name)->isEnabled()) << name;
    }
    EXPECT_FALSE(Box("txtPrintLeft")->isEnabled()) << "centre is still ticked";
}

TEST_F(PrintTabs, FullPageFollowsAspect)
{
    Check("chkFullPage")->click();
    EXPECT_NEAR(PrintHeight, PrintWidth * BoardProportion(), 1e-9);
    Check("chkAspect")->click();
    EXPECT_DOUBLE_EQ(PrintHeight, PrintableHeight);
}

TEST_F(PrintTabs, WidthChangesTheHeightAndNotTheOtherWayRoundAtTheSameTime)
{
    Type("txtPrintWidth", "3.33");
    EXPECT_EQ(TextOf("txtPrintWidth"), "3.33");
    EXPECT_DOUBLE_EQ(PrintWidth, 3.33);
    EXPECT_EQ(TextOf("txtPrintHeight"), Shown(3.33 * BoardProportion()));
    Type("txtPrintHeight", "4.4");
    EXPECT_EQ(TextOf("txtPrintHeight"), "4.4");
    EXPECT_EQ(TextOf("txtPrintWidth"), Shown(4.4 / BoardProportion()));
}

TEST_F(PrintTabs, MeasureIsShownInItsFormWhenTheBoxIsLeft)
{
    Type("txtPrintWidth", "3");
    EXPECT_EQ(TextOf("txtPrintWidth"), "3");
    Find<QWidget>("cmdPrint")->setFocus();
    EXPECT_EQ(TextOf("txtPrintWidth"), "3.0");
}

TEST_F(PrintTabs, MeasuresTakeDigitsAndOneSign)
{
    Type("txtPrintWidth", "a-4b.x5.7 ");
    EXPECT_EQ(TextOf("txtPrintWidth"), "4.57");
    EXPECT_DOUBLE_EQ(PrintWidth, 4.57);
    QTest::keyClick(Box("txtPrintWidth"), Qt::Key_Backspace);
    EXPECT_DOUBLE_EQ(PrintWidth, 4.5);
}

TEST_F(PrintTabs, MeasuresAreTypedWithTheSignOfTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    RefreshPrintPreview();
    EXPECT_EQ(TextOf("txtPrintWidth"), "5,0");
    Type("txtPrintWidth", "3,25");
    EXPECT_DOUBLE_EQ(PrintWidth, 3.25);
    Type("txtPrintWidth", "4.75"); // a keypad's point
    EXPECT_EQ(TextOf("txtPrintWidth"), "4,75");
    EXPECT_DOUBLE_EQ(PrintWidth, 4.75);
    EXPECT_TRUE(Find<QLabel>("lblPrintableArea")->text().contains(','));
}

TEST_F(PrintTabs, PastedRubbishCountsAsFarAsItIsANumber)
{
    QGuiApplication::clipboard()->setText("2.5cm");
    Type("txtPrintWidth", "");
    QTest::keyClick(Box("txtPrintWidth"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(TextOf("txtPrintWidth"), "2.5cm");
    EXPECT_DOUBLE_EQ(PrintWidth, 2.5);
}

TEST_F(PrintTabs, FocusSelectsTheWholeText)
{
    panel->activateWindow();
    Box("txtPrintWidth")->setFocus(Qt::MouseFocusReason);
    QCoreApplication::processEvents();
    EXPECT_EQ(Box("txtPrintWidth")->selectedText(), "5.0");
}

// ---- Batches -------------------------------------------------------------------------------

TEST_F(PrintTabs, NumberOfGamesIsPagesTimesGamesPerPage)
{
    Find<QRadioButton>("optPrintGame(1)")->click();
    Find<QComboBox>("cmbGamesPerPage")->setCurrentIndex(4);
    EXPECT_EQ(PrintGamesPerPage, 4);
    EXPECT_EQ(Find<QLabel>("lblNumGames")->text(), "6 games");
    Type("txtNumPages", "25");
    EXPECT_EQ(PrintPages, 25);
    EXPECT_EQ(Find<QLabel>("lblNumGames")->text(), "150 games");
    Type("txtNumPages", "a123");
    EXPECT_EQ(TextOf("txtNumPages"), "12");
}

TEST_F(PrintTabs, PagesAreTypedAsInEveryNumberBox)
{
    Find<QRadioButton>("optPrintGame(1)")->click();
    panel->activateWindow();
    auto *box = Find<QLineEdit>("txtNumPages");
    QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClicks(box, "3");
    EXPECT_EQ(TextOf("txtNumPages"), "3") << "a click selects the whole text";
    EXPECT_EQ(PrintPages, 3);
    Type("txtNumPages", "+4");
    EXPECT_EQ(TextOf("txtNumPages"), "4");
    for (const auto &[pasted, pages] : {std::pair("8x", 8), {"ab", 0}, {" 7", 7}}) {
        QGuiApplication::clipboard()->setText(pasted);
        box->selectAll();
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(TextOf("txtNumPages"), pasted) << "only keys are filtered";
        EXPECT_EQ(PrintPages, pages);
    }
}

TEST_F(PrintTabs, EmptiedBoxOfPagesStaysEmptyUntilItIsLeft)
{
    Find<QRadioButton>("optPrintGame(1)")->click();
    panel->activateWindow();
    auto *box = Find<QLineEdit>("txtNumPages");
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    EXPECT_EQ(TextOf("txtNumPages"), "");
    EXPECT_EQ(PrintPages, 0);
    QTest::keyClick(box, Qt::Key_9);
    EXPECT_EQ(TextOf("txtNumPages"), "9");
    QTest::keyClick(box, Qt::Key_Backspace);
    Find<QWidget>("cmbGamesPerPage")->setFocus();
    Find<QComboBox>("cmbGamesPerPage")->setCurrentIndex(2);
    EXPECT_EQ(TextOf("txtNumPages"), "0");
}

TEST_F(PrintTabs, NoPagesBringsTheNotice)
{
    Find<QRadioButton>("optPrintGame(1)")->click();
    Type("txtNumPages", "0");
    const BoxRecord boxes = AnswerBoxes([&] { Find<QPushButton>("cmdPrint")->click(); });
    EXPECT_EQ(boxes.Texts,
              std::vector<std::string>{"Please enter the number of pages you'd like to print."});
}

TEST_F(PrintTabs, ChecksWriteTheirSettings)
{
    Check("chkGreyScale")->click();
    EXPECT_EQ(PrintGreyScale, True);
    Find<QRadioButton>("optPrintGame(1)")->click();
    Check("chkIncludeSolutions")->click();
    EXPECT_EQ(PrintIncludeSolutions, False);
}

// ---- Preview -------------------------------------------------------------------------------

TEST_F(PrintTabs, PreviewHasTheProportionsOfThePrintableArea)
{
    const QSizeF size = Find<PrintPreview>("picPrintPreview")->size();
    EXPECT_NEAR(size.height() / size.width(), PrintableHeight / PrintableWidth, 0.01);
}

TEST_F(PrintTabs, PreviewShowsTheCurrentGameAtItsScaledPlace)
{
    Check("chkPrintCenter")->click();
    Type("txtPrintLeft", "1");
    Type("txtPrintTop", "2");
    Type("txtPrintWidth", "4");
    const QImage preview = Preview();
    const QRect inside = preview.rect().adjusted(1, 1, -1, -1); // of the frame
    const QRect ink = InkIn(preview, inside);
    const double scale = preview.width() / PrintableWidth;
    EXPECT_NEAR(ink.left(), 1 * scale, 1.5);
    EXPECT_NEAR(ink.top(), 2 * scale, 1.5);
    EXPECT_NEAR(ink.width(), 4 * scale, 2.5);
    EXPECT_NEAR(ink.height(), 4 * BoardProportion() * scale, 2.5);
}

TEST_F(PrintTabs, PreviewIsEmptyWithoutASize)
{
    Check("chkAspect")->click();
    Type("txtPrintWidth", "0");
    const QImage preview = Preview();
    EXPECT_TRUE(InkIn(preview, preview.rect().adjusted(1, 1, -1, -1)).isEmpty());
}

TEST_F(PrintTabs, PreviewShowsEmptyGridsInTheirPlaces)
{
    Find<QRadioButton>("optPrintGame(1)")->click();
    for (int index = 0; index < 7; ++index) {
        Find<QComboBox>("cmbGamesPerPage")->setCurrentIndex(index);
        const QImage preview = Preview();
        const PageLayout layout =
            LayoutOfGames(static_cast<std::size_t>(index), preview.width(), preview.height());
        for (int game = 0; game < GamesOnPage(); ++game) {
            const PagePlace place = PlaceOf(layout, game);
            const QRectF around(place.Left - 1, place.Top - 1, place.Width + 2, place.Height + 2);
            const QRect ink = InkIn(preview, around);
            EXPECT_NEAR(ink.left(), place.Left, 1.5);
            EXPECT_NEAR(ink.top(), place.Top, 1.5);
            EXPECT_NEAR(ink.right() + 1, place.Left + place.Width, 1.5);
            EXPECT_NEAR(ink.bottom() + 1, place.Top + place.Height, 1.5);
        }
    }
}

TEST_F(PrintTabs, PreviewFollowsTheBoard)
{
    const QImage before = Preview();
    WordAt({3, 1}) |= CellWord{3} << ColourShift;
    DrawBoard();
    EXPECT_NE(Preview(), before);
}

TEST_F(PrintTabs, PreviewKeepsItsPictureWhileALongRunWorksOnTheGrid)
{
    for (const char *mode : {"optPrintGame(0)", "optPrintGame(1)"}) {
        Find<QRadioButton>(mode)->click();
        const QImage before = Preview();
        const GridTable game = Grid;
        Grid = {};
        SearchActive = True; // a run of the logic
        EXPECT_EQ(Preview(), before) << mode;
        SearchActive = False;
        RunUnderWay = True; // one that was told to stop
        EXPECT_EQ(Preview(), before) << mode;
        RunUnderWay = False;
        SearchKind = SearchingGame; // between two runs for a game
        EXPECT_EQ(Preview(), before) << mode;
        SearchKind = NotStoppable;
        EXPECT_NE(Preview(), before) << mode;
        Grid = game;
    }
}

TEST_F(PrintTabs, ButtonOfARunningBatchAsksAndThePreviewShowsItsProgress)
{
    const QTemporaryDir folder;
    const TurnAtEveryYield turns;
    Find<QRadioButton>("optPrintGame(1)")->click();
    Find<QComboBox>("cmbGamesPerPage")->setCurrentIndex(4);
    const QImage before = Preview();
    const GridTable game = Grid;
    QImage during;
    std::string progress;
    QTimer click;
    QObject::connect(&click, &QTimer::timeout, &click, [&] {
        if (PrintRunning != False && SearchActive != False && during.isNull()) {
            during = Preview();
            progress = BatchProgressText();
            EXPECT_EQ(SearchKind, SearchingGame);
            const BoxRecord boxes =
                AnswerBoxes([&] { Find<QPushButton>("cmdPrint")->click(); }, {QMessageBox::Yes});
            EXPECT_EQ(boxes.Texts, std::vector<std::string>{"Would you like to stop searching?"});
        }
    });
    click.start(0);
    PrintTo(folder.filePath("page.pdf").toStdString(),
            [&] { Find<QPushButton>("cmdPrint")->click(); });
    EXPECT_FALSE(during.isNull());
    EXPECT_NE(during, before);
    EXPECT_TRUE(QString::fromStdString(progress).endsWith(" of 6 "));
    EXPECT_EQ(PrintRunning, False);
    EXPECT_EQ(Grid, game);
    EXPECT_EQ(Preview(), before);
}

TEST_F(PrintTabs, TabThatIsClosedDuringABatchDoesNoHarm)
{
    const QTemporaryDir folder;
    const TurnAtEveryYield turns;
    Find<QRadioButton>("optPrintGame(1)")->click();
    Find<QComboBox>("cmbGamesPerPage")->setCurrentIndex(4);
    QTimer close;
    QObject::connect(&close, &QTimer::timeout, &close, [&] {
        if (PrintRunning != False) {
            panel.reset();
        }
    });
    close.start(0);
    PrintTo(folder.filePath("page.pdf").toStdString(), [&] {
        auto *button = Find<QPushButton>("cmdPrint");
        button->click();
    });
    EXPECT_EQ(panel, nullptr);
    EXPECT_EQ(PagesOf(folder.filePath("page.pdf").toStdString()).size(), 2U);
    RefreshPrintPreview();
}

} // namespace
} // namespace kelvarine::testing
