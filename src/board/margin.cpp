#include "board/margin.h"

#include "board/geometry.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/names.h"

#include <array>
#include <cassert>

namespace kelvarine {

Colour CoordinateTextColour;

namespace {

constexpr Colour LeastBrightness = 351; // sum of red, green and blue that calls for black text

std::string_view ratingWord; // shown latest

// True for a form that puts a letter in front of the number.
template <std::size_t Count>
bool HasPrefix(const std::array<LineForm, Count> &forms, std::int32_t format)
{
    const auto index = static_cast<std::size_t>(format);
    return index < Count && !forms[index].Prefix.empty();
}

} // namespace

void SetMarginDefaults()
{
    PickMarginTextColour();
    ratingWord = {};
}

void PickMarginTextColour()
{
    const Colour margin = ColourTable[MarginColour];
    const Colour brightness = (margin >> 16 & 0xFF) + (margin >> 8 & 0xFF) + (margin & 0xFF);
    CoordinateTextColour = StandardColours[brightness < LeastBrightness ? 15 : 0];
}

std::string ColumnLabel(int column)
{
    assert(IsLine(column));
    return HasPrefix(ColumnForms, ColumnFormat) ? std::to_string(column) : ColumnName(column);
}

std::string RowLabel(int row)
{
    assert(IsLine(row));
    return HasPrefix(RowForms, RowFormat) ? std::to_string(row) : RowName(row);
}

std::string_view MarginRatingWord()
{
    const std::string_view word = WordsOfRating(GameRating).Capital;
    if (!word.empty()) {
        ratingWord = GameRating == NotRated ? "No rating" : word;
    }
    return ratingWord;
}

std::string GivenCountText()
{
    return "# given cells: " + std::to_string(GivenCount);
}

bool GivenCountFits(int ratingWidth, int countWidth)
{
    return ratingWidth + countWidth <= BoardPlace.Width;
}

} // namespace kelvarine
