#include "files/text_format.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

namespace kelvarine::testing {
namespace {

class TextFormat : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }
};

// A drawing with its lines ended as in a text that leaves the program.
std::string WithLineEnds(std::string_view drawing)
{
    std::string text;
    std::istringstream lines{std::string(drawing)};
    std::string line;
    while (std::getline(lines, line)) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start != std::string::npos) {
            text += line.substr(start) + "\r\n";
        }
    }
    return text;
}

std::string OneLine(std::string_view drawing)
{
    std::string marks;
    std::ranges::copy_if(drawing, std::back_inserter(marks),
                         [](char mark) { return mark != ' ' && mark != '\n'; });
    return marks;
}

// The cell in reading order, 1..81.
CellWord WordInReadingOrder(std::size_t place)
{
    return Grid[(place - 1) % 9 + 1][(place - 1) / 9 + 1];
}

// ---- Writing -------------------------------------------------------------------------------

TEST_F(TextFormat, GridOfNumbersIsFramed)
{
    SetGivens(EasyGame);
    EXPECT_EQ(GridFormatText(), WithLineEnds(R"(
        +-------+-------+-------+
        | 5 3 . | . 7 . | . . . |
        | 6 . . | 1 9 5 | . . . |
        | . 9 8 | . . . | . 6 . |
        +-------+-------+-------+
        | 8 . . | . 6 . | . . 3 |
        | 4 . . | 8 . 3 | . . 1 |
        | 7 . . | . 2 . | . . 6 |
        +-------+-------+-------+
        | . 6 . | . . . | 2 8 . |
        | . . . | 4 1 9 | . . 5 |
        | . . . | . 8 . | . 7 9 |
        +-------+-------+-------+
    )"));
}

TEST_F(TextFormat, PencilmarksWidenTheFrame)
{
    SetPencilmarks(R"(
        [5]  12 .   . . .  . . 3
        .    .  .   . . .  . . .
        .    .  .   . . .  . . .
        .    .  .   . . .  . . .
        .    .  .   . 469 .  . . .
        .    .  .   . . .  . . .
        .    .  .   . . .  . . .
        .    .  .   . . .  . . .
        .    .  .   . . .  . . 89
    )");
    EXPECT_EQ(GridFormatText(), WithLineEnds(R"(
        +-------------+-------------+-------------+
        | 5   12  .   | .   .   .   | .   .   3   |
        | .   .   .   | .   .   .   | .   .   .   |
        | .   .   .   | .   .   .   | .   .   .   |
        +-------------+-------------+-------------+
        | .   .   .   | .   .   .   | .   .   .   |
        | .   .   .   | .   469 .   | .   .   .   |
        | .   .   .   | .   .   .   | .   .   .   |
        +-------------+-------------+-------------+
        | .   .   .   | .   .   .   | .   .   .   |
        | .   .   .   | .   .   .   | .   .   .   |
        | .   .   .   | .   .   .   | .   .   89  |
        +-------------+-------------+-------------+
    )"));
    EXPECT_EQ(SingleLineText(), "5 12......3" + Dots(31) + "469" + Dots(39) + "89\r\n");
}

TEST_F(TextFormat, SingleLineOfNumbersHasNoBlanks)
{
    SetGivens(EasyGame);
    EXPECT_EQ(SingleLineText(), OneLine(EasyGame) + "\r\n");
}

TEST_F(TextFormat, BlankStandsBetweenTouchingRunsAlone)
{
    SetGivens("");
    Grid[1][1] = BitTable[1];
    Grid[2][1] = BitTable[2];
    Grid[3][1] = BitTable[3] | BitTable[4];
    Grid[5][1] = BitTable[5];
    Grid[9][1] = BitTable[6];
    Grid[1][2] = BitTable[7] | BitTable[8];
    EXPECT_EQ(SingleLineText(), "1 2 34.5...6 78" + Dots(71) + "\r\n");
}

TEST_F(TextFormat, GivenPlacedNumberAndPencilmarkAreWrittenAlike)
{
    Grid[1][1] = BitTable[4] | GivenBit | SelectedBit | SolutionMask | CellColour;
    Grid[2][1] = BitTable[4];
    EXPECT_EQ(SingleLineText(), "44" + Dots(79) + "\r\n");
}

TEST_F(TextFormat, EmptyGridIsDotsAndNeverAnEmptyText)
{
    EXPECT_EQ(SingleLineText(), Dots(81) + "\r\n");
    EXPECT_EQ(GridFormatText(), WithLineEnds(R"(
        +-------+-------+-------+
        | . . . | . . . | . . . |
        | . . . | . . . | . . . |
        | . . . | . . . | . . . |
        +-------+-------+-------+
        | . . . | . . . | . . . |
        | . . . | . . . | . . . |
        | . . . | . . . | . . . |
        +-------+-------+-------+
        | . . . | . . . | . . . |
        | . . . | . . . | . . . |
        | . . . | . . . | . . . |
        +-------+-------+-------+
    )"));
}

TEST_F(TextFormat, ViewRestrictedToFiveCopiesOnlyFivesAndDots)
{
    SetGame(EasyGame);
    NumberFilter = BitTable[5];
    std::string expected;
    for (std::size_t place = 1; place <= 81; ++place) {
        expected += (WordInReadingOrder(place) & BitTable[5]) != 0 ? '5' : '.';
    }
    EXPECT_EQ(SingleLineText(), expected + "\r\n");
    EXPECT_EQ(GridFormatText().substr(0, 27), "+-------+-------+-------+\r\n");
    NumberFilter = BitTable[5] | BitTable[7];
    EXPECT_EQ(SingleLineText().substr(0, 9), "5.57 57 7");
    NumberFilter = 0;
    EXPECT_EQ(SingleLineText(), Dots(81) + "\r\n");
}

TEST_F(TextFormat, CellWithAllNineIsTheWidest)
{
    Grid[9][9] = CandidateMask;
    EXPECT_EQ(GridFormatText().substr(0, 100), "+-" + std::string(30, '-') + "+-" +
                                                   std::string(30, '-') + "+-" +
                                                   std::string(30, '-') + "+\r\n" + "|");
    EXPECT_NE(GridFormatText().find("123456789 |\r\n"), std::string::npos);
}

// ---- Reading by characters -----------------------------------------------------------------

TEST_F(TextFormat, OneAndEightyDotsIsOneGiven)
{
    EXPECT_EQ(ReadPosition("1" + Dots(80)), 81);
    EXPECT_EQ(Grid[1][1], BitTable[1] | GivenBit);
    Grid[1][1] = 0;
    EXPECT_EQ(Grid, GridTable{});
}

TEST_F(TextFormat, EightyDigitsLeaveCell81Empty)
{
    EXPECT_EQ(ReadPosition(std::string(80, '7')), 80);
    EXPECT_EQ(Grid[8][9], BitTable[7] | GivenBit);
    EXPECT_EQ(Grid[9][9], 0U);
}

TEST_F(TextFormat, Mark82IsIgnored)
{
    EXPECT_EQ(ReadPosition(std::string(81, '7') + "9"), 81);
    EXPECT_EQ(Grid[9][9], BitTable[7] | GivenBit);
    EXPECT_EQ(ReadPosition(Dots(80) + "45"), 81);
    EXPECT_EQ(Grid[9][9], BitTable[4] | GivenBit);
}

TEST_F(TextFormat, CharactersFillRowAfterRow)
{
    EXPECT_EQ(ReadPosition(OneLine(EasyGame)), 81);
    GridTable expected = Grid;
    SetGivens(EasyGame);
    EXPECT_EQ(Grid, expected);
}

TEST_F(TextFormat, ZeroIsAnEmptyCellAsADotIs)
{
    EXPECT_EQ(ReadPosition("0.1" + std::string(78, '0')), 81);
    EXPECT_EQ(CellsWith(CandidateMask), "C1");
    EXPECT_EQ(ReadPosition("0 . 1" + std::string(90, '0')), 81);
    EXPECT_EQ(CellsWith(CandidateMask), "C1");
}

TEST_F(TextFormat, OtherCharactersMeanNothing)
{
    EXPECT_EQ(ReadPosition("a1\t|-+2\r\n\xC3\xA9,x" + std::string(1, '\0') + "3"), 3);
    EXPECT_EQ(CellsWith(BitTable[1]), "A1");
    EXPECT_EQ(CellsWith(BitTable[2]), "B1");
    EXPECT_EQ(CellsWith(BitTable[3]), "C1");
    EXPECT_EQ(CellsWith(GivenBit), "A1 B1 C1");
}

TEST_F(TextFormat, Exactly81MarksReadByCharactersEvenSideBySide)
{
    EXPECT_EQ(ReadPosition("12 3" + Dots(78)), 81);
    EXPECT_EQ(Grid[1][1], BitTable[1] | GivenBit);
    EXPECT_EQ(Grid[2][1], BitTable[2] | GivenBit);
    EXPECT_EQ(Grid[3][1], BitTable[3] | GivenBit);
}

TEST_F(TextFormat, OnlyTheBlankItselfCallsForRuns)
{
    EXPECT_EQ(ReadPosition("12\t34\n5\xC2\xA0"
                           "6\v7"),
              7);
    EXPECT_EQ(CellsWith(GivenBit), "A1 B1 C1 D1 E1 F1 G1");
    EXPECT_EQ(ReadPosition("12\t34 5"), 3);
    EXPECT_EQ(Grid[1][1], BitTable[1] | BitTable[2]);
}

// ---- Reading by digit runs -----------------------------------------------------------------

TEST_F(TextFormat, RunsAreCells)
{
    EXPECT_EQ(ReadPosition("1 2 12 1.2 102 77 x8x"), 11);
    const std::array<CellWord, 11> expected{
        BitTable[1] | GivenBit,
        BitTable[2] | GivenBit,
        BitTable[1] | BitTable[2],
        BitTable[1] | GivenBit,
        0,
        BitTable[2] | GivenBit,
        BitTable[1] | GivenBit,
        0,
        BitTable[2] | GivenBit,
        BitTable[7], // a repeated digit only clears the given
        BitTable[8] | GivenBit,
    };
    for (std::size_t place = 1; place <= expected.size(); ++place) {
        EXPECT_EQ(WordInReadingOrder(place), expected[place - 1]) << place;
    }
}

TEST_F(TextFormat, ThirdDigitOfARunLeavesTheCellNoGiven)
{
    ReadPosition("123 444 5");
    EXPECT_EQ(Grid[1][1], BitTable[1] | BitTable[2] | BitTable[3]);
    EXPECT_EQ(Grid[2][1], BitTable[4]);
    EXPECT_EQ(Grid[3][1], BitTable[5] | GivenBit);
}

TEST_F(TextFormat, FrameTakesNoCellInEitherReading)
{
    const std::string frame = "+-|+-|";
    EXPECT_EQ(ReadPosition(frame + "1" + frame + "2"), 2);
    EXPECT_EQ(ReadPosition(frame + " 1" + frame + "23" + frame), 2);
    EXPECT_EQ(Grid[2][1], BitTable[2] | BitTable[3]);
}

TEST_F(TextFormat, RunsStopAtTheFirstCellTooMany)
{
    EXPECT_EQ(ReadPosition(" " + Dots(80) + "12 3 456"), 81);
    EXPECT_EQ(Grid[9][9], BitTable[1] | BitTable[2]);
    EXPECT_EQ(ReadPosition(" " + Dots(80) + "12.3"), 81);
    EXPECT_EQ(Grid[9][9], BitTable[1] | BitTable[2]);
    EXPECT_EQ(ReadPosition(" " + Dots(79) + "12 3"), 81);
    EXPECT_EQ(Grid[8][9], BitTable[1] | BitTable[2]);
    EXPECT_EQ(Grid[9][9], BitTable[3] | GivenBit);
}

TEST_F(TextFormat, RunGoesOnToTheEndOfTheLastCell)
{
    EXPECT_EQ(ReadPosition(" " + Dots(80) + "123456789123456789"), 81);
    EXPECT_EQ(Grid[9][9], CandidateMask);
}

TEST_F(TextFormat, NothingInTheTextIsNoCell)
{
    for (const std::string_view text : {"", " ", "no sudoku", "+-+ |"}) {
        EXPECT_EQ(ReadPosition(text), 0);
    }
}

TEST_F(TextFormat, ReadingKeepsTheOldCellsInTheSafeCopyAndClearsTheGrid)
{
    SetGame(EasyGame);
    Grid[0][0] = 5;
    const GridTable before = Grid;
    ReadPosition("1");
    EXPECT_TRUE(SameCells(History[SafeCopySlot], before));
    EXPECT_EQ(Grid[0][0], 0U);
    EXPECT_EQ(CellsWith(CandidateMask), "A1");
}

// ---- There and back ------------------------------------------------------------------------

TEST_F(TextFormat, NumbersReadBackAsGivens)
{
    SetGivens(EasyGame);
    Grid[3][1] = BitTable[4]; // placed
    const GridTable before = Grid;
    for (const std::string &text : {GridFormatText(), SingleLineText()}) {
        Grid = before;
        EXPECT_EQ(ReadPosition(text), 81);
        EXPECT_TRUE(SameCells(Grid, before, CandidateMask));
        EXPECT_NE(Grid[3][1] & GivenBit, 0U);
    }
}

// One digit alone in a cell becomes a given, several become pencilmarks, none an empty cell.
CellWord ReadBack(CellWord word)
{
    const CellWord inView = word & NumberFilter;
    return CandidatesIn(inView) == 1 ? inView | GivenBit : inView;
}

void ExpectReadBack(const GridTable &written, const std::string &text)
{
    ASSERT_EQ(ReadPosition(text), 81) << text;
    for (const Cell cell : Cells) {
        ASSERT_EQ(WordAt(cell), ReadBack(written[cell.Column][cell.Row])) << text;
    }
}

TEST_F(TextFormat, AnyPositionReadsBackFromTheGridFormat)
{
    std::mt19937 random(99);
    for (int round = 0; round < 400; ++round) {
        const unsigned density = random() % 5; // of pencilmarks, from none to many
        GridTable written{};
        for (const Cell cell : Cells) {
            const CellWord word = random() & CandidateMask;
            const CellWord number = BitTable[random() % 9 + 1];
            written[cell.Column][cell.Row] = random() % 4 < density ? word : number;
        }
        Grid = written;
        NumberFilter = round % 2 == 0 ? CandidateMask : random() & CandidateMask;
        ExpectReadBack(written, GridFormatText());
        Grid = written;
        const std::string line = SingleLineText();
        const std::string marks = line.substr(0, line.size() - 2);
        if (marks.find(' ') != std::string::npos || marks.size() == 81) {
            ExpectReadBack(written, marks);
        }
    }
}

TEST_F(TextFormat, SingleLineWithoutABlankReadsByCharacters)
{
    Grid[2][1] = BitTable[1] | BitTable[2];
    const std::string line = SingleLineText();
    EXPECT_EQ(line, ".12" + Dots(79) + "\r\n");
    EXPECT_EQ(ReadPosition(line), 81);
    EXPECT_EQ(Grid[2][1], BitTable[1] | GivenBit);
    EXPECT_EQ(Grid[3][1], BitTable[2] | GivenBit);
}

// ---- Anything ------------------------------------------------------------------------------

TEST_F(TextFormat, AnyBytesGive0To81CellsOfSoundWords)
{
    std::mt19937 random(7);
    constexpr std::string_view likely = "0123456789. +-|\r\n";
    for (int round = 0; round < 4000; ++round) {
        std::string text(random() % 400, ' ');
        const bool bytes = round % 3 == 0;
        for (char &mark : text) {
            mark = bytes ? static_cast<char>(random() % 256) : likely[random() % likely.size()];
        }
        const int cells = ReadPosition(text);
        ASSERT_GE(cells, 0);
        ASSERT_LE(cells, 81);
        const auto marks = std::ranges::count_if(
            text, [](char mark) { return mark == '.' || (mark >= '0' && mark <= '9'); });
        ASSERT_LE(cells, marks);
        for (std::size_t place = 1; place <= 81; ++place) {
            const CellWord word = WordInReadingOrder(place);
            ASSERT_EQ(word & ~LastingFields, 0U);
            ASSERT_TRUE((word & GivenBit) == 0 || CandidatesIn(word) == 1);
            ASSERT_TRUE(word == 0 || static_cast<int>(place) <= cells);
        }
    }
}

} // namespace
} // namespace kelvarine::testing
