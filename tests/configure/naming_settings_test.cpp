#include "configure/naming_settings.h"
#include "grid/names.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;
using Captions = std::vector<std::string_view>;

class NamingSettings : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

TEST_F(NamingSettings, FormatsRefreshTheWindowWhoseLabelsFollow)
{
    SetColumnFormat(3);
    SetRowFormat(4);
    EXPECT_EQ(CellName(2, 7), "[C2r7]");
    EXPECT_EQ(Acts(), (Texts{"refresh: ", "refresh: "}));
}

TEST_F(NamingSettings, SeparatorAndBracketsRefreshNothing)
{
    SetCoordSeparator(1);
    SetCoordBrackets(4);
    EXPECT_EQ(CellName(2, 7), "<B,7>");
    EXPECT_EQ(Acts(), Texts());
}

TEST_F(NamingSettings, LettersForBothAreTheSameLetters)
{
    SetColumnFormat(1);
    SetRowFormat(1);
    EXPECT_EQ(CellName(1, 1), "[AA]");
    EXPECT_EQ(CellName(9, 9), "[JJ]");
}

TEST_F(NamingSettings, SwitchingTwiceGivesBackTheFirstOrder)
{
    SwitchCoordOrder();
    EXPECT_EQ(CoordRowFirst, True);
    EXPECT_EQ(CellName(2, 7), "[7B]");
    SwitchCoordOrder();
    EXPECT_EQ(CoordRowFirst, False);
    EXPECT_EQ(CellName(2, 7), "[B7]");
}

// ---- Captions, forms and ranges ----------------------------------------------------------------

template <std::size_t Count>
Captions AllOf(const std::array<std::string_view, Count> &captions)
{
    return {captions.begin(), captions.end()};
}

TEST_F(NamingSettings, Captions)
{
    EXPECT_EQ(AllOf(ColumnCaptions), (Captions{" 1-9 ", " A-J ", " a-j ", " C1-C9 ", " c1-c9 "}));
    EXPECT_EQ(AllOf(RowCaptions), (Captions{" 1-9 ", " A-J ", " a-j ", " R1-R9 ", " r1-r9 "}));
    EXPECT_EQ(AllOf(SeparatorCaptions), (Captions{" None ", " , ", " - ", " / "}));
    EXPECT_EQ(AllOf(BracketCaptions), (Captions{" None ", " ( ) ", " { } ", " [ ] ", " < > "}));
}

std::string LinesCaption(std::string (*name)(int))
{
    return " " + name(1) + "-" + name(9) + " ";
}

std::string SignCaption(const std::string &sign)
{
    return sign.empty() ? " None " : " " + sign + " ";
}

// Each value of a setting's range has its caption, which says what the value does, and makes a name
// of its own.
void CheckForms(const Range &range, const Captions &captions, std::int32_t &setting,
                const std::function<std::string()> &captionOfForm)
{
    EXPECT_EQ(range, (Range{0, static_cast<std::int32_t>(captions.size()) - 1}));
    std::set<std::string> names;
    for (std::size_t k = 0; k < captions.size(); ++k) {
        setting = static_cast<std::int32_t>(k);
        EXPECT_EQ(captions[k], captionOfForm());
        names.insert(CellName(2, 7));
    }
    EXPECT_EQ(names.size(), captions.size());
}

TEST_F(NamingSettings, EveryLineFormHasItsCaption)
{
    CheckForms(ColumnFormatRange, AllOf(ColumnCaptions), ColumnFormat,
               [] { return LinesCaption(ColumnName); });
    CheckForms(RowFormatRange, AllOf(RowCaptions), RowFormat, [] { return LinesCaption(RowName); });
}

TEST_F(NamingSettings, EverySeparatorHasItsCaption)
{
    CoordBrackets = 0;
    CheckForms(CoordSeparatorRange, AllOf(SeparatorCaptions), CoordSeparator, [] {
        const std::string name = CellName(2, 7); // "B7" with the separator in between
        return SignCaption(name.substr(1, name.size() - 2));
    });
}

TEST_F(NamingSettings, EveryPairOfBracketsHasItsCaption)
{
    CheckForms(CoordBracketsRange, AllOf(BracketCaptions), CoordBrackets, [] {
        const std::string name = CellName(2, 7);
        const std::size_t bare = name.find("B7");
        const std::string opening = name.substr(0, bare);
        const std::string closing = name.substr(bare + 2);
        return SignCaption(opening.empty() ? closing : opening + " " + closing);
    });
}

} // namespace
} // namespace kelvarine::testing
