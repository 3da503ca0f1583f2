#include "configure/naming_settings.h"

#include "grid/names.h"
#include "outside/window.h"

namespace kelvarine {

const std::array<std::string_view, 5> ColumnCaptions{" 1-9 ", " A-J ", " a-j ", " C1-C9 ",
                                                     " c1-c9 "};
const std::array<std::string_view, 5> RowCaptions{" 1-9 ", " A-J ", " a-j ", " R1-R9 ", " r1-r9 "};
const std::array<std::string_view, 4> SeparatorCaptions{" None ", " , ", " - ", " / "};
const std::array<std::string_view, 5> BracketCaptions{" None ", " ( ) ", " { } ", " [ ] ", " < > "};

void SetColumnFormat(std::int32_t format)
{
    ColumnFormat = format;
    RefreshWindow();
}

void SetRowFormat(std::int32_t format)
{
    RowFormat = format;
    RefreshWindow();
}

void SetCoordSeparator(std::int32_t separator)
{
    CoordSeparator = separator;
}

void SetCoordBrackets(std::int32_t brackets)
{
    CoordBrackets = brackets;
}

void SwitchCoordOrder()
{
    CoordRowFirst = CoordRowFirst == False ? True : False;
}

} // namespace kelvarine
