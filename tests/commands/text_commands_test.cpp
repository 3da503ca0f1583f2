#include "commands/text_commands.h"
#include "files/text_format.h"
#include "game/lifecycle.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "support/heap_use.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <random>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view Prompt =
    "prompt: Enter desired text:\r\rUse . or 0 to designate empty cells.";

class TextCommands : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
        Grid[3][1] = BitTable[4];
        PushUndoState();
        GameModified = False;
        GameFilePath = "mine.sdk";
        GameNumber = 77;
    }
};

void OpenClipboard(std::string text)
{
    Seen.Clipboard = std::move(text);
    mnuGameClipboard();
}

void OpenTyped(std::string text)
{
    Seen.TextAnswers = {std::move(text)};
    mnuGameTextString();
}

// The state as it is now, apart from what the record holds.
std::string StateApartFromCalls()
{
    const OutsideRecord record = Seen;
    ForgetRecord();
    Seen.Clipboard.clear();
    std::string state = ProgramState();
    Seen = record;
    return state;
}

// ---- Copying -------------------------------------------------------------------------------

TEST_F(TextCommands, CopiesReplaceTheClipboard)
{
    Seen.Clipboard = "old";
    mnuCopyGridFormat();
    EXPECT_EQ(Seen.Clipboard, GridFormatText());
    mnuCopySingleLineFormat();
    EXPECT_EQ(Seen.Clipboard, SingleLineText());
    EXPECT_EQ(Seen.Calls, Texts{});
}

// ---- Whole texts ---------------------------------------------------------------------------

TEST_F(TextCommands, ClipboardTextBecomesANewGame)
{
    OpenClipboard("1" + Dots(80));
    EXPECT_EQ(Acts(), (Texts{"stop sound: ", "board: ", "refresh: "}));
    EXPECT_EQ(Grid[1][1] & LastingFields, BitTable[1] | GivenBit);
    EXPECT_EQ(CellsWith(CandidateMask), "A1");
    EXPECT_EQ(GivenCount, 1);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(GameFilePath, "");
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(GameNumber, 77) << "it keeps its value";
    EXPECT_TRUE(SameCells(History[StartSlot], Grid, LastingFields));
}

TEST_F(TextCommands, OuterBlanksDoNotCount)
{
    OpenClipboard("   12" + Dots(79) + "  ");
    EXPECT_EQ(CellsWith(GivenBit), "A1 B1") << "read by characters, as no blank is left";
    EXPECT_EQ(Seen.Questions, Texts{});
    OpenTyped("   12" + Dots(79) + "  ");
    EXPECT_EQ(CellsWith(GivenBit), "A1 B1");
}

TEST_F(TextCommands, OuterLineEndsAreNoBlanks)
{
    OpenClipboard("\r\n 12" + Dots(79) + "\r\n");
    EXPECT_EQ(CellsWith(GivenBit), "A1 B1") << "exactly 81 marks";
    OpenClipboard("\r\n 12" + Dots(80));
    EXPECT_EQ(CellsWith(GivenBit), "");
    EXPECT_EQ(Grid[1][1] & LastingFields, BitTable[1] | BitTable[2]);
    OpenClipboard("12" + Dots(80) + " \r\n");
    EXPECT_EQ(Grid[1][1] & LastingFields, BitTable[1] | BitTable[2]) << "the blank counts";
}

TEST_F(TextCommands, TypedTextBecomesANewGame)
{
    OpenTyped("1" + Dots(80));
    EXPECT_EQ(Acts(), (Texts{std::string(Prompt), "stop sound: ", "board: ", "refresh: "}));
    EXPECT_EQ(CellsWith(GivenBit), "A1");
}

TEST_F(TextCommands, Mark82IsIgnoredWithoutAQuestion)
{
    OpenClipboard(Dots(80) + "45");
    EXPECT_EQ(Seen.Questions, Texts{});
    EXPECT_EQ(Grid[9][9] & LastingFields, BitTable[4] | GivenBit);
}

TEST_F(TextCommands, RepeatedNumbersAreRatedAndNotRefused)
{
    OpenClipboard("55" + Dots(79));
    EXPECT_EQ(GameRating, 7);
    EXPECT_EQ(Seen.Questions, Texts{});
}

TEST_F(TextCommands, CopiesOfPencilmarksComeBackAsPencilmarks)
{
    const GridTable before = Grid;
    for (const auto copy : {mnuCopyGridFormat, mnuCopySingleLineFormat}) {
        Grid = before;
        copy();
        mnuGameClipboard();
        EXPECT_TRUE(SameCells(Grid, before, CandidateMask));
        EXPECT_EQ(GivenCount, 31) << "the placed number is a given now";
    }
    EXPECT_EQ(Seen.Messages, Texts{});
}

// ---- Short texts ---------------------------------------------------------------------------

TEST_F(TextCommands, EmptyClipboardIsToldAndChangesNothing)
{
    for (const char *text : {"", "   ", "no cells here"}) {
        ForgetRecord();
        const std::string before = StateApartFromCalls();
        OpenClipboard(text);
        EXPECT_EQ(Seen.Calls, Texts{"message: The clipboard doesn't have enough data to complete "
                                    "any cells."});
        EXPECT_EQ(Seen.Titles, Texts{"Kelvarine"});
        EXPECT_EQ(StateApartFromCalls(), before);
    }
}

TEST_F(TextCommands, TypedTextWithoutCellsIsTold)
{
    const std::string before = StateApartFromCalls();
    OpenTyped("none");
    EXPECT_EQ(Seen.Calls, (Texts{std::string(Prompt),
                                 "message: There's not enough data to complete any cells."}));
    EXPECT_EQ(StateApartFromCalls(), before);
}

TEST_F(TextCommands, EmptyAnswerEndsTheCommandSilently)
{
    const std::string before = StateApartFromCalls();
    for (const char *text : {"", "  "}) {
        ForgetRecord();
        OpenTyped(text);
        EXPECT_EQ(Seen.Calls, Texts{std::string(Prompt)});
        EXPECT_EQ(StateApartFromCalls(), before);
    }
}

TEST_F(TextCommands, ShortClipboardIsAskedAbout)
{
    OpenClipboard("5");
    OpenClipboard("..");
    OpenClipboard(std::string(80, '0'));
    EXPECT_EQ(Seen.Calls,
              (Texts{"question: The clipboard only has enough data to complete the first cell.\r"
                     "Do you want to continue anyway?",
                     "question: The clipboard only has enough data to complete the first 2 cells."
                     "\rDo you want to continue anyway?",
                     "question: The clipboard only has enough data to complete the first 80 "
                     "cells.\rDo you want to continue anyway?"}));
    EXPECT_EQ(Seen.Titles, (Texts{"Kelvarine", "Kelvarine", "Kelvarine"}));
}

TEST_F(TextCommands, ShortTypedTextIsAskedAbout)
{
    OpenTyped("5");
    OpenTyped("12 3");
    EXPECT_EQ(Seen.Calls,
              (Texts{std::string(Prompt),
                     "question: There's only enough data to complete the first cell.\r"
                     "Do you want to continue anyway?",
                     std::string(Prompt),
                     "question: There's only enough data to complete the first 2 cells.\r"
                     "Do you want to continue anyway?"}));
}

TEST_F(TextCommands, NoKeepsTheGameInHand)
{
    const std::string before = StateApartFromCalls();
    const GridTable grid = Grid;
    OpenClipboard(std::string(80, '7'));
    OpenTyped("1 2 3");
    EXPECT_EQ(StateApartFromCalls(), before);
    EXPECT_TRUE(SameCells(Grid, grid));
    EXPECT_EQ(Seen.BoardPaints, 0);
    EXPECT_EQ(GameFilePath, "mine.sdk");
}

TEST_F(TextCommands, GameInHandStandsWhileAShortTextIsAskedAbout)
{
    const std::string before = StateApartFromCalls();
    const auto expectGameInHand = [&] {
        EXPECT_EQ(StateApartFromCalls(), before) << "a save over the question is one of this game";
    };
    Seen.OnBox = expectGameInHand;
    OpenClipboard(std::string(80, '7'));
    Seen.OnBox = expectGameInHand;
    OpenClipboard("no cells");
    Seen.OnBox = expectGameInHand;
    Seen.YesNoAnswers = {true};
    OpenClipboard("1 2 3");
    EXPECT_EQ(GivenCount, 3);
}

TEST_F(TextCommands, YesStartsTheGameWithTheRestEmpty)
{
    Seen.YesNoAnswers = {true};
    OpenClipboard("12345678" + Dots(72));
    EXPECT_EQ(Grid[9][9], 0U);
    EXPECT_EQ(GivenCount, 8);
    EXPECT_EQ(HistoryCount, 1);
    EXPECT_EQ(Acts(), (Texts{"question: The clipboard only has enough data to complete the first "
                             "80 cells.\rDo you want to continue anyway?",
                             "stop sound: ", "board: ", "refresh: "}));
}

// ---- The save question ---------------------------------------------------------------------

TEST_F(TextCommands, CancelInTheSaveQuestionStopsAtOnce)
{
    GameModified = True;
    LastAnswer = 2;
    const std::string before = StateApartFromCalls();
    Seen.SaveAnswers = {Answer::Cancel, Answer::Cancel};
    OpenClipboard("1" + Dots(80));
    OpenTyped("1" + Dots(80));
    EXPECT_EQ(
        Seen.Calls,
        (Texts{"pending events: ", "save question: Would you like to save this game first?",
               "pending events: ", "save question: Would you like to save this game first?"}));
    EXPECT_EQ(StateApartFromCalls(), before);
}

TEST_F(TextCommands, SaveQuestionComesBeforeTheTextIsAskedFor)
{
    GameModified = True;
    Seen.SaveAnswers = {Answer::No};
    OpenTyped("");
    EXPECT_EQ(Seen.Calls,
              (Texts{"pending events: ", "save question: Would you like to save this game first?",
                     std::string(Prompt)}));
}

// ---- Anything ------------------------------------------------------------------------------

TEST_F(TextCommands, LongTextIsCopiedOnce)
{
    constexpr std::int64_t size = 100'000;
    constexpr std::int64_t board = 10'000; // what a game in hand and its record take
    for (const char *text : {"5 ", "5"}) {
        Seen.Clipboard = text + std::string(size, 'x');
        const std::int64_t before = BytesAskedFor;
        mnuGameClipboard();
        EXPECT_LT(BytesAskedFor - before, size + board);
        EXPECT_GT(BytesAskedFor - before, size) << "the copy itself";
    }
}

TEST_F(TextCommands, TenMegabytesAreRead)
{
    constexpr std::size_t size = 10'000'000;
    std::mt19937 random(5);
    std::string bytes(size, '\0');
    for (char &mark : bytes) {
        mark = static_cast<char>(random());
    }
    OpenClipboard(bytes);
    OpenClipboard(std::string(size, '\0'));
    OpenClipboard(std::string(size, ' ') + "x");
    OpenClipboard("5 " + std::string(size, 'x'));
    EXPECT_EQ(HistoryCount, 1) << "the random bytes hold 81 marks";
    EXPECT_EQ(Seen.Messages, (Texts{"The clipboard doesn't have enough data to complete any cells.",
                                    "The clipboard doesn't have enough data to complete any "
                                    "cells."}));
    EXPECT_EQ(Seen.Questions.back(),
              "The clipboard only has enough data to complete the first cell.\rDo you want to "
              "continue anyway?");
}

TEST_F(TextCommands, AbsurdTextsLoseNothingOnNo)
{
    const GridTable grid = Grid;
    const std::string before = StateApartFromCalls();
    const std::array<std::string, 7> texts{
        std::string(81, 'A'),
        std::string("\0\0\0\0", 4),
        "\xEF\xBB\xBF\xE2\x91\xA0\xE2\x91\xA1",
        "+-------+-------+-------+\r\n| 5 3 . | . 7 . | . . . |\r\n",
        std::string("12\0"
                    "34",
                    5),
        "\xFF\xFE\x80\x81 9",
        "\xD9\xA1\xD9\xA2 \xF0\x9D\x9F\x8F",
    };
    for (const std::string &text : texts) {
        OpenClipboard(text);
        OpenTyped(text);
        EXPECT_TRUE(SameCells(Grid, grid));
        EXPECT_EQ(StateApartFromCalls(), before);
    }
}

TEST_F(TextCommands, RandomTextsGiveAGameAQuestionOrANotice)
{
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        std::string text(random() % 160, '.');
        for (char &mark : text) {
            // Few digits, so that a position is soon found impossible or has many solutions.
            mark = random() % 8 == 0 ? static_cast<char>(random() % 256) : mark;
        }
        GameModified = False;
        ForgetRecord();
        const GridTable before = Grid;
        OpenClipboard(text);
        ASSERT_EQ(Seen.Messages.size() + Seen.Questions.size() +
                      static_cast<std::size_t>(Seen.BoardPaints),
                  1U);
        if (Seen.BoardPaints == 0) {
            ASSERT_TRUE(SameCells(Grid, before));
        } else {
            ASSERT_EQ(HistoryCount, 1);
        }
    }
}

} // namespace
} // namespace kelvarine::testing
