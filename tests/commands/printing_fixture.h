// A game in hand that is printed, alone or beside a batch of new ones, and what came on the paper.
#pragma once

#include "board/geometry.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "print/print_settings.h"
#include "support/outside_double.h"
#include "support/play.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace kelvarine::testing {

inline constexpr std::uint32_t Seed = 4711;
inline constexpr std::int32_t SixPerPage = 4; // index

// A game that is being played, on a page of 2250 by 3000 pixels, 300 to the inch.
class Printing : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        init_genrand(Seed);
        BoardPlace = {0, 0, 500, 500};
        StartSavedGame(EasyGame);
        WordAt({3, 1}) = (WordAt({3, 1}) & SolutionMask) | BitTable[4] | SelectedBit;
        ForgetRecord();
    }
};

// New games on the paper, without their solutions.
class PrintedBatch : public Printing {
protected:
    void SetUp() override
    {
        Printing::SetUp();
        PrintMode = PrintNewGames;
        PrintIncludeSolutions = False;
    }
};

// The pictures on the paper, in their order.
inline std::vector<PrintedThing> Pictures()
{
    std::vector<PrintedThing> pictures;
    std::ranges::copy_if(Seen.Printed, std::back_inserter(pictures), &PrintedThing::Picture);
    return pictures;
}

// The texts under them.
inline std::vector<std::string> Texts()
{
    std::vector<std::string> texts;
    for (const PrintedThing &thing : Seen.Printed) {
        if (!thing.Picture) {
            texts.push_back(thing.Text);
        }
    }
    return texts;
}

// Pictures on each page, from the first.
inline std::vector<int> PicturesByPage()
{
    std::vector<int> counts(static_cast<std::size_t>(Seen.PrintedPages));
    for (const PrintedThing &picture : Pictures()) {
        ++counts.at(static_cast<std::size_t>(picture.Page - 1));
    }
    return counts;
}

} // namespace kelvarine::testing
