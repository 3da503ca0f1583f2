#include "logic/technique.h"

#include "grid/names.h"

namespace kelvarine {

void MarkHouse(const House &house, CellWord bits)
{
    for (const Cell cell : house.Cells) {
        WordAt(cell) |= bits;
    }
}

void MarkDomain(Cell cell, CellWord bits)
{
    for (const std::uint8_t house : HousesOf(cell.Column, cell.Row)) {
        MarkHouse(Houses[house], bits);
    }
}

std::string_view HouseWord(HouseKind kind)
{
    switch (kind) {
    case HouseKind::Column:
        return "column";
    case HouseKind::Row:
        return "row";
    case HouseKind::Box:
        break;
    }
    return "box";
}

std::string HouseName(const House &house)
{
    const Cell first = house.Cells[0];
    switch (house.Kind) {
    case HouseKind::Column:
        return "column " + ColumnName(first.Column);
    case HouseKind::Row:
        return "row " + RowName(first.Row);
    case HouseKind::Box:
        break;
    }
    return "the " + BoxName(first.Column, first.Row) + " box";
}

std::string NameOf(Cell cell)
{
    return CellName(cell.Column, cell.Row);
}

std::string NamesOf(std::span<const Cell> cells)
{
    std::string names;
    for (const Cell cell : cells) {
        names += NameOf(cell) + " ";
    }
    return names;
}

void Tease(std::string_view line)
{
    HintText = line;
}

void LocateInHouse(std::string_view houseWord)
{
    HintText += MessageLineEnd;
    HintText += "It's in a ";
    HintText += houseWord;
    HintText += ".";
}

std::string JoinNumbers(CellWord numbers)
{
    std::string text;
    for (int left = CandidatesIn(numbers); left > 0; --left) {
        const int number = LowestCandidate(numbers);
        numbers &= ~BitOf(number);
        text += std::to_string(number);
        text += left > 2 ? "," : left == 2 ? " and " : "";
    }
    return text;
}

} // namespace kelvarine
