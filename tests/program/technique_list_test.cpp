// What every technique must have, found by walking the list of them: whoever adds one is told here
// what is still missing. Nothing in this file names a technique.
#include "commands/text_commands.h"
#include "configure/logic_settings.h"
#include "grid/grid.h"
#include "logic/plain/forms.h"
#include "logic/technique.h"
#include "logic/technique_comparison.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "outside/clipboard.h"
#include "outside/whole_file.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/random_positions.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

namespace kelvarine::testing {
namespace {

constexpr std::array ReportingModes{ModeTeaser, ModeTeaserPlace, ModeFull};

// The page of the help; empty when there is none.
std::string PageOf(const TechniqueRow &row)
{
    std::string page;
    std::string error;
    ReadWholeFile(std::string(TEST_TECHNIQUE_PAGES) + "/" + std::string(row.HelpPage) + ".html",
                  page, error);
    return page;
}

// The position that a page shows, as a player pastes it.
std::string ExampleOn(const std::string &page)
{
    constexpr std::string_view opening = "<pre>";
    const std::size_t start = page.find(opening);
    const std::size_t end = page.find("</pre>");
    return start < end && end != std::string::npos
               ? page.substr(start + opening.size(), end - start - opening.size())
               : "";
}

// Puts the example of a technique on Grid.
void SetExample(const TechniqueRow &row)
{
    Grid = {};
    SetClipboardText(ExampleOn(PageOf(row)));
    mnuGameClipboard();
    ClearCellBits(~(CandidateMask | GivenBit));
}

// Calls operations one after the other as the alert scan does: until one leaves a text.
void Scan(const OperationList &operations, std::int32_t mode)
{
    HintText.clear();
    HintTitle.clear();
    Flag unused = False;
    for (const Operation operation : operations) {
        if (operation != nullptr && HintText.empty()) {
            operation(mode, unused);
        }
    }
}

// Whether one of the operations finds something that changes the grid.
bool Changes(const OperationList &operations)
{
    Flag found = False;
    for (const Operation operation : operations) {
        if (operation != nullptr) {
            operation(ModeChange, found);
        }
    }
    return found != False;
}

void Compare(const OperationList &fast, const OperationList &plain, std::int32_t mode,
             const GridTable &start)
{
    State before;
    before.Words = start;
    for (std::size_t k = 0; k < fast.size(); ++k) {
        ASSERT_EQ(plain[k] == nullptr, fast[k] == nullptr) << "operation " << k;
        if (fast[k] != nullptr) {
            ASSERT_EQ(StateAfter(before, fast[k], mode), StateAfter(before, plain[k], mode))
                << "operation " << k << " mode " << mode << " on\n"
                << PencilmarksOf(start);
        }
    }
}

// Compares each list in the modes that it runs in.
void CompareAll(const TechniqueRow &row, const plain::Form &form, const GridTable &start)
{
    Compare(row.DriverApply, form.DriverApply, ModeChange, start);
    Compare(row.Driver, form.Driver, ModeChange, start);
    for (std::int32_t mode = ModeAlert; mode <= ModeFull; ++mode) {
        Compare(row.AlertScan, form.AlertScan, mode, start);
    }
}

class TechniqueList : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// The masks and the levels stand in files, so they are these numbers for good.
TEST_F(TechniqueList, GivesTheMasksAndLevelsOfTheFiles)
{
    EXPECT_EQ(CountingMask, 0x4000020EU);
    EXPECT_EQ(ListingMask, 0x40000006U);
    EXPECT_EQ(RatingMask, 0xFFFFFFFFU);
    EXPECT_EQ(TechniqueRowsMask, 0xFFFFEU);
    EXPECT_EQ(LevelTable, (std::array<std::uint32_t, 10>{0, 0x6, 0x228, 0xCD0, 0xFF100, 0xFFF00000,
                                                         0, 0, 0, 0}));
}

TEST_F(TechniqueList, EachHasOneLevelAtTheStartAndItsWord)
{
    for (const TechniqueRow &row : TechniqueRows) {
        SCOPED_TRACE(row.Caption);
        for (std::int32_t level = 1; level <= Levels; ++level) {
            const std::uint32_t held = LevelTable[static_cast<std::size_t>(level)];
            EXPECT_EQ((held & BitOf(row.Number)) != 0, level == row.Level);
        }
        EXPECT_EQ(LevelCaption(row.Number), WordsOfRating(row.Level).Capital);
    }
}

TEST_F(TechniqueList, EachDoesSomethingForDriverAndAlerts)
{
    for (const TechniqueRow &row : TechniqueRows) {
        const bool isKeptFree = &row == &TechniqueRows.back();
        for (const OperationList &operations : {row.DriverApply, row.Driver, row.AlertScan}) {
            EXPECT_EQ(operations[0] == nullptr, isKeptFree) << row.Caption;
        }
    }
}

TEST_F(TechniqueList, EachHasNamesOfItsOwn)
{
    std::set<std::string_view> captions;
    std::set<std::string_view> names;
    std::set<std::string_view> pages;
    for (const TechniqueRow &row : Techniques) {
        EXPECT_TRUE(row.Caption.starts_with("   ")) << row.Caption << " stands too far to the left";
        EXPECT_TRUE(captions.insert(row.Caption).second) << row.Caption;
        EXPECT_TRUE(names.insert(row.ReportName).second) << row.ReportName;
        EXPECT_TRUE(pages.insert(row.HelpPage).second) << row.HelpPage;
        EXPECT_EQ(row.LinkLimit == nullptr, row.LimitBox.empty()) << row.Caption;
    }
}

TEST_F(TechniqueList, EachHasAPageOfTheHelpWithAnExampleThatItWorksOn)
{
    for (const TechniqueRow &row : Techniques) {
        SCOPED_TRACE(row.ReportName);
        const std::string page = PageOf(row);
        ASSERT_NE(page, "") << "no page " << row.HelpPage << ".html";
        for (const char *picture : {"@example@", "@far@", "@alike"}) {
            EXPECT_NE(page.find(picture), std::string::npos) << "no place for " << picture;
        }
        ASSERT_NE(ExampleOn(page), "") << "no example";

        SetExample(row);
        EXPECT_TRUE(Changes(row.DriverApply)) << "the driver finds nothing";
        SetExample(row);
        Scan(row.AlertScan, ModeAlert);
        EXPECT_NE(CellsWith(AlertBit), "") << "the alert scan marks nothing";
    }
}

TEST_F(TechniqueList, EachTellsItsExampleInEveryMode)
{
    for (const TechniqueRow &row : Techniques) {
        SCOPED_TRACE(row.ReportName);
        std::set<std::string> texts;
        for (const std::int32_t mode : ReportingModes) {
            SetExample(row);
            Scan(row.AlertScan, mode);
            EXPECT_NE(HintText, "") << "mode " << mode;
            EXPECT_TRUE(texts.insert(HintText).second) << "mode " << mode << " says nothing new";
        }
        EXPECT_NE(HintTitle, "");
        const std::string hint = HintText;
        const std::string target = CellsWith(SelectedBit);
        EXPECT_NE(target, "");
        ClearCellBits(~(CandidateMask | GivenBit | SelectedBit));
        Scan(row.AlertScan, ModeExplain);
        EXPECT_EQ(HintText, hint) << "the alert of " << target << " is told in other words";
    }
}

TEST_F(TechniqueList, EachHasAPlainFormThatDoesTheSame)
{
    std::mt19937 random(19);
    for (const TechniqueRow &row : Techniques) {
        SCOPED_TRACE(row.ReportName);
        const plain::Form *form = plain::FindForm(row.Number);
        ASSERT_NE(form, nullptr) << "no plain form";
        MaxSinglesLinks = MaxRPLinks = MaxXYLinks = 81;
        SetExample(row);
        ASSERT_NO_FATAL_FAILURE(CompareAll(row, *form, GridTable(Grid)));
        // Chains of any length multiply on positions without sense.
        MaxSinglesLinks = MaxRPLinks = MaxXYLinks = 4;
        for (int round = 0; round < 100; ++round) {
            for (const PositionKind kind : PositionKinds) {
                SetRandomPosition(random, kind, static_cast<int>(random() % 82));
                ASSERT_NO_FATAL_FAILURE(CompareAll(row, *form, GridTable(Grid)));
            }
        }
    }
}

} // namespace
} // namespace kelvarine::testing
