#include "board/geometry.h"
#include "print/page_layout.h"
#include "print/page_words.h"
#include "print/print_settings.h"
#include "support/outside_double.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// A page of 7.5 by 10 inches and a board as wide as it is high.
class PageWords : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        BoardPlace = {0, 0, 500, 500};
        TakePrintableArea();
    }
};

TEST_F(PageWords, GameIsToldWithItsSizeAndPlace)
{
    EXPECT_EQ(PageInWords("."), "the game on the board, 5.0 by 5.0 inches, 1.25 from the left and "
                                "2.5 from the top of 7.5 by 10.0 inches");
    PrintCentre = False;
    PrintAspect = False;
    PrintLeft = 0.5;
    PrintTop = 6;
    SetPrintWidth(3.25);
    ArrangePicture();
    EXPECT_EQ(PageInWords(","), "the game on the board, 3,25 by 5,0 inches, 0,5 from the left and "
                                "6,0 from the top of 7,5 by 10,0 inches");
}

TEST_F(PageWords, GameWithoutSizeIsNothing)
{
    PrintAspect = False;
    SetPrintHeight(0);
    EXPECT_EQ(PageInWords("."), "nothing, because the game has no size");
}

TEST_F(PageWords, BatchIsToldWithItsLayoutAndItsSolutions)
{
    PrintMode = PrintNewGames;
    EXPECT_EQ(PageInWords("."), "1 new game on 1 page, 1 column and 1 row to a page, then their "
                                "solutions on 1 page");
    PrintGamesPerPage = 6;
    PrintPages = 3;
    EXPECT_EQ(PageInWords("."), "36 new games on 3 pages, 3 columns and 4 rows to a page, then "
                                "their solutions on 2 pages");
    PrintPages = 2;
    EXPECT_EQ(PageInWords("."), "24 new games on 2 pages, 3 columns and 4 rows to a page, then "
                                "their solutions on 1 page");
    PrintIncludeSolutions = False;
    PrintGamesPerPage = 3;
    EXPECT_EQ(PageInWords("."), "8 new games on 2 pages, 2 columns and 2 rows to a page");
}

TEST_F(PageWords, BatchOfNoPagesIsNoGames)
{
    PrintMode = PrintNewGames;
    PrintPages = 0;
    EXPECT_EQ(PageInWords("."), "no new games");
}

} // namespace
} // namespace kelvarine::testing
