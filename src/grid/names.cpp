#include "grid/names.h"

#include "grid/houses.h"

#include <array>
#include <cassert>
#include <string_view>

namespace kelvarine {

std::int32_t ColumnFormat;
std::int32_t RowFormat;
std::int32_t CoordSeparator;
std::int32_t CoordBrackets;
Flag CoordRowFirst;

namespace {

// Text number choice of a list, or nothing for a choice that the list does not hold.
template <std::size_t Count>
std::string Chosen(const std::array<std::string_view, Count> &list, std::int32_t choice)
{
    const auto index = static_cast<std::size_t>(choice);
    return index < Count ? std::string(list[index]) : std::string();
}

template <std::size_t Count>
std::string LineName(int line, const std::array<LineForm, Count> &forms, std::int32_t format)
{
    const auto index = static_cast<std::size_t>(format);
    if (index >= Count) {
        return {};
    }
    std::string name(forms[index].Prefix);
    return name += forms[index].Signs[static_cast<std::size_t>(line - 1)];
}

} // namespace

void SetNamingDefaults()
{
    ColumnFormat = 1;
    RowFormat = 0;
    CoordSeparator = 0;
    CoordBrackets = 3;
    CoordRowFirst = False;
}

std::string ColumnName(int column)
{
    assert(IsLine(column));
    return LineName(column, ColumnForms, ColumnFormat);
}

std::string RowName(int row)
{
    assert(IsLine(row));
    return LineName(row, RowForms, RowFormat);
}

std::string CellName(int column, int row)
{
    assert(IsLine(column) && IsLine(row));
    const bool rowFirst = CoordRowFirst != False;
    const std::string first = rowFirst ? RowName(row) : ColumnName(column);
    const std::string second = rowFirst ? ColumnName(column) : RowName(row);
    const auto brackets = static_cast<std::size_t>(CoordBrackets);
    const BracketForm form =
        brackets < BracketForms.size() ? BracketForms[brackets] : BracketForm{};
    std::string name(form.Opening);
    name += first;
    name += Chosen(SeparatorForms, CoordSeparator);
    name += second;
    return name += form.Closing;
}

std::string BoxName(int column, int row)
{
    assert(IsLine(column) && IsLine(row));
    constexpr std::array<std::string_view, 3> verticals{"upper", "center", "lower"};
    constexpr std::array<std::string_view, 3> horizontals{"-left", "-center", "-right"};

    const int band = (row - 1) / 3;
    const int stack = (column - 1) / 3;
    if (band == 1 && stack == 1) {
        return "center";
    }
    return Chosen(verticals, band) + Chosen(horizontals, stack);
}

} // namespace kelvarine
