#include "configure/logic_settings.h"
#include "game/event_sound.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "paint/board_painter.h"
#include "support/widget_configure.h"
#include "support/widget_paints.h"
#include "ui/window/board_widget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>

namespace kelvarine::testing {
namespace {

class LogicTabTest : public ConfigureTest {
protected:
    QString LevelShown(int k)
    {
        return Find<QLabel>(Name("lblDifficulty", k))->text();
    }

    QColor LevelColour(int k)
    {
        return Find<QLabel>(Name("lblDifficulty", k))->palette().color(QPalette::WindowText);
    }

    // Opens the menu on the label of row k by the right button.
    QMenu *OpenMenuOn(int k)
    {
        QTest::mouseClick(Find<QLabel>(Name("lblDifficulty", k)), Qt::RightButton);
        return Find<QMenu>("mnuRatings");
    }

    // Chooses an entry of the menu on row k with the keyboard: Down so many times, then Enter.
    void ChooseOn(int k, int entry)
    {
        QMenu *menu = OpenMenuOn(k);
        ASSERT_TRUE(menu->isVisible());
        for (int step = 0; step < entry; ++step) {
            QTest::keyClick(menu, Qt::Key_Down);
        }
        QTest::keyClick(menu, Qt::Key_Return);
        EXPECT_FALSE(menu->isVisible());
    }

    bool StarMessageOnView()
    {
        return Find<QLabel>("lblRequireMsg")->isVisible();
    }
};

constexpr Cell Free{3, 1}; // no given stands there

TEST_F(LogicTabTest, ShowsTheState)
{
    SolveMask = 0x40000006;
    AlertMask = 0x80008;
    IncludeSingles = True;
    MaxXYLinks = 12;
    MaxRPLinks = 0;
    MaxSinglesLinks = 7;
    LevelTable[6] = BitTable[8];
    LevelTable[4] &= ~BitTable[12];
    Open(LogicTab);
    for (const TechniqueRow &technique : TechniqueRows) {
        const std::int32_t k = technique.Number;
        EXPECT_EQ(Find<QAbstractButton>(Name("chkUseLogic", k))->isChecked(), k == 1 || k == 2);
        EXPECT_EQ(Find<QAbstractButton>(Name("chkShowConflicts", k))->isChecked(),
                  k == 3 || k == 19);
        EXPECT_EQ(Find<QAbstractButton>(Name("chkShowConflicts", k))->text().toStdString(),
                  technique.Caption);
    }
    EXPECT_TRUE(Find<QAbstractButton>("chkIncludeSingles")->isChecked());
    EXPECT_EQ(Find<QAbstractButton>("chkIncludeSingles")->text(),
              " Include singles in naked && hidden pairs/triples/quads");
    EXPECT_EQ(Find<QLineEdit>("txtMaxXYLinks")->text(), "12");
    EXPECT_EQ(Find<QLineEdit>("txtMaxRPLinks")->text(), "0");
    EXPECT_EQ(Find<QLineEdit>("txtMaxSinglesLinks")->text(), "7");
    EXPECT_EQ(LevelShown(1), "Easy");
    EXPECT_EQ(LevelShown(8), "*  Very hard");
    EXPECT_EQ(LevelShown(12), "");
    EXPECT_TRUE(StarMessageOnView());
    EXPECT_EQ(Find<QLabel>("lblRequireMsg")->text(), " * required");
}

TEST_F(LogicTabTest, EveryTechniqueHasItsRow)
{
    Open(LogicTab);
    for (const TechniqueRow &technique : Techniques) {
        SCOPED_TRACE(technique.ReportName);
        const std::int32_t k = technique.Number;
        EXPECT_TRUE(Find<QWidget>(Name("chkUseLogic", k))->isVisible());
        EXPECT_TRUE(Find<QWidget>(Name("chkShowConflicts", k))->isVisible());
        EXPECT_TRUE(Find<QWidget>(Name("lblDifficulty", k))->isVisible());
        EXPECT_EQ(LevelShown(k).toStdString(), WordsOfRating(technique.Level).Capital);
        if (technique.LinkLimit != nullptr) {
            const QByteArray box(technique.LimitBox.data(),
                                 static_cast<qsizetype>(technique.LimitBox.size()));
            EXPECT_TRUE(Find<QLineEdit>(box)->isVisible());
            EXPECT_EQ(Find<QLineEdit>(box)->text().toInt(), *technique.LinkLimit);
        }
    }
}

TEST_F(LogicTabTest, RowNineteenIsThereButHidden)
{
    Open(LogicTab);
    for (const char *name :
         {"chkUseLogic19", "chkShowConflicts19", "lblDifficulty19", "txtMaxInferenceLinks"}) {
        EXPECT_FALSE(Find<QWidget>(name)->isVisible()) << name;
    }
    EXPECT_EQ(Find<QLineEdit>("txtMaxInferenceLinks")->text(), "81");
    EXPECT_TRUE(Find<QWidget>("chkUseLogic18")->isVisible());
}

TEST_F(LogicTabTest, EachSolveBoxIsClicked)
{
    Open(LogicTab);
    std::uint32_t mask = 0;
    for (const TechniqueRow &technique : Techniques) {
        const std::int32_t k = technique.Number;
        Click(Name("chkUseLogic", k));
        mask |= 1U << k;
        EXPECT_EQ(SolveMask, mask);
    }
    Click("chkUseLogic5");
    EXPECT_EQ(SolveMask, mask & ~0x20U);
}

TEST_F(LogicTabTest, EachAlertBoxIsClicked)
{
    Open(LogicTab);
    std::uint32_t mask = 0;
    for (const TechniqueRow &technique : Techniques) {
        const std::int32_t k = technique.Number;
        Click(Name("chkShowConflicts", k));
        mask |= 1U << k;
        EXPECT_EQ(AlertMask, mask);
    }
    Click("chkShowConflicts5");
    EXPECT_EQ(AlertMask, mask & ~0x20U);
}

TEST_F(LogicTabTest, AlertShowsOnTheBoardAtOnceAndGoesAgain)
{
    Open(LogicTab);
    const QImage before = PaintedNow();
    Click("chkShowConflicts1");
    EXPECT_NE(WordAt(Free) & AlertBit, 0U);
    EXPECT_NE(PaintedNow(), before);
    Click("chkShowConflicts1");
    EXPECT_EQ(PaintedNow(), before);
}

TEST_F(LogicTabTest, SelectAllButtons)
{
    Open(LogicTab);
    SolveMask = TrialBit;
    AlertMask = TrialBit;
    const QImage before = PaintedNow();
    Click("cmdSelectAllSolves");
    EXPECT_EQ(SolveMask, TrialBit | 0xFFFFEU);
    EXPECT_TRUE(Find<QAbstractButton>("chkUseLogic19")->isChecked());
    Click("cmdDeselectAllSolves");
    EXPECT_EQ(SolveMask, TrialBit) << "the boxes do the work";
    Click("cmdSelectAllAlerts");
    EXPECT_EQ(AlertMask, TrialBit | 0xFFFFEU);
    EXPECT_TRUE(Find<QAbstractButton>("chkShowConflicts7")->isChecked());
    EXPECT_NE(PaintedNow(), before);
    Click("cmdDeselectAllAlerts");
    EXPECT_EQ(AlertMask, 0U) << "and here the mask goes whole";
    EXPECT_FALSE(Find<QAbstractButton>("chkShowConflicts7")->isChecked());
    EXPECT_EQ(PaintedNow(), before);
    Click("chkShowConflicts2");
    EXPECT_EQ(AlertMask, 0x4U) << "the guard is off again";
}

TEST_F(LogicTabTest, SelectAllButtonsSayWhatTheyDo)
{
    Open(LogicTab);
    for (const auto &[words, name] : {std::pair("Select all", "cmdSelectAllSolves"),
                                      std::pair("De-select all", "cmdDeselectAllSolves")}) {
        const auto *button = Find<QAbstractButton>(name);
        const QList<QLabel *> labels = button->parentWidget()->findChildren<QLabel *>();
        const auto label = std::ranges::find(labels, QString(words), &QLabel::text);
        ASSERT_NE(label, labels.end()) << words;
        EXPECT_TRUE((*label)->isVisible());
        EXPECT_EQ((*label)->x(), button->x());
        EXPECT_LE((*label)->geometry().bottom(), button->y());
    }
}

TEST_F(LogicTabTest, SelectingAllAlertsWritesOnceAndNotBoxByBox)
{
    Open(LogicTab);
    std::uint32_t atLastBox = 77;
    QObject::connect(Find<QAbstractButton>("chkShowConflicts19"), &QAbstractButton::toggled, Screen,
                     [&atLastBox] { atLastBox = AlertMask; });
    Click("cmdSelectAllAlerts");
    EXPECT_EQ(atLastBox, 0U) << "the boxes themselves write nothing";
    EXPECT_EQ(AlertMask, 0xFFFFEU);
    Click("cmdDeselectAllAlerts");
    EXPECT_EQ(atLastBox, 0xFFFFEU);
    EXPECT_EQ(AlertMask, 0U);
}

TEST_F(LogicTabTest, IncludeSinglesScansAtOnce)
{
    Open(LogicTab);
    Click("chkShowConflicts3");
    const QImage before = PaintedNow();
    Click("chkIncludeSingles");
    EXPECT_EQ(IncludeSingles, True);
    EXPECT_NE(PaintedNow(), before);
    Click("chkIncludeSingles");
    EXPECT_EQ(IncludeSingles, False);
}

TEST_F(LogicTabTest, LinkLimitsFollowEachChangeAndAnEmptyBoxIsNull)
{
    Open(LogicTab);
    struct Row {
        const char *Name;
        const std::int32_t *Limit;
    };
    for (const Row &row : {Row{"txtMaxXYLinks", &MaxXYLinks}, Row{"txtMaxRPLinks", &MaxRPLinks},
                           Row{"txtMaxSinglesLinks", &MaxSinglesLinks}}) {
        auto *box = Find<QLineEdit>(row.Name);
        box->setFocus();
        box->selectAll();
        QTest::keyClick(box, Qt::Key_Backspace);
        EXPECT_EQ(*row.Limit, 0) << row.Name;
        QTest::keyClicks(box, "4");
        EXPECT_EQ(*row.Limit, 4) << row.Name;
        QTest::keyClicks(box, "23");
        EXPECT_EQ(*row.Limit, 42) << row.Name;
    }
    Type("txtMaxXYLinks", "8");
    EXPECT_EQ(MaxRPLinks, 42);
}

TEST_F(LogicTabTest, MenuMovesATechniqueToEachLevel)
{
    Open(LogicTab);
    const QStringList words{"Easy", "Medium", "Hard", "Very hard", "Extreme"};
    for (int level = 1; level <= 5; ++level) {
        ChooseOn(10, level);
        EXPECT_EQ(LevelShown(10), words[level - 1]);
        EXPECT_NE(LevelTable[static_cast<std::size_t>(level)] & BitTable[10], 0U);
    }
    EXPECT_EQ(LevelTable[3] & BitTable[10], 0U);
}

TEST_F(LogicTabTest, MenuHasTheLevelsAndTheStar)
{
    Open(LogicTab);
    const QMenu *menu = OpenMenuOn(1);
    EXPECT_EQ(menu->title(), "Ratings");
    QStringList entries;
    for (const QAction *action : menu->actions()) {
        entries << action->objectName() + ": " + action->text();
    }
    EXPECT_EQ(entries, QStringList({"mnuEasy: Easy", "mnuMedium: Medium", "mnuHard: Hard",
                                    "mnuVeryhard: Very hard", "mnuExtreme: Extreme",
                                    "mnuRequire: Require (*)"}));
}

TEST_F(LogicTabTest, MovingTheSinglesChangesTheRatingOfTheGame)
{
    Open(LogicTab);
    ASSERT_EQ(GameRating, 1);
    ChooseOn(1, 4);
    ChooseOn(2, 4);
    EXPECT_EQ(GameRating, 4);
}

TEST_F(LogicTabTest, MenuStandsUnderTheLabelWhichIsRedMeanwhile)
{
    Open(LogicTab);
    const QColor black = LevelColour(4);
    QMenu *menu = OpenMenuOn(4);
    const QLabel *label = Find<QLabel>("lblDifficulty4");
    EXPECT_EQ(LevelColour(4), QColor(255, 0, 0));
    EXPECT_EQ(menu->pos(),
              Screen->mapToGlobal(QPoint(100, label->mapTo(Screen, QPoint(0, 0)).y() + 16)));
    QTest::keyClick(menu, Qt::Key_Escape);
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(LevelColour(4), black);
    EXPECT_EQ(LevelShown(4), "Hard") << "as it was";
    EXPECT_TRUE(Screen->isVisible()) << "the key closed the menu, not the screen";
}

TEST_F(LogicTabTest, MenuOpensByKeyboard)
{
    Open(LogicTab);
    auto *label = Find<QLabel>("lblDifficulty6");
    auto *menu = Find<QMenu>("mnuRatings");
    label->setFocus();
    QTest::keyClick(label, Qt::Key_Menu);
    EXPECT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_Escape);
    QTest::keyClick(label, Qt::Key_F10);
    EXPECT_FALSE(menu->isVisible()) << "F10 alone is no menu key";
    QTest::keyClick(label, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(menu->isVisible());
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(LevelShown(6), "Easy");
}

TEST_F(LogicTabTest, MiddlePressOpensNoMenu)
{
    Open(LogicTab);
    QTest::mouseClick(Find<QLabel>("lblDifficulty6"), Qt::MiddleButton);
    EXPECT_FALSE(Find<QMenu>("mnuRatings")->isVisible());
}

TEST_F(LogicTabTest, StarGoesOnAndOffAndALevelTakesItOff)
{
    Open(LogicTab);
    constexpr int require = 6;
    EXPECT_FALSE(StarMessageOnView());
    ChooseOn(8, require);
    EXPECT_EQ(LevelShown(8), "*  Very hard");
    EXPECT_EQ(LevelTable[6], BitTable[8]);
    EXPECT_TRUE(StarMessageOnView());
    ChooseOn(8, require);
    EXPECT_EQ(LevelShown(8), "Very hard");
    EXPECT_FALSE(StarMessageOnView());
    ChooseOn(8, require);
    ChooseOn(8, 3);
    EXPECT_EQ(LevelShown(8), "Hard");
    EXPECT_EQ(LevelTable[6], 0U);
    EXPECT_FALSE(StarMessageOnView());
}

TEST_F(LogicTabTest, StarDoesNotWidenThePanel)
{
    Open(LogicTab);
    const int width = Find<QWidget>("picTabLogic")->minimumSizeHint().width();
    ChooseOn(8, 6);
    EXPECT_EQ(LevelShown(8), "*  Very hard");
    EXPECT_EQ(Find<QWidget>("picTabLogic")->minimumSizeHint().width(), width);
    EXPECT_LE(width, Find<QWidget>("picTabLogic")->width());
}

TEST_F(LogicTabTest, AllAlertsPaintTheBoardAndEachBoxOnce)
{
    Open(LogicTab);
    for (const char *button : {"cmdSelectAllAlerts", "cmdDeselectAllAlerts"}) {
        QCoreApplication::processEvents();
        const std::int64_t boards = BoardsPainted;
        const PaintCounter painted;
        Find<QAbstractButton>(button)->click();
        QCoreApplication::processEvents();
        EXPECT_EQ(BoardsPainted - boards, 1) << button;
        EXPECT_EQ(painted.PaintsOf(Running->Main->Client->Board), 1) << button;
        EXPECT_EQ(painted.PaintsOf(Find<QWidget>("chkShowConflicts5")), 1) << button;
    }
}

} // namespace
} // namespace kelvarine::testing
