#include "support/positions.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace kelvarine::testing {

namespace {

constexpr std::string_view Letters = "ABCDEFGHJ";

CellWord CandidatesOf(std::string_view digits)
{
    CellWord word = 0;
    for (const char digit : digits) {
        if (digit >= '1' && digit <= '9') {
            word |= BitTable[static_cast<std::size_t>(digit - '0')];
        }
    }
    return word;
}

} // namespace

void SetGivens(std::string_view drawing)
{
    Grid = {};
    std::size_t place = 0;
    for (const char mark : drawing) {
        const bool digit = mark >= '1' && mark <= '9';
        if ((!digit && mark != '.') || place >= 81) {
            continue;
        }
        if (digit) {
            Grid[place % 9 + 1][place / 9 + 1] = CandidatesOf({&mark, 1}) | GivenBit;
        }
        ++place;
    }
}

void SetGame(std::string_view drawing)
{
    SetGivens(drawing);
    FillPencilmarks();
}

void SetPencilmarks(std::string_view drawing)
{
    Grid = {};
    std::istringstream runs{std::string(drawing)};
    std::string run;
    for (std::size_t place = 0; place < 81 && runs >> run; ++place) {
        const CellWord given = run.front() == '[' ? GivenBit : 0;
        Grid[place % 9 + 1][place / 9 + 1] = CandidatesOf(run) | given;
    }
}

std::string PencilmarksOf(const GridTable &grid)
{
    std::string text;
    for (std::size_t row = 1; row <= 9; ++row) {
        for (std::size_t column = 1; column <= 9; ++column) {
            const CellWord word = grid[column][row];
            const std::string digits = DigitsOf(word);
            text += (word & GivenBit) != 0 ? "[" + digits + "]" : digits;
            text += column == 9 ? '\n' : ' ';
        }
    }
    return text;
}

std::string NumbersOf(const GridTable &grid)
{
    std::string text;
    for (std::size_t row = 1; row <= 9; ++row) {
        for (std::size_t column = 1; column <= 9; ++column) {
            const CellWord word = grid[column][row];
            text += CandidatesIn(word) == 1 ? DigitsOf(word) : ".";
        }
    }
    return text;
}

std::string DigitsOf(CellWord word)
{
    std::string digits;
    for (int number = 1; number <= 9; ++number) {
        if ((word & BitTable[static_cast<std::size_t>(number)]) != 0) {
            digits += std::to_string(number);
        }
    }
    return digits.empty() ? "." : digits;
}

std::string PlainName(std::int32_t column, std::int32_t row)
{
    return Letters[static_cast<std::size_t>(column - 1)] + std::to_string(row);
}

std::string PlainName(Cell cell)
{
    return PlainName(cell.Column, cell.Row);
}

Cell CellNamed(std::string_view name)
{
    return MakeCell(static_cast<int>(Letters.find(name[0])) + 1, name[1] - '0');
}

std::string CellsWith(CellWord bits)
{
    std::string text;
    for (const Cell cell : Cells) {
        if ((WordAt(cell) & bits) != 0) {
            text += text.empty() ? "" : " ";
            text += PlainName(cell);
        }
    }
    return text;
}

} // namespace kelvarine::testing
