#include "files/text_format.h"

#include "grid/digits.h"
#include "grid/grid.h"
#include "grid/history.h"

#include <algorithm>

namespace kelvarine {

namespace {

constexpr std::string_view LineFeed = "\r\n";
constexpr std::string_view EmptyCell = ".";
constexpr std::string_view EmptyFileCell = "0";
constexpr int LastCell = 81;

// The digits of a cell that are in view, ascending.
std::string CellText(CellWord word)
{
    std::string digits;
    for (std::size_t number = 1; number <= 9; ++number) {
        if ((word & NumberFilter & BitTable[number]) != 0) {
            digits += static_cast<char>('0' + number);
        }
    }
    return digits;
}

// Most digits in one cell, at least 1, of those that count.
std::size_t WidestCell(CellWord counted)
{
    int most = 1;
    for (const Cell cell : Cells) {
        most = std::max(most, CandidatesIn(WordAt(cell) & counted));
    }
    return static_cast<std::size_t>(most);
}

// Whether a mark is the number of a cell; 0 is none.
bool IsNumber(char mark)
{
    return IsDigit(mark) && mark != '0';
}

bool IsCellMark(char mark)
{
    return IsDigit(mark) || mark == '.';
}

// Word of the cell in reading order, row after row; taken is 1..81.
CellWord &WordTaken(int taken)
{
    const auto place = static_cast<std::size_t>(taken - 1);
    return Grid[place % 9 + 1][place / 9 + 1];
}

// Nine framed lines of cells as wide as the widest.
std::string FramedText(std::size_t width, std::string_view emptyCell)
{
    std::string rule;
    for (int stack = 0; stack < 3; ++stack) {
        rule += "+-" + std::string(3 * (width + 1), '-');
    }
    rule += "+";
    rule += LineFeed;

    std::string text;
    for (std::size_t row = 1; row <= 9; ++row) {
        if (row % 3 == 1) {
            text += rule;
        }
        for (std::size_t column = 1; column <= 9; ++column) {
            std::string cell = CellText(Grid[column][row]);
            if (cell.empty()) {
                cell = emptyCell;
            }
            cell.resize(width + 1, ' ');
            text += column % 3 == 1 ? "| " : "";
            text += cell;
        }
        text += "|";
        text += LineFeed;
    }
    return text + rule;
}

} // namespace

std::string GridFormatText()
{
    return FramedText(WidestCell(NumberFilter), EmptyCell);
}

std::string TextFileText()
{
    return FramedText(WidestCell(CandidateMask), EmptyFileCell);
}

std::string SingleLineText()
{
    const bool parted = WidestCell(NumberFilter) > 1;
    std::string text;
    for (std::size_t row = 1; row <= 9; ++row) {
        for (std::size_t column = 1; column <= 9; ++column) {
            const std::string cell = CellText(Grid[column][row]);
            if (parted && !cell.empty() && !text.empty() && IsNumber(text.back())) {
                text += ' ';
            }
            text += cell.empty() ? EmptyCell : std::string_view(cell);
        }
    }
    return text.append(LineFeed);
}

int ReadByCharacters(std::string_view text)
{
    int taken = 0;
    for (const char mark : text) {
        if (taken == LastCell) {
            break;
        }
        if (IsCellMark(mark)) {
            ++taken;
            if (IsNumber(mark)) {
                WordTaken(taken) = BitOf(mark - '0') | GivenBit;
            }
        }
    }
    return taken;
}

int ReadByDigitRuns(std::string_view text)
{
    int taken = 0;
    char previous = ' ';
    for (const char mark : text) {
        const bool startsCell = IsCellMark(mark) && !(IsNumber(mark) && IsNumber(previous));
        if (startsCell) {
            if (taken == LastCell) {
                break;
            }
            ++taken;
        }
        if (IsNumber(mark)) {
            CellWord &word = WordTaken(taken);
            word = (word == 0 ? GivenBit : word & ~GivenBit) | BitOf(mark - '0');
        }
        previous = mark;
    }
    return taken;
}

int ReadPosition(std::string_view text)
{
    CopyCells(Grid, History[SafeCopySlot]);
    Grid = {};
    const bool hasBlank = text.find(' ') != std::string_view::npos;
    if (!hasBlank || std::ranges::count_if(text, IsCellMark) == LastCell) {
        return ReadByCharacters(text);
    }
    return ReadByDigitRuns(text);
}

} // namespace kelvarine
