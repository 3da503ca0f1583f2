// The techniques of groups, intersections and fish as the driver and the alert scan run them.

#include "game/alert_scan.h"
#include "logic/driver.h"
#include "logic/technique.h"
#include "logic/technique_table.h"
#include "support/outside_double.h"
#include "support/positions.h"
#include "support/technique_calls.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

class GroupTechniques : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(GroupTechniques, CarryTheirReportNames)
{
    const std::array<std::string_view, 10> names{"Naked pair",
                                                 "Hidden pair",
                                                 "Naked triple",
                                                 "Hidden triple",
                                                 "Naked quad",
                                                 "Hidden quad",
                                                 "Col/row/box intersection",
                                                 "X-wing",
                                                 "Swordfish",
                                                 "Jellyfish"};
    for (std::int32_t k = 0; k < 10; ++k) {
        const TechniqueRow *row = FindTechnique(k + 3);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->ReportName, names[static_cast<std::size_t>(k)]);
        EXPECT_EQ(row->DriverApply, row->Driver);
        EXPECT_EQ(row->DriverRunsAll, k + 3 >= 10);
    }
}

// Runs the driver in mode 0 with one technique alone.
void ApplyAlone(std::size_t number)
{
    SolveMask = BitTable[number];
    ApplyLogic(SolveAsPlayer);
}

struct Example {
    std::size_t Number;
    std::string_view Drawing;
    std::string_view Changed;
};

// For each technique a position on which it alone finds something.
constexpr std::array Examples{
    Example{3, R"(
        12  . . . . . . . .
        12  . . . . . . . .
        123 . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
    )",
            "A3 123>3"},
    Example{4, R"(
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        1257    * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
        12      * * * * * * * *
        3456789 * * * * * * * *
        3456789 * * * * * * * *
    )",
            "A3 1257>12"},
    Example{5, R"(
        12  . . . . . . . .
        23  . . . . . . . .
        13  . . . . . . . .
        145 . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
    )",
            "A4 145>45"},
    Example{6, R"(
        1237   * * * * * * * *
        456789 * * * * * * * *
        456789 * * * * * * * *
        123    * * * * * * * *
        456789 * * * * * * * *
        456789 * * * * * * * *
        123    * * * * * * * *
        456789 * * * * * * * *
        456789 * * * * * * * *
    )",
            "A1 1237>123"},
    Example{7, R"(
        12  . . . . . . . .
        23  . . . . . . . .
        34  . . . . . . . .
        14  . . . . . . . .
        456 . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
        .   . . . . . . . .
    )",
            "A5 456>56"},
    Example{8, R"(
        1234  * * * * * * * *
        1234  * * * * * * * *
        56789 * * * * * * * *
        56789 * * * * * * * *
        1234  * * * * * * * *
        56789 * * * * * * * *
        56789 * * * * * * * *
        12348 * * * * * * * *
        56789 * * * * * * * *
    )",
            "A8 12348>1234"},
    Example{9, R"(
        *        12      23456789 * * * * * *
        *        23456789 23456789 * * * * * *
        23456789 23456789 23456789 * * * * * *
        23456789 *       *       * * * * * *
        23456789 *       *       * * * * * *
        23456789 *       *       * * * * * *
        23456789 *       *       * * * * * *
        23456789 *       *       * * * * * *
        23456789 *       *       * * * * * *
    )",
            "B1 12>2"},
    Example{10, R"(
        .  .  . . . . .  . .
        .  .  . . . . .  . .
        49 45 . . . . 48 . .
        .  .  . . . . .  . .
        .  .  . . . . .  . .
        .  .  . . . . .  . .
        .  46 . . . . 41 . .
        .  .  . . . . .  . .
        .  .  . . . . .  . .
    )",
            "A3 49>9"},
    Example{11, R"(
        19 . . .  . . 59 . 89
        29 . . 39 . . .  . .
        .  . . 49 . . 69 . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
        .  . . .  . . .  . .
    )",
            "J1 89>8"},
    Example{12, R"(
        25 23 . .  . . .  . .
        .  .  . .  . . .  . .
        .  .  . .  . . .  . .
        .  24 . 12 . . .  . .
        .  .  . .  . . .  . .
        .  .  . 27 . . 28 . .
        .  .  . .  . . .  . .
        29 .  . .  . . 26 . .
        24 .  . .  . . .  . .
    )",
            "A9 24>4"},
};

TEST_F(GroupTechniques, DriverRunsEachTechniqueUnderItsNumber)
{
    for (const Example &example : Examples) {
        for (std::size_t number = 3; number <= 12; ++number) {
            const auto run = [number](std::int32_t, Flag &) {
                ApplyAlone(number);
            };
            EXPECT_EQ(Call(run, ModeChange, example.Drawing).Changed,
                      number == example.Number ? example.Changed : "")
                << "technique " << number << " on the example of " << example.Number;
        }
    }
}

TEST_F(GroupTechniques, AlertScanRunsEachTechniqueUnderItsNumber)
{
    for (const Example &example : Examples) {
        for (std::size_t number = 3; number <= 12; ++number) {
            AlertMask = BitTable[number];
            const auto scan = [](std::int32_t mode, Flag &) {
                ScanAlerts(mode);
            };
            EXPECT_EQ(Call(scan, ModeAlert, example.Drawing).Alerts,
                      number == example.Number ? example.Changed.substr(0, 2) : "")
                << "technique " << number << " on the example of " << example.Number;
        }
    }
}

TEST_F(GroupTechniques, DriverRunsTheRowsInTheSamePassAsTheColumns)
{
    // The column form clears J6 of 2, the row form G2 of 6.
    constexpr std::string_view drawing = R"(
        6  .  .  . . . 6  .  .
        .  26 .  . . . 26 .  .
        .  .  .  . . . .  .  .
        67 .  .  . . . 68 .  .
        .  .  .  . . . .  .  .
        .  2  .  . . . 2  .  29
        .  .  .  . . . .  .  .
        .  .  .  . . . .  .  .
        .  .  .  . . . .  .  .
    )";
    const auto run = [](std::int32_t, Flag &) {
        ApplyAlone(10);
    };
    EXPECT_EQ(Call(run, ModeChange, drawing).Changed, "G2 26>2 J6 29>9");
    // One pass with the findings of both, and one that finds nothing.
    EXPECT_EQ(Seen.Yields, 2);
}

TEST_F(GroupTechniques, HintOfTheRowFormComesWhenTheColumnFormIsSilent)
{
    SetPosition(R"(
        *        * 12345678 * * * *        * *
        12345678 12345678 * 12345678 12345678 12345678 12345678 * 12345678
        *        * * * * * *        * *
        *        * * * * * *        * *
        12345678 12345678 * 12345678 12345678 12345678 12345678 * 12345678
        *        * * * * * *        * *
        *        * * * * * *        * *
        *        * * * * * *        * *
        *        * * * * * *        * *
    )");
    ScanAlerts(ModeTeaserPlace);
    EXPECT_EQ(HintText, "There's a conflict with an X-wing.\rIt involves the number 9");
    ScanAlerts(ModeFull);
    EXPECT_EQ(HintText, "Cell [C3] contains a 9 which conflicts with a 2-column/2-row exclusive "
                        "intersection. \rRows: 25    Columns: CH");
}

TEST_F(GroupTechniques, AlertOfANakedSingleComesFromTheGroupOfOne)
{
    AlertMask = BitTable[1];
    SetPosition(R"(
        5  .  . . . . . . .
        .  57 . . . . . . .
        .  .  . . . . . . .
        56 .  . . . . . . .
        .  .  . . . . . . .
        .  .  . . . . . . .
        .  .  . . . . . . .
        .  .  . . . . . . .
        .  .  . . . . . . .
    )");
    ScanAlerts(ModeAlert);
    EXPECT_EQ(CellsWith(AlertBit), "A4 B2");
}

TEST_F(GroupTechniques, AlertOfAHiddenSingleComesFromTheGroupOfOne)
{
    AlertMask = BitTable[2];
    SetPosition(R"(
        * * * * * * * * *
        * * * * * * * * *
        * * * * * * * * *
        12345679 12345679 12345679 1238 12345679 12345679 12345679 12345679 12345679
        * * * * * * * * *
        * * * * * * * * *
        * * * * * * * * *
        * * * * * * * * *
        * * * * * * * * *
    )");
    ScanAlerts(ModeAlert);
    EXPECT_EQ(CellsWith(AlertBit), "D4");
}

} // namespace
} // namespace kelvarine::testing
