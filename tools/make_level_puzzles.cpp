// Makes games of every level with 17 to 30 givens for the benchmarks and the tests: a line for
// each, the level and 81 marks. make_level_puzzles COUNT prints so many games of each level; the
// seed is fixed, so the same count gives the same games.
#include "generator/generator.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "program/defaults.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace kelvarine {
namespace {

std::string GameLine()
{
    std::string line;
    for (std::size_t row = 1; row <= 9; ++row) {
        for (std::size_t column = 1; column <= 9; ++column) {
            const int number = LowestCandidate(Grid[column][row]);
            line += number == 0 ? '.' : static_cast<char>('0' + number);
        }
    }
    return line;
}

void PrintGames(int count)
{
    SetDefaults();
    init_genrand(20261121);
    RevealPattern = 0;
    MaxGivens = 30;
    for (std::size_t level = 1; level <= Levels; ++level) {
        DifficultySelection = BitTable[level];
        for (int game = 0; game < count; ++game) {
            GenerateGame();
            std::printf("%zu %s\n", level, GameLine().c_str());
        }
    }
}

} // namespace
} // namespace kelvarine

int main(int argc, char **argv)
{
    kelvarine::PrintGames(argc > 1 ? std::atoi(argv[1]) : 60);
    return 0;
}
