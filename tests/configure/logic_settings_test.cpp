#include "configure/logic_settings.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

const Texts ScanAndPaint{"board: "};

class LogicSettings : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }
};

TEST_F(LogicSettings, CaptionsNameTheTechniques)
{
    const Texts captions{"   Naked singles",   "   Hidden singles", "   Naked pairs",
                         "   Hidden pairs",    "   Naked triples",  "   Hidden triples",
                         "   Naked quads",     "   Hidden quads",   "   Col-row-box intersections",
                         "   X-wing",          "   Swordfish",      "   Jellyfish",
                         "   XY-wing",         "   Remote pairs",   "   XY-chains",
                         "   XYZ-wing",        "   WXYZ-wing",      "   Singles chains",
                         "   Inference chains"};
    Texts shown;
    for (const TechniqueRow &row : TechniqueRows) {
        shown.emplace_back(row.Caption);
    }
    EXPECT_EQ(shown, captions);
}

TEST_F(LogicSettings, DefaultLevels)
{
    const Texts levels{"Easy",      "Easy",      "Medium",    "Hard",      "Medium",
                       "Hard",      "Hard",      "Very hard", "Medium",    "Hard",
                       "Hard",      "Very hard", "Very hard", "Very hard", "Very hard",
                       "Very hard", "Very hard", "Very hard", "Very hard"};
    Texts shown;
    for (const TechniqueRow &row : TechniqueRows) {
        shown.push_back(LevelCaption(row.Number));
    }
    EXPECT_EQ(shown, levels);
    EXPECT_FALSE(AnyRequired());
}

TEST_F(LogicSettings, FirstLevelThatHoldsATechniqueIsShown)
{
    LevelTable[2] |= BitTable[18]; // stands in level 4 as well
    EXPECT_EQ(LevelCaption(18), "Medium");
}

TEST_F(LogicSettings, TechniqueInNoLevelHasNoWordButKeepsItsStar)
{
    LevelTable[4] &= ~BitTable[12];
    EXPECT_EQ(LevelCaption(12), "");
    ToggleRequired(12);
    EXPECT_EQ(LevelCaption(12), "*  ");
}

TEST_F(LogicSettings, EachSolveBoxHasItsBitAndDoesNothingElse)
{
    for (const TechniqueRow &technique : TechniqueRows) {
        const std::int32_t k = technique.Number;
        SolveMask = TrialBit;
        SetUseLogic(k, true);
        EXPECT_TRUE(UsesLogic(k));
        EXPECT_EQ(SolveMask, TrialBit | 1U << k);
        SetUseLogic(k, true);
        SetUseLogic(k, false);
        EXPECT_FALSE(UsesLogic(k));
        EXPECT_EQ(SolveMask, TrialBit);
    }
    EXPECT_EQ(Acts(), Texts());
}

TEST_F(LogicSettings, EachAlertBoxHasItsBitAndScansAndPaints)
{
    for (const TechniqueRow &technique : TechniqueRows) {
        const std::int32_t k = technique.Number;
        ForgetRecord();
        SetShowAlerts(k, true);
        EXPECT_TRUE(ShowsAlerts(k));
        EXPECT_EQ(AlertMask, 1U << k);
        EXPECT_EQ(Acts(), ScanAndPaint);
        SetShowAlerts(k, false);
        EXPECT_FALSE(ShowsAlerts(k));
        EXPECT_EQ(AlertMask, 0U);
    }
}

// The pair in the top row rings its row and its box, the single in the corner its column, its row
// and its box: A2 and A3 are rung by both.
TEST_F(LogicSettings, TurningAnAlertOffRemovesOnlyWhatItAloneCaused)
{
    SetPencilmarks(R"(
        12 12 1289 . . . . . .
        139 . . . . . . . .
        239 . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
        . . . . . . . . .
        39 . . . . . . . .
        3 . . 37 . . . . .
    )");
    SetShowAlerts(1, true);
    SetShowAlerts(3, true);
    ASSERT_EQ(CellsWith(AlertBit), "A2 A3 A8 C1 D9");
    SetShowAlerts(3, false);
    EXPECT_EQ(CellsWith(AlertBit), "A2 A3 A8 D9");
    SetShowAlerts(3, true);
    SetShowAlerts(1, false);
    EXPECT_EQ(CellsWith(AlertBit), "A2 A3 C1");
}

TEST_F(LogicSettings, SelectAllScansOnceRingsOnceAndKeepsOtherBits)
{
    AlertFiles = {"", "ring 2.alr"};
    AlertSound = 1;
    AlertMask = TrialBit;
    SelectAllAlerts();
    EXPECT_EQ(AlertMask, TrialBit | 0xFFFFEU);
    EXPECT_EQ(Acts(), (Texts{"sound: ring 2.alr", "board: "}));
    EXPECT_NE(CellsWith(AlertBit), "");
    ForgetRecord();
    SelectAllAlerts();
    EXPECT_EQ(Acts(), Texts{"board: "}) << "nothing new, so nothing rings";
}

TEST_F(LogicSettings, DeselectAllTakesEveryBitAndEveryRingOff)
{
    SelectAllAlerts();
    AlertMask |= TrialBit;
    ForgetRecord();
    DeselectAllAlerts();
    EXPECT_EQ(AlertMask, 0U);
    EXPECT_EQ(CellsWith(AlertBit), "");
    EXPECT_EQ(Acts(), Texts{"board: "});
}

TEST_F(LogicSettings, WithAllAlertsOffTheScanLeavesNoRing)
{
    SetShowAlerts(1, true);
    ASSERT_NE(CellsWith(AlertBit), "");
    SetShowAlerts(1, false);
    EXPECT_EQ(CellsWith(AlertBit), "");
}

TEST_F(LogicSettings, SinglesInGroupsChangeTheAlertsAtOnce)
{
    SetShowAlerts(3, true);
    const std::string without = CellsWith(AlertBit);
    ForgetRecord();
    SetIncludeSingles(true);
    EXPECT_EQ(IncludeSingles, True);
    EXPECT_EQ(Acts(), ScanAndPaint);
    EXPECT_NE(CellsWith(AlertBit), without);
    SetIncludeSingles(false);
    EXPECT_EQ(IncludeSingles, False);
    EXPECT_EQ(CellsWith(AlertBit), without);
}

TEST_F(LogicSettings, LinkLimitIsTakenAsItStandsAndScans)
{
    for (std::int32_t *limit : {&MaxXYLinks, &MaxRPLinks, &MaxSinglesLinks}) {
        for (const std::int32_t links : {0, 5, 81, 99}) {
            ForgetRecord();
            SetLinkLimit(*limit, links);
            EXPECT_EQ(*limit, links);
            EXPECT_EQ(Acts(), ScanAndPaint);
        }
    }
}

// Two digits go up to 99, though a grid has but 81 cells.
TEST_F(LogicSettings, LimitAboveTheCellsOfAGridFindsWhatEightyOneFinds)
{
    SelectAllAlerts();
    const std::string all = CellsWith(AlertBit);
    SetLinkLimit(MaxXYLinks, 99);
    SetLinkLimit(MaxRPLinks, 99);
    SetLinkLimit(MaxSinglesLinks, 99);
    EXPECT_EQ(CellsWith(AlertBit), all);
}

TEST_F(LogicSettings, MovingATechniqueChangesTheRating)
{
    ASSERT_EQ(GameRating, 1);
    SetLevel(1, 3);
    SetLevel(2, 3);
    EXPECT_EQ(GameRating, 3);
    EXPECT_EQ(LevelTable[1], 0U);
    EXPECT_EQ(LevelTable[3], 0xCD0U | 0x6U);
    EXPECT_EQ(LevelCaption(1), "Hard");
}

TEST_F(LogicSettings, MovingATechniqueRefreshesTheWindowOnly)
{
    SetLevel(18, 5);
    EXPECT_EQ(Acts(), Texts{"refresh: "});
    EXPECT_EQ(LevelTable[5], 0xFFF00000U | BitTable[18]);
}

TEST_F(LogicSettings, EveryLevelCanBeChosenForEveryTechnique)
{
    for (const TechniqueRow &technique : TechniqueRows) {
        const std::int32_t k = technique.Number;
        for (std::int32_t level = 1; level <= Levels; ++level) {
            SetLevel(k, level);
            EXPECT_EQ(LevelCaption(k), WordsOfRating(level).Capital);
            for (std::int32_t row = 1; row <= 6; ++row) {
                const bool in = (LevelTable[static_cast<std::size_t>(row)] & 1U << k) != 0;
                EXPECT_EQ(in, row == level);
            }
        }
    }
}

TEST_F(LogicSettings, ChoosingALevelTakesTheStarOff)
{
    ToggleRequired(10);
    ASSERT_EQ(LevelCaption(10), "*  Hard");
    SetLevel(10, 4);
    EXPECT_EQ(LevelCaption(10), "Very hard");
    EXPECT_FALSE(AnyRequired());
}

TEST_F(LogicSettings, StarGoesOnAndOffWithoutARating)
{
    GameRating = 77;
    ToggleRequired(8);
    EXPECT_EQ(LevelCaption(8), "*  Very hard");
    EXPECT_EQ(LevelTable[6], BitTable[8]);
    EXPECT_TRUE(AnyRequired());
    ToggleRequired(8);
    EXPECT_EQ(LevelCaption(8), "Very hard");
    EXPECT_FALSE(AnyRequired());
    EXPECT_EQ(GameRating, 77);
    EXPECT_EQ(Acts(), Texts());
}

} // namespace
} // namespace kelvarine::testing
