#include "commands/text_commands.h"

#include "commands/save_question.h"
#include "files/text_case.h"
#include "files/text_format.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/board.h"
#include "outside/clipboard.h"
#include "outside/messages.h"
#include "outside/window.h"

#include <string>
#include <string_view>

namespace kelvarine {

namespace {

constexpr int AllCells = 81;

// What is said when a text is too short.
struct ShortTextWords {
    std::string_view NoCell;
    std::string_view OneCell;
    std::string_view BeforeCount;
};

constexpr ShortTextWords ClipboardWords{
    "The clipboard doesn't have enough data to complete any cells.",
    "The clipboard only has enough data to complete the first cell.",
    "The clipboard only has enough data to complete the first "};

constexpr ShortTextWords TextStringWords{"There's not enough data to complete any cells.",
                                         "There's only enough data to complete the first cell.",
                                         "There's only enough data to complete the first "};

// Whether to go on with the cells that a short text has filled.
bool AcceptShortText(int cells, const ShortTextWords &words)
{
    if (cells == 0) {
        ShowMessage(words.NoCell);
        return false;
    }
    std::string question(words.OneCell);
    if (cells > 1) {
        question = std::string(words.BeforeCount) + std::to_string(cells) + " cells.";
    }
    return AskYesNo(question + "\rDo you want to continue anyway?");
}

void StartFromText(std::string_view text, const ShortTextWords &words)
{
    const int cells = ReadPosition(text);
    if (cells < AllCells) {
        // The window may be closed over the question, and then it is the game in hand that is
        // saved.
        const GridTable read = Grid;
        CopyCells(History[SafeCopySlot], Grid);
        if (!AcceptShortText(cells, words)) {
            return;
        }
        Grid = read;
    }
    StartGame(NewGame);
    DrawBoard();
    RefreshWindow();
}

} // namespace

void mnuCopyGridFormat()
{
    SetClipboardText(GridFormatText());
}

void mnuCopySingleLineFormat()
{
    SetClipboardText(SingleLineText());
}

void mnuGameClipboard()
{
    QuerySaveGame();
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    const std::string text = ClipboardText();
    StartFromText(WithoutOuterBlanks(text), ClipboardWords);
}

void mnuGameTextString()
{
    QuerySaveGame();
    if (LastAnswer == AnsweredCancel) {
        return;
    }
    const std::string answer =
        AskText("Enter desired text:\r\rUse . or 0 to designate empty cells.");
    const std::string_view text = WithoutOuterBlanks(answer);
    if (!text.empty()) {
        StartFromText(text, TextStringWords);
    }
}

} // namespace kelvarine
