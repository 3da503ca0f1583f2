// Makes games with one solution for the benchmarks and tests and prints them as lines of 81 marks,
// a digit for a given and "." for an open cell, fewest givens first.
//
//   make_puzzles SEED COUNT WALKS STEPS
//
// prints COUNT games for each number of givens from 21 to 30 and whatever games of 17 to 20 givens
// WALKS random walks of STEPS steps come across, COUNT of each number at most. The same arguments
// give the same lines; those of tests/data/puzzles.txt are 1 4 24 8000.

#include "support/solution_counter.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using kelvarine::testing::CandidateField;
using kelvarine::testing::FieldOf;
using kelvarine::testing::Solution;
using kelvarine::testing::SolutionsOf;

using Source = std::mt19937;

constexpr int FewestGivens = 17;
constexpr int FewestDirect = 21; // from here on plain removal finds games soon enough
constexpr int MostGivens = 30;

std::size_t Draw(Source &source, std::size_t below)
{
    return source() % below;
}

template <typename List>
void Shuffle(List &list, Source &source)
{
    for (std::size_t k = list.size(); k > 1; --k) {
        std::swap(list[k - 1], list[Draw(source, k)]);
    }
}

int Givens(const std::string &game)
{
    return static_cast<int>(81 - std::ranges::count(game, '.'));
}

bool HasOneSolution(const std::string &game)
{
    return SolutionsOf(FieldOf(game), 2).size() == 1;
}

// A random complete grid: three boxes that do not see each other at random, then one of the first
// solutions of that.
std::string RandomSolvedGrid(Source &source)
{
    std::string start(81, '.');
    for (std::size_t box = 0; box < 3; ++box) {
        std::string digits = "123456789";
        Shuffle(digits, source);
        for (std::size_t k = 0; k < 9; ++k) {
            start[(box * 3 + k / 3) * 9 + box * 3 + k % 3] = digits[k];
        }
    }
    const std::vector<Solution> several = SolutionsOf(FieldOf(start), 50);
    const Solution &numbers = several[Draw(source, several.size())];
    std::string grid;
    for (const std::uint8_t number : numbers) {
        grid += static_cast<char>('0' + number);
    }
    return grid;
}

// Takes givens out in random order as long as one solution stays and more than wanted are left.
void TakeOut(std::string &game, int wanted, Source &source)
{
    std::array<std::size_t, 81> order{};
    for (std::size_t k = 0; k < order.size(); ++k) {
        order[k] = k;
    }
    Shuffle(order, source);
    int givens = Givens(game);
    for (const std::size_t place : order) {
        if (givens <= wanted) {
            return;
        }
        const char mark = game[place];
        if (mark != '.') {
            game[place] = '.';
            if (HasOneSolution(game)) {
                --givens;
            } else {
                game[place] = mark;
            }
        }
    }
}

void RemoveRandomGiven(std::string &game, Source &source)
{
    std::size_t place = Draw(source, 81);
    while (game[place] == '.') {
        place = Draw(source, 81);
    }
    game[place] = '.';
}

// Adds one given that leaves a single solution. False when no given does, or when the game has
// too many solutions to look through.
bool AddDecidingGiven(std::string &game, Source &source)
{
    constexpr std::size_t most = 400;
    const std::vector<Solution> solutions = SolutionsOf(FieldOf(game), most);
    if (solutions.size() == most) {
        return false;
    }
    std::array<std::array<int, 10>, 81> counts{};
    for (const Solution &solution : solutions) {
        for (std::size_t place = 0; place < solution.size(); ++place) {
            ++counts[place][solution[place]];
        }
    }
    std::vector<std::pair<std::size_t, char>> deciding;
    for (std::size_t place = 0; place < counts.size(); ++place) {
        for (std::size_t number = 1; number <= 9; ++number) {
            if (game[place] == '.' && counts[place][number] == 1) {
                deciding.emplace_back(place, static_cast<char>('0' + number));
            }
        }
    }
    if (deciding.empty()) {
        return false;
    }
    const auto [place, mark] = deciding[Draw(source, deciding.size())];
    game[place] = mark;
    return true;
}

using Harvest = std::map<int, std::set<std::string>>;

void Keep(Harvest &harvest, const std::string &game, std::size_t count)
{
    const int givens = Givens(game);
    if (givens >= FewestGivens && harvest[givens].size() < count) {
        harvest[givens].insert(game);
    }
}

// Walks from game to game: two givens out and one in when that can be, else one out and one in.
// The games of one walk are all alike, so the last of each number of givens is kept and no more.
void Walk(Harvest &harvest, std::size_t count, long steps, Source &source)
{
    std::map<int, std::string> found;
    std::string game = RandomSolvedGrid(source);
    TakeOut(game, FewestGivens, source);
    for (long step = 0; step < steps; ++step) {
        std::string next = game;
        RemoveRandomGiven(next, source);
        if (Draw(source, 4) != 0) {
            RemoveRandomGiven(next, source);
        }
        if (AddDecidingGiven(next, source)) {
            TakeOut(next, FewestGivens, source);
            game = next;
            found[Givens(game)] = game;
        }
    }
    for (const auto &[givens, last] : found) {
        if (givens < FewestDirect) {
            Keep(harvest, last, count);
        }
    }
}

void MakeDirectly(Harvest &harvest, std::size_t count, Source &source)
{
    for (int givens = FewestDirect; givens <= MostGivens; ++givens) {
        while (harvest[givens].size() < count) {
            std::string game = RandomSolvedGrid(source);
            TakeOut(game, givens, source);
            if (Givens(game) == givens) {
                Keep(harvest, game, count);
            }
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 5) {
        std::cerr << "usage: make_puzzles SEED COUNT WALKS STEPS\n";
        return EXIT_FAILURE;
    }
    Source source(static_cast<Source::result_type>(std::strtoul(argv[1], nullptr, 10)));
    const std::size_t count = std::strtoul(argv[2], nullptr, 10);
    Harvest harvest;
    MakeDirectly(harvest, count, source);
    const long walks = std::strtol(argv[3], nullptr, 10);
    for (long walk = 0; walk < walks; ++walk) {
        Walk(harvest, count, std::strtol(argv[4], nullptr, 10), source);
    }
    for (const auto &[givens, games] : harvest) {
        for (const std::string &game : games) {
            std::cout << game << '\n';
        }
    }
    return EXIT_SUCCESS;
}
