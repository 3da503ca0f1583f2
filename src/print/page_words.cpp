#include "print/page_words.h"

#include "print/page_layout.h"
#include "print/print_settings.h"

namespace kelvarine {

namespace {

std::string Counted(int count, std::string_view thing)
{
    return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

// "5.0 by 7.25 inches"
std::string SizeInWords(double width, double height, std::string_view sign)
{
    return MeasureText(width, sign) + " by " + MeasureText(height, sign) + " inches";
}

std::string GameInWords(std::string_view sign)
{
    if (!HasSize()) {
        return "nothing, because the game has no size";
    }
    const PagePlace place = CurrentGamePlace(1, 1);
    return "the game on the board, " + SizeInWords(place.Width, place.Height, sign) + ", " +
           MeasureText(place.Left, sign) + " from the left and " + MeasureText(place.Top, sign) +
           " from the top of " + SizeInWords(PrintableWidth, PrintableHeight, sign);
}

std::string BatchInWords()
{
    if (PrintPages <= 0) {
        return "no new games";
    }
    const auto index = static_cast<std::size_t>(PrintGamesPerPage);
    const PageLayout layout = LayoutOfGames(index, PrintableWidth, PrintableHeight);
    std::string words = Counted(GamesInBatch(), "new game") + " on " + Counted(PrintPages, "page") +
                        ", " + Counted(layout.Columns, "column") + " and " +
                        Counted(layout.Rows, "row") + " to a page";
    if (PrintIncludeSolutions != False) {
        const int pages = (GamesInBatch() + SolutionsPerPage - 1) / SolutionsPerPage;
        words += ", then their solutions on " + Counted(pages, "page");
    }
    return words;
}

} // namespace

std::string PageInWords(std::string_view sign)
{
    return PrintMode == PrintNewGames ? BatchInWords() : GameInWords(sign);
}

} // namespace kelvarine
