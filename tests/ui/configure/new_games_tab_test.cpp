#include "game/screens.h"
#include "generator/generator.h"
#include "support/widget_configure.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace kelvarine::testing {
namespace {

class NewGamesTabTest : public ConfigureTest {};

TEST_F(NewGamesTabTest, CaptionsAndDefaults)
{
    Open(NewGamesTab);
    const QStringList patterns{" Random (no intentional symmetry)",
                               " 180 degree rotation",
                               " Diagonal reflection",
                               " Diagonal && anti-diagonal reflection",
                               " Horizontal reflection",
                               " Horizontal && vertical reflection",
                               " Horizontal box tiling",
                               " All box tiling",
                               " None (expose cells manually)",
                               " Full rotation"};
    for (int k = 0; k < 10; ++k) {
        auto *option = Find<QAbstractButton>(Name("optRevealPattern", k));
        EXPECT_EQ(option->text(), patterns[k]);
        EXPECT_EQ(option->isChecked(), k == 5);
    }
    EXPECT_EQ(Find<QAbstractButton>("chkFillPMs")->text(), " Fill unknown cells with pencilmarks");
    EXPECT_EQ(Find<QAbstractButton>("chkApplySolveLogic")->text(),
              " Apply selected \"Solve\" logic");
    QStringList frames;
    for (const QGroupBox *frame : Find<QWidget>("picTabNewGame")->findChildren<QGroupBox *>()) {
        frames << frame->title();
    }
    EXPECT_EQ(frames, QStringList({"Difficulty", "Given cell exposures"}));
    EXPECT_EQ(Find<QLineEdit>("txtMinNumGivens")->text(), "17");
    EXPECT_EQ(Find<QLineEdit>("txtMaxNumGivens")->text(), "40");
}

TEST_F(NewGamesTabTest, ShowsTheState)
{
    DifficultySelection = 0x28;
    MinGivens = 5;
    MaxGivens = 81;
    RevealPattern = 9;
    FillOnStart = True;
    SolveOnStart = True;
    Open(NewGamesTab);
    for (int level = 1; level <= 5; ++level) {
        EXPECT_EQ(Find<QAbstractButton>(Name("chkDifficulty", level))->isChecked(),
                  level == 3 || level == 5);
    }
    EXPECT_EQ(Find<QLineEdit>("txtMinNumGivens")->text(), "5");
    EXPECT_EQ(Find<QLineEdit>("txtMaxNumGivens")->text(), "81");
    EXPECT_TRUE(Find<QAbstractButton>("optRevealPattern9")->isChecked());
    EXPECT_TRUE(Find<QAbstractButton>("chkFillPMs")->isChecked());
    EXPECT_TRUE(Find<QAbstractButton>("chkApplySolveLogic")->isChecked());
}

TEST_F(NewGamesTabTest, ClickedDifficultyRebuildsTheWholeMask)
{
    Open(NewGamesTab);
    DifficultySelection = 0xFF00; // what stood there does not count
    Click("chkDifficulty4");
    EXPECT_EQ(DifficultySelection, 0x12U);
    Click("chkDifficulty1");
    EXPECT_EQ(DifficultySelection, 0x10U);
    Click("chkDifficulty4");
    EXPECT_EQ(DifficultySelection, 0U);
    Click("chkDifficulty2");
    Click("chkDifficulty3");
    Click("chkDifficulty5");
    EXPECT_EQ(DifficultySelection, 0x2CU);
}

TEST_F(NewGamesTabTest, EveryPatternCanBeClicked)
{
    Open(NewGamesTab);
    for (int k = 0; k < 10; ++k) {
        Click(Name("optRevealPattern", k));
        EXPECT_EQ(RevealPattern, k);
    }
}

TEST_F(NewGamesTabTest, StartFlagsTakeTheirBoxes)
{
    Open(NewGamesTab);
    Click("chkFillPMs");
    EXPECT_EQ(FillOnStart, True);
    EXPECT_EQ(SolveOnStart, False);
    Click("chkApplySolveLogic");
    EXPECT_EQ(SolveOnStart, True);
    QTest::keyClick(Find<QWidget>("chkFillPMs"), Qt::Key_Space);
    EXPECT_EQ(FillOnStart, False);
}

TEST_F(NewGamesTabTest, GivensAreTakenAtEachChangeAndNotCompared)
{
    Open(NewGamesTab);
    Type("txtMinNumGivens", "9");
    EXPECT_EQ(MinGivens, 9);
    QTest::keyClicks(Find<QLineEdit>("txtMinNumGivens"), "9");
    EXPECT_EQ(MinGivens, 99);
    EXPECT_EQ(MaxGivens, 40);
    Type("txtMaxNumGivens", "16");
    EXPECT_EQ(MaxGivens, 16);
    Find<QLineEdit>("txtMaxNumGivens")->selectAll();
    QTest::keyClick(Find<QLineEdit>("txtMaxNumGivens"), Qt::Key_Backspace);
    EXPECT_EQ(MaxGivens, 0) << "an empty box";
}

} // namespace
} // namespace kelvarine::testing
