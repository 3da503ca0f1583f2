#include "support/technique_calls.h"

#include "grid/names.h"
#include "support/positions.h"

#include <ostream>
#include <sstream>

namespace kelvarine::testing {

namespace {

void Append(std::string &list, const std::string &item)
{
    list += (list.empty() ? "" : " ") + item;
}

void DescribeChanges(const GridTable &before, Left &left)
{
    constexpr CellWord told =
        CandidateMask | AlertBit | SelectedBit | HintCellBit | HintDomainBit | ScratchMarks;
    for (const Cell cell : Cells) {
        const CellWord was = before[cell.Column][cell.Row];
        const CellWord now = WordAt(cell);
        const std::string name = PlainName(cell);
        if (((was ^ now) & CandidateMask) != 0) {
            Append(left.Changed, name + " " + DigitsOf(was) + ">" + DigitsOf(now));
        }
        if (((was ^ now) & ~told) != 0) {
            Append(left.Other, name);
        }
    }
}

void DescribeList(Left &left)
{
    for (std::size_t k = 1; k < ChainColumns.size(); ++k) {
        if (ChainColumns[k] != 0 || ChainRows[k] != 0) {
            Append(left.List, PlainName(ChainColumns[k], ChainRows[k]));
        }
    }
    if (ChainColumns[0] != 0 || ChainRows[0] != 0) {
        Append(left.Other, "element 0");
    }
}

bool IsInHouse(Cell cell, std::string_view house)
{
    if (house.size() == 2) {
        const Cell other = CellNamed(house);
        return BoxIndex(cell.Column, cell.Row) == BoxIndex(other.Column, other.Row);
    }
    return PlainName(cell).find(house[0]) != std::string::npos;
}

} // namespace

void PrintTo(const Left &left, std::ostream *out)
{
    const auto line = [&](std::string_view name, std::string text) {
        for (char &mark : text) {
            mark = mark == '\r' ? '|' : mark;
        }
        if (!text.empty()) {
            *out << "\n  " << name << ": \"" << text << '"';
        }
    };
    *out << (left.Found ? "found" : "not found");
    line("Text", left.Text);
    line("Title", left.Title);
    line("Changed", left.Changed);
    line("Alerts", left.Alerts);
    line("Selected", left.Selected);
    line("HintCells", left.HintCells);
    line("Domain", left.Domain);
    line("Marks", left.Marks);
    line("List", left.List);
    line("Other", left.Other);
}

void SetPosition(std::string_view drawing)
{
    std::string text;
    for (const char mark : drawing) {
        text += mark == '*' ? "123456789" : std::string(1, mark);
    }
    SetPencilmarks(text);
}

Left Call(const Technique &technique, std::int32_t mode, std::string_view drawing,
          std::string_view selected)
{
    SetPosition(drawing);
    AddBits(selected, SelectedBit);
    HintText.clear();
    HintTitle.clear();
    ChainColumns = {};
    ChainRows = {};
    const GridTable before = Grid;
    Flag found = False;
    technique(mode, found);

    Left left;
    left.Found = found != False;
    left.Text = HintText;
    left.Title = HintTitle;
    left.Alerts = CellsWith(AlertBit);
    left.Selected = CellsWith(SelectedBit);
    left.HintCells = CellsWith(HintCellBit);
    left.Domain = CellsWith(HintDomainBit);
    left.Marks = CellsWith(ScratchMarks);
    DescribeChanges(before, left);
    DescribeList(left);
    return left;
}

void UseOtherNames()
{
    ColumnFormat = 0;
    RowFormat = 3;
    CoordSeparator = 1;
    CoordBrackets = 1;
    CoordRowFirst = True;
}

std::string CellsOf(std::string_view houses)
{
    std::string text;
    for (const Cell cell : Cells) {
        std::istringstream names{std::string(houses)};
        bool inside = false;
        for (std::string house; names >> house;) {
            inside = inside || IsInHouse(cell, house);
        }
        if (inside) {
            Append(text, PlainName(cell));
        }
    }
    return text;
}

void AddBits(std::string_view cells, CellWord bits)
{
    std::istringstream names{std::string(cells)};
    for (std::string name; names >> name;) {
        WordAt(CellNamed(name)) |= bits;
    }
}

} // namespace kelvarine::testing
