// Looks for positions that show one technique each: the first hint that the game has to give on
// them is of that technique. Reads games of 81 marks from a file, a game at the end of each line,
// and prints for each technique the positions with the fewest pencilmarks that it met, in the grid
// format.
//
//   make_help_positions GAMES ROUNDS SEED
//
// The same arguments give the same positions. Those of data/help were chosen from its output.

#include "files/text_format.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "program/defaults.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kelvarine {

namespace {

constexpr std::size_t Kept = 4; // positions kept for each technique
constexpr int Trial = 0;

std::mt19937 source;
std::map<std::int32_t, std::set<std::pair<int, std::string>>> found; // by technique

int Below(int count)
{
    return static_cast<int>(source() % static_cast<unsigned>(count));
}

// Number of the technique that the first hint on Grid is of, or Trial when there is none.
std::int32_t FirstTechnique()
{
    for (int level = 1; level <= Levels; ++level) {
        for (const TechniqueRow &row : Techniques) {
            if ((LevelTable[static_cast<std::size_t>(level)] & BitOf(row.Number)) == 0) {
                continue;
            }
            for (const Operation operation : row.AlertScan) {
                Flag ignored = False;
                HintText.clear();
                if (operation != nullptr) {
                    operation(3, ignored);
                }
                if (!HintText.empty()) {
                    return row.Number;
                }
            }
        }
    }
    return Trial;
}

// Takes the candidates of the placed numbers out of their peers.
void ApplyPlaced()
{
    Flag changed = True;
    while (changed != False) {
        changed = False;
        FindTechnique(1)->Driver[0](0, changed);
    }
}

// One step of the cheapest technique that does something. False when none does.
bool Step()
{
    ApplyPlaced();
    for (int level = 1; level <= Levels; ++level) {
        for (const TechniqueRow &row : Techniques) {
            if ((LevelTable[static_cast<std::size_t>(level)] & BitOf(row.Number)) == 0) {
                continue;
            }
            Flag changed = False;
            for (const Operation operation : row.Driver) {
                if (operation != nullptr && changed == False) {
                    operation(0, changed);
                }
            }
            if (changed != False) {
                ApplyPlaced();
                ClearCellBits(ScratchMarks);
                return true;
            }
        }
    }
    return false;
}

int CountAll()
{
    int count = 0;
    for (const Cell cell : Cells) {
        const int candidates = CountCandidates(cell.Column, cell.Row);
        count += candidates > 1 ? candidates : 0;
    }
    return count;
}

// Looks at Grid as it reads back from its text.
void Look()
{
    const GridTable kept = Grid;
    const std::string text = GridFormatText();
    ReadPosition(text);
    if (const std::int32_t number = FirstTechnique(); number != Trial) {
        auto &list = found[number];
        list.emplace(CountAll(), text);
        if (list.size() > Kept) {
            list.erase(std::prev(list.end()));
        }
    }
    Grid = kept;
}

// Takes wrong candidates out at random, as a player's own reasoning might have.
void Strip(const GridTable &solution, int percent)
{
    for (const Cell cell : Cells) {
        for (std::size_t number = 1; number <= 9; ++number) {
            const bool wrong = (solution[cell.Column][cell.Row] & BitTable[number]) == 0;
            if (wrong && (WordAt(cell) & GivenBit) == 0 && Below(100) < percent) {
                WordAt(cell) &= ~BitTable[number];
            }
        }
    }
}

// Leaves the numbers of four cells of a house nowhere else in the house.
void PrepareHiddenQuad(const GridTable &solution)
{
    const House &house = Houses[static_cast<std::size_t>(Below(27))];
    std::array<Cell, 9> cells = house.Cells;
    std::shuffle(cells.begin(), cells.end(), source);
    CellWord numbers = 0;
    for (std::size_t k = 0; k < 4; ++k) {
        numbers |= solution[cells[k].Column][cells[k].Row] & CandidateMask;
    }
    for (std::size_t k = 4; k < 9; ++k) {
        WordAt(cells[k]) &= ~((WordAt(cells[k]) & GivenBit) == 0 ? numbers : 0);
    }
}

// Leaves a number in four lines only where its places in them cross four others.
void PrepareJellyfish(const GridTable &solution)
{
    const CellWord number = BitOf(1 + Below(9));
    std::array<int, 9> lines{1, 2, 3, 4, 5, 6, 7, 8, 9};
    std::shuffle(lines.begin(), lines.end(), source);
    const std::set<int> base(lines.begin(), lines.begin() + 4);
    std::set<int> cover;
    for (const Cell cell : Cells) {
        if (base.contains(cell.Column) && (solution[cell.Column][cell.Row] & number) != 0) {
            cover.insert(cell.Row);
        }
    }
    for (const Cell cell : Cells) {
        if (base.contains(cell.Column) && !cover.contains(cell.Row) &&
            (WordAt(cell) & GivenBit) == 0) {
            WordAt(cell) &= ~number;
        }
    }
}

GridTable SolutionOf(const GridTable &game)
{
    Grid = game;
    FillPencilmarks();
    SolveMask = CountingMask;
    ApplyLogic(2);
    const GridTable solution = Grid;
    Grid = game;
    return solution;
}

// Plays a game to its end or until the techniques come to a halt, and looks at every position.
void Play(const GridTable &game, const GridTable &solution)
{
    Grid = game;
    Look();
    FillPencilmarks();
    ApplyPlaced();
    const int kind = Below(4);
    if (kind == 1) {
        Strip(solution, Below(25));
    } else if (kind == 2 && found[HiddenQuad].size() < Kept) {
        PrepareHiddenQuad(solution);
    } else if (kind == 3 && found[Jellyfish].size() < Kept) {
        PrepareJellyfish(solution);
    }
    do {
        Look();
    } while (Step() && IsGridSolved() == False);
}

std::vector<GridTable> ReadGames(const char *path)
{
    std::vector<GridTable> games;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        ReadPosition(line.substr(line.find_last_of(' ') + 1));
        games.push_back(Grid);
    }
    return games;
}

int Run(const char *path, int rounds, unsigned seed)
{
    SetDefaults();
    source.seed(seed);
    const std::vector<GridTable> games = ReadGames(path);
    std::vector<GridTable> solutions;
    solutions.reserve(games.size());
    for (const GridTable &game : games) {
        solutions.push_back(SolutionOf(game));
    }
    for (int round = 0; round < rounds && !games.empty(); ++round) {
        for (std::size_t k = 0; k < games.size(); ++k) {
            Play(games[k], solutions[k]);
        }
    }
    for (const auto &[number, positions] : found) {
        for (const auto &[count, text] : positions) {
            std::cout << FindTechnique(number)->ReportName << ", " << count << " pencilmarks\n"
                      << text << '\n';
        }
    }
    return games.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}

} // namespace

} // namespace kelvarine

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::cerr << "make_help_positions GAMES ROUNDS SEED\n";
        return EXIT_FAILURE;
    }
    return kelvarine::Run(argv[1], std::atoi(argv[2]), static_cast<unsigned>(std::atoi(argv[3])));
}
