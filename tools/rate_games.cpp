// The engine at work without a window: reads games from standard input, 81 characters a line with
// "." or "0" for an empty cell, and writes for each the number of its solutions, its rating and the
// techniques that solve it. A line that is no game is told, and the next one is read.
#include "grid/grid.h"
#include "logic/rating.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "program/defaults.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>

namespace kelvarine {

namespace {

bool IsGame(std::string_view line)
{
    return line.size() == Cells.size() && std::ranges::all_of(line, [](char mark) {
               return mark == '.' || (mark >= '0' && mark <= '9');
           });
}

void SetGivens(std::string_view game)
{
    Grid = {};
    for (std::size_t k = 0; k < Cells.size(); ++k) {
        if (game[k] != '.' && game[k] != '0') {
            WordAt(Cells[k]) = BitOf(game[k] - '0') | GivenBit;
        }
    }
    CountGivens();
}

std::string_view CountOfSolutions()
{
    if (GameRating == RatedImpossible) {
        return "0";
    }
    return GameRating == RatedMultiple ? "more" : "1";
}

// The techniques that the rating used, in the order of their numbers. Only a game with one solution
// has been solved.
std::string UsedTechniques()
{
    std::string names;
    if (GameRating > RatedExtreme) {
        return names;
    }
    const auto add = [&](std::uint32_t bit, std::string_view name) {
        if ((UsedMask & bit) != 0) {
            names += names.empty() ? ": " : ", ";
            names += name;
        }
    };
    for (const TechniqueRow &row : Techniques) {
        add(BitOf(row.Number), row.ReportName);
    }
    add(TrialBit, "Trial & error");
    return names;
}

bool RateLines(std::istream &in, std::ostream &out)
{
    bool allAreGames = true;
    std::string line;
    for (std::int64_t number = 1; std::getline(in, line); ++number) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        if (!IsGame(line)) {
            out << "line " << number << " is no game" << std::endl;
            allAreGames = false;
            continue;
        }
        SetGivens(line);
        RateGame();
        out << CountOfSolutions() << ' ' << WordsOfRating(GameRating).Lower << UsedTechniques()
            << std::endl;
    }
    return allAreGames;
}

} // namespace

} // namespace kelvarine

int main()
{
    kelvarine::SetDefaults();
    return kelvarine::RateLines(std::cin, std::cout) ? 0 : 1;
}
