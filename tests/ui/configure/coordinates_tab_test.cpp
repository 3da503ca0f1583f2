#include "game/screens.h"
#include "grid/colour.h"
#include "grid/names.h"
#include "support/widget_configure.h"

#include <QAbstractButton>
#include <QGroupBox>

namespace kelvarine::testing {
namespace {

class CoordinatesTabTest : public ConfigureTest {
protected:
    QImage Sample()
    {
        return Find<QWidget>("picCoordinateSample")->grab().toImage();
    }

    QImage Margin()
    {
        return Running->Main->Client->grab().toImage();
    }

    void ClickOption(const char *group, int k)
    {
        Click(Name(group, k));
    }
};

struct GroupRow {
    const char *Name;
    const char *Frame;
    std::int32_t *Setting;
    int Count;
    bool OnMargin; // whether the labels beside the board follow
};

const std::array GroupRows{
    GroupRow{"optColumnFormat", "Column", &ColumnFormat, 5, true},
    GroupRow{"optRowFormat", "Row", &RowFormat, 5, true},
    GroupRow{"optCoordSeparator", "Separator", &CoordSeparator, 4, false},
    GroupRow{"optCoordBrackets", "Brackets", &CoordBrackets, 5, false},
};

TEST_F(CoordinatesTabTest, ShowsTheStateInItsFrames)
{
    Open(CoordinatesTab);
    for (const GroupRow &row : GroupRows) {
        for (int k = 0; k < row.Count; ++k) {
            auto *option = Find<QAbstractButton>(Name(row.Name, k));
            EXPECT_EQ(option->isChecked(), k == *row.Setting) << row.Name << k;
            EXPECT_EQ(qobject_cast<QGroupBox *>(option->parentWidget())->title(), row.Frame);
        }
    }
    EXPECT_EQ(Find<QAbstractButton>("cmdCoordFirst")->text(), "Switch Order");
    EXPECT_NE(Find<QGroupBox>("frameRow"), nullptr);
}

TEST_F(CoordinatesTabTest, EachOptionWritesItsIndexAndChangesTheSample)
{
    Open(CoordinatesTab);
    for (const GroupRow &row : GroupRows) {
        const std::int32_t first = *row.Setting;
        const QImage before = Sample();
        const QImage margin = Margin();
        bool marginFollowed = false;
        for (int k = 0; k < row.Count; ++k) {
            ClickOption(row.Name, k);
            EXPECT_EQ(*row.Setting, k);
            EXPECT_EQ(Sample() != before, k != first) << row.Name << k;
            marginFollowed |= Margin() != margin;
        }
        EXPECT_EQ(marginFollowed, row.OnMargin) << row.Name;
        ClickOption(row.Name, first);
        EXPECT_EQ(Sample(), before);
        EXPECT_EQ(Margin(), margin);
    }
}

TEST_F(CoordinatesTabTest, SwitchingTheOrderTwiceGivesBackTheFirstLook)
{
    Open(CoordinatesTab);
    const QImage before = Sample();
    Click("cmdCoordFirst");
    EXPECT_EQ(CoordRowFirst, True);
    EXPECT_NE(Sample(), before);
    Click("cmdCoordFirst");
    EXPECT_EQ(CoordRowFirst, False);
    EXPECT_EQ(Sample(), before);
}

TEST_F(CoordinatesTabTest, SampleIsATableOfNineByNineWithDoubledBoxBorders)
{
    Open(CoordinatesTab);
    const QImage table = Sample();
    ASSERT_EQ(table.size(), QSize(371, 326));
    for (int line = 0; line <= 9; ++line) {
        EXPECT_EQ(table.pixel(41 * line, 20) & 0xFFFFFF, 0U) << line;
        EXPECT_EQ(table.pixel(20, 36 * line) & 0xFFFFFF, 0U) << line;
        const Colour second = line % 3 == 0 ? 0U : 0xFFFFFFU;
        EXPECT_EQ(table.pixel(41 * line + 1, 4) & 0xFFFFFF, second) << line;
        EXPECT_EQ(table.pixel(4, 36 * line + 1) & 0xFFFFFF, second) << line;
    }
}

// The part of a cell of the table that its name takes.
QRect LettersIn(const QImage &table, int column, int row)
{
    QRect letters;
    for (int x = 41 * column - 38; x < 41 * column - 1; ++x) {
        for (int y = 36 * row - 33; y < 36 * row - 1; ++y) {
            if (qGray(table.pixel(x, y)) < 128) {
                letters |= QRect(x, y, 1, 1);
            }
        }
    }
    return letters;
}

TEST_F(CoordinatesTabTest, NamesStandUnderTheirColumns)
{
    Open(CoordinatesTab);
    ASSERT_EQ(CellName(9, 5), "[J5]");
    const QImage table = Sample();
    for (int row = 1; row <= 9; ++row) {
        EXPECT_LT(LettersIn(table, 9, row).width() + 2, LettersIn(table, 8, row).width())
            << "a J is narrower than an H, in row " << row;
    }
}

TEST_F(CoordinatesTabTest, EveryNameStandsInTheMiddleOfItsCell)
{
    Open(CoordinatesTab);
    for (const int format : {0, 4}) { // the shortest names and the longest
        ColumnFormat = format;
        RowFormat = format;
        CoordSeparator = format == 0 ? 0 : 1;
        CoordBrackets = format == 0 ? 0 : 4;
        const QImage table = Sample();
        for (int column = 1; column <= 9; ++column) {
            for (int row = 1; row <= 9; ++row) {
                const QRect letters = LettersIn(table, column, row);
                EXPECT_FALSE(letters.isEmpty()) << column << ' ' << row;
                EXPECT_LE(std::abs(letters.center().x() - (41 * column - 20)), 3);
                EXPECT_LE(std::abs(letters.center().y() - (36 * row - 17)), 4);
                EXPECT_LT(letters.width(), 39) << "not cut off";
            }
        }
    }
}

TEST_F(CoordinatesTabTest, LettersForBothGiveTheSameLetters)
{
    Open(CoordinatesTab);
    ClickOption("optRowFormat", 1);
    EXPECT_EQ(CellName(1, 1), "[AA]");
}

} // namespace
} // namespace kelvarine::testing
