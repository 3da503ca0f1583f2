#include "commands/restart.h"
#include "files/game_file.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace kelvarine::testing {
namespace {

class GameTextFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
    }

    std::string Written()
    {
        GameFilePath = Folder.Path("game.txt");
        EXPECT_TRUE(WriteGameFile());
        return Folder.Read("game.txt");
    }

    bool Open(std::string_view contents)
    {
        Folder.Write("given.txt", contents);
        return ReadGameFile(Folder.Path("given.txt"));
    }

    TemporaryFolder Folder;
};

// A drawing with its lines ended as in a file.
std::string WithLineEnds(std::string_view drawing, std::string_view lineEnd = "\r\n")
{
    std::string text;
    std::istringstream lines{std::string(drawing)};
    std::string line;
    while (std::getline(lines, line)) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start != std::string::npos) {
            text += line.substr(start);
            text += lineEnd;
        }
    }
    return text;
}

std::string Repeated(std::string_view piece, int times)
{
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += piece;
    }
    return text;
}

constexpr std::string_view Marked = R"(
    [5]  [3]  0    0    [7]  0    0    0    0
    [6]  12   0    0    0    0    0    0    0
    0    0    0    0    0    0    0    0    0
    0    0    0    0    0    0    0    0    0
    0    0    0    0    4    0    0    0    0
    0    0    0    0    0    0    0    0    0
    0    0    0    0    0    0    0    0    0
    0    0    0    0    0    0    0    0    0
    0    0    0    0    0    0    0    0    789
)";

void SetMarked()
{
    std::string drawing(Marked);
    std::ranges::replace(drawing, '0', '.');
    SetPencilmarks(drawing);
}

TEST_F(GameTextFile, IsFramedWithZerosForEmptyCells)
{
    SetMarked();
    EXPECT_EQ(Written(), WithLineEnds(R"(
        +-------------+-------------+-------------+
        | 5   3   0   | 0   7   0   | 0   0   0   |
        | 6   12  0   | 0   0   0   | 0   0   0   |
        | 0   0   0   | 0   0   0   | 0   0   0   |
        +-------------+-------------+-------------+
        | 0   0   0   | 0   0   0   | 0   0   0   |
        | 0   0   0   | 0   4   0   | 0   0   0   |
        | 0   0   0   | 0   0   0   | 0   0   0   |
        +-------------+-------------+-------------+
        | 0   0   0   | 0   0   0   | 0   0   0   |
        | 0   0   0   | 0   0   0   | 0   0   0   |
        | 0   0   0   | 0   0   0   | 0   0   789 |
        +-------------+-------------+-------------+
    )"));
}

TEST_F(GameTextFile, WidthCountsAllCandidatesAndCellsShowTheNumbersInView)
{
    SetMarked();
    NumberFilter = BitTable[5] | BitTable[9];
    const std::string text = Written();
    EXPECT_EQ(text.substr(45, 45), "| 5   0   0   | 0   0   0   | 0   0   0   |\r\n");
    EXPECT_EQ(text.substr(text.size() - 90, 45), "| 0   0   0   | 0   0   0   | 0   0   9   |\r\n");
}

TEST_F(GameTextFile, EmptyGridIsAFrameOfZeros)
{
    EXPECT_EQ(Written().substr(0, 54),
              "+-------+-------+-------+\r\n| 0 0 0 | 0 0 0 | 0 0 0 |\r\n");
}

TEST_F(GameTextFile, SingleDigitsComeBackAsGivensAndOthersAsPencilmarks)
{
    SetMarked();
    const std::string text = Written();
    Grid = {};
    ASSERT_TRUE(Open(text));
    EXPECT_EQ(WordAt({1, 1}) & LastingFields, BitTable[5] | GivenBit);
    EXPECT_EQ(WordAt({5, 5}) & LastingFields, BitTable[4] | GivenBit);
    EXPECT_EQ(WordAt({2, 2}) & LastingFields, BitTable[1] | BitTable[2]);
    EXPECT_EQ(WordAt({9, 9}) & LastingFields, BitTable[7] | BitTable[8] | BitTable[9]);
    EXPECT_EQ(WordAt({3, 1}) & LastingFields, 0U);
    EXPECT_EQ(GivenCount, 5);
}

TEST_F(GameTextFile, LinesOfDigitsWithoutBlanksReadByCharacters)
{
    for (const std::string_view lineEnd : {"\r\n", "\n", "\r", ""}) {
        ASSERT_TRUE(Open(WithLineEnds(EasySolution, lineEnd)));
        EXPECT_EQ(WordAt({1, 1}) & LastingFields, BitTable[5] | GivenBit);
        EXPECT_EQ(WordAt({9, 9}) & LastingFields, BitTable[9] | GivenBit);
        EXPECT_EQ(GivenCount, 81);
    }
    ASSERT_TRUE(Open(WithLineEnds(EasyGame, "\n")));
    EXPECT_EQ(GivenCount, 30);
}

TEST_F(GameTextFile, EightyDigitsAreNoGame)
{
    StartSavedGame(EasyGame);
    const GridTable before = Grid;
    EXPECT_FALSE(Open(std::string(80, '3')));
    EXPECT_EQ(Grid, before);
    EXPECT_TRUE(Open(std::string(81, '3')));
    EXPECT_FALSE(Open(Dots(80)));
    EXPECT_TRUE(Open(Dots(81)));
}

TEST_F(GameTextFile, FirstAttemptNeedsAllCellsToo)
{
    EXPECT_FALSE(Open(Repeated("12 ", 40))); // 40 runs, 80 digits
    EXPECT_TRUE(Open(Repeated("12 ", 41)));  // 41 runs, but 82 digits for the second attempt
    EXPECT_EQ(GivenCount, 81);
    EXPECT_TRUE(Open(Repeated("12 ", 81)));
    EXPECT_EQ(GivenCount, 0);
}

TEST_F(GameTextFile, SecondAttemptStartsOnAClearGrid)
{
    // The first attempt leaves the candidates 3 and 4 in the first cell.
    ASSERT_TRUE(Open("0" + Repeated("34", 40)));
    EXPECT_EQ(WordAt({1, 1}) & CandidateMask, 0U);
    EXPECT_EQ(WordAt({2, 1}) & CandidateMask, BitTable[3]);
}

TEST_F(GameTextFile, SurplusIsIgnored)
{
    ASSERT_TRUE(Open(Repeated("1 ", 81) + "99 9 any word"));
    EXPECT_EQ(WordAt({9, 9}) & CandidateMask, BitTable[1]);
    ASSERT_TRUE(Open(std::string(81, '2') + "99999"));
    EXPECT_EQ(WordAt({9, 9}) & CandidateMask, BitTable[2]);
}

TEST_F(GameTextFile, AnyEncodingAndSizeWillDo)
{
    ASSERT_TRUE(Open("\xEF\xBB\xBF" + WithLineEnds(EasyGame)));
    EXPECT_EQ(GivenCount, 30);
    std::string wide("\xFF\xFE", 2);
    for (const char mark : WithLineEnds(EasyGame)) {
        wide += mark;
        wide += '\0';
    }
    ASSERT_TRUE(Open(wide));
    EXPECT_EQ(GivenCount, 30);
    ASSERT_TRUE(Open(std::string(20000000, '#') + WithLineEnds(EasyGame)));
    EXPECT_EQ(GivenCount, 30);
    EXPECT_FALSE(Open(std::string(20000000, '\0')));
}

TEST_F(GameTextFile, KeepsHistoryTimeAndStartOfTheGameBefore)
{
    StartSavedGame(EasyGame);
    WordAt({3, 1}) = BitTable[4];
    PushUndoState();
    SolveSeconds = 99;
    StatsCounted = True;
    const auto history = History;
    ASSERT_TRUE(Open(Repeated("1 ", 81)));
    EXPECT_EQ(HistoryCount, 2);
    EXPECT_EQ(HistoryPosition, 1);
    EXPECT_EQ(SolveSeconds, 99);
    EXPECT_EQ(StatsCounted, True);
    for (const std::size_t slot : {0U, 1U, 2U, 101U}) {
        EXPECT_EQ(History[slot], history[slot]) << slot;
    }
    Seen.YesNoAnswers = {true};
    mnuRestartSameGame();
    EXPECT_EQ(CountCandidates(1, 1), 1);
    EXPECT_EQ(CountCandidates(3, 1), 9);
}

TEST_F(GameTextFile, FailureBringsTheGridBackWhole)
{
    for (std::size_t column = 0; column < 10; ++column) {
        for (std::size_t row = 0; row < 10; ++row) {
            Grid[column][row] = static_cast<CellWord>(0xF0A00000 + column * 16 + row);
        }
    }
    const GridTable before = Grid;
    EXPECT_FALSE(Open("no game in here, 1 2 3"));
    EXPECT_EQ(Grid, before);
    EXPECT_EQ(Seen.Calls, std::vector<std::string>{});
}

} // namespace
} // namespace kelvarine::testing
