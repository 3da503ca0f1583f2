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

// The letter I is left out on purpose: beside a digit it reads as a one.
constexpr std::string_view CapitalLetters = "ABCDEFGHJ";
constexpr std::string_view SmallLetters = "abcdefghj";

// Text number choice of a list, or nothing for a choice that the list does not hold.
template <std::size_t Count>
std::string Chosen(const std::array<std::string_view, Count> &list, std::int32_t choice)
{
    const auto index = static_cast<std::size_t>(choice);
    return index < Count ? std::string(list[index]) : std::string();
}

std::string LineName(int line, std::int32_t format, std::string_view capital,
                     std::string_view small)
{
    const auto place = static_cast<std::size_t>(line - 1);
    switch (format) {
    case 0:
        return std::to_string(line);
    case 1:
        return std::string(CapitalLetters.substr(place, 1));
    case 2:
        return std::string(SmallLetters.substr(place, 1));
    case 3:
        return std::string(capital) + std::to_string(line);
    case 4:
        return std::string(small) + std::to_string(line);
    default:
        return {};
    }
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
    return LineName(column, ColumnFormat, "C", "c");
}

std::string RowName(int row)
{
    assert(IsLine(row));
    return LineName(row, RowFormat, "R", "r");
}

std::string CellName(int column, int row)
{
    assert(IsLine(column) && IsLine(row));
    constexpr std::array<std::string_view, 5> openings{"", "(", "{", "[", "<"};
    constexpr std::array<std::string_view, 5> closings{"", ")", "}", "]", ">"};
    constexpr std::array<std::string_view, 4> separators{"", ",", "-", "/"};

    const bool rowFirst = CoordRowFirst != False;
    const std::string first = rowFirst ? RowName(row) : ColumnName(column);
    const std::string second = rowFirst ? ColumnName(column) : RowName(row);
    return Chosen(openings, CoordBrackets) + first + Chosen(separators, CoordSeparator) + second +
           Chosen(closings, CoordBrackets);
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
