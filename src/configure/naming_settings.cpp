#include "configure/naming_settings.h"

#include "outside/window.h"

namespace kelvarine {

const std::array<std::string_view, ColumnForms.size()> ColumnCaptions{" 1-9 ", " A-J ", " a-j ",
                                                                      " C1-C9 ", " c1-c9 "};
const std::array<std::string_view, RowForms.size()> RowCaptions{" 1-9 ", " A-J ", " a-j ",
                                                                " R1-R9 ", " r1-r9 "};
const std::array<std::string_view, SeparatorForms.size()> SeparatorCaptions{" None ", " , ", " - ",
                                                                            " / "};
const std::array<std::string_view, BracketForms.size()> BracketCaptions{" None ", " ( ) ", " { } ",
                                                                        " [ ] ", " < > "};

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
    CoordRowFirst = FlagOf(CoordRowFirst == False);
}

} // namespace kelvarine
