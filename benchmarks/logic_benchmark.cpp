// What the logic costs on games of every level and on hopeless positions: counting beside the walk
// that it stands for, rating, the alert scan, the first stage of a hint, and each technique alone.
// Each benchmark goes through a sample of positions; the counters tell the median, the mean and the
// worst of one position in microseconds.
#include "benchmarks/counter_beside.h"
#include "benchmarks/sample.h"
#include "game/alert_scan.h"
#include "generator/random_source.h"
#include "grid/grid.h"
#include "logic/counter.h"
#include "logic/driver.h"
#include "logic/rating.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "program/defaults.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

namespace kelvarine {
namespace {

// Games of 81 marks with all pencilmarks filled in.
Sample GamesOf(const std::vector<std::string> &texts)
{
    Sample games;
    for (const std::string &marks : texts) {
        Grid = {};
        for (std::size_t place = 0; place < 81; ++place) {
            if (marks[place] != '.') {
                Grid[place % 9 + 1][place / 9 + 1] = BitOf(marks[place] - '0') | GivenBit;
            }
        }
        FillPencilmarks();
        games.push_back(Grid);
    }
    return games;
}

// Lines of a file, each ending in 81 marks. Lines with a number in front are taken only from that
// level on.
Sample ReadGames(const char *path, int fromLevel)
{
    std::ifstream file(path);
    std::vector<std::string> texts;
    std::string line;
    while (std::getline(file, line)) {
        if (line.size() >= 81 && (line[1] != ' ' || line[0] - '0' >= fromLevel)) {
            texts.push_back(line.substr(line.size() - 81));
        }
    }
    return GamesOf(texts);
}

// Sets games back to a position of play by running some techniques on them.
Sample AfterTechniques(Sample games, std::uint32_t mask)
{
    for (GridTable &game : games) {
        Grid = game;
        SolveMask = mask;
        ApplyLogic(SolveForRating);
        game = Grid;
    }
    std::erase_if(games, [](const GridTable &game) {
        Grid = game;
        return IsGridSolved() != False;
    });
    return games;
}

// Games in the middle: about half of the open cells have their number, the pencilmarks of all
// others follow from the numbers.
Sample MidGames(Sample games)
{
    init_genrand(1);
    for (GridTable &game : games) {
        Grid = game;
        RateGame();
        for (const Cell cell : Cells) {
            CellWord &word = WordAt(cell);
            if ((word & GivenBit) == 0 && genrand_real2() < 0.5) {
                word = (word & ~CandidateMask) | (word & SolutionMask) >> SolutionShift;
            }
        }
        Flag found = True;
        while (found != False) {
            found = False;
            FindTechnique(1)->Driver[0](ModeChange, found);
        }
        game = Grid;
    }
    return games;
}

// Contradictory grids: texts on which only the proof ends the walk through all trials, and pairs
// with more chains than anyone could walk along.
void RegisterHopeless()
{
    const Sample bitter = GamesOf({
        ".....5.8....6.1.43..........1.5........1.6...3.......553.....61........4.........",
        "...7.............6.8...6......8.3......2...6.6.............8...3..17...2....6....",
    });
    Register("rate, impossible texts", bitter, RateGame);
    init_genrand(3);
    Sample pairs(1);
    for (const Cell cell : Cells) {
        const auto one = static_cast<std::size_t>(genrand_real2() * 4) + 1;
        const auto other = (one + static_cast<std::size_t>(genrand_real2() * 3)) % 4 + 1;
        pairs[0][cell.Column][cell.Row] = BitTable[one] | BitTable[other];
    }
    Register("XY-chains, contradictory pairs", pairs, [] {
        SolveMask = BitTable[15];
        ApplyLogic(SolveAsPlayer);
    });
}

void RegisterTechniques(const Sample &sample)
{
    for (const TechniqueRow &row : Techniques) {
        for (const std::int32_t mode : {ModeChange, ModeAlert}) {
            const OperationList list = mode == ModeChange ? row.Driver : row.AlertScan;
            Register(std::string(row.ReportName) + ", mode " + std::to_string(mode), sample, [=] {
                Flag found = False;
                HintText.clear();
                for (const Operation operation : list) {
                    if (operation != nullptr) {
                        operation(mode, found);
                    }
                }
            });
        }
    }
}

void RegisterAll()
{
    SetDefaults();
    const Sample sparse = ReadGames(TEST_DATA "/puzzles.txt", 0);
    const Sample all = ReadGames(TEST_DATA "/levels.txt", 1);
    const Sample hard = ReadGames(TEST_DATA "/levels.txt", 4);
    const Sample middle = MidGames(all);
    const std::uint32_t upToFish = 0x1FFE;
    const Sample stuck = AfterTechniques(hard, upToFish);

    const auto count = [] {
        benchmark::DoNotOptimize(CountFillings(FieldOf(Grid), 2));
    };
    const auto walk = [] {
        SolveMask = CountingMask;
        ApplyLogic(CountSolutions);
    };
    Register("count, 18 to 30 givens", sparse, count);
    Register("count, games that need chains or trial", hard, count);
    Register("count by the walk, 18 to 30 givens", sparse, walk);
    Register("count by the walk, games that need chains or trial", hard, walk);
    RegisterCounterBeside("count by qqwing, 18 to 30 givens", sparse);
    RegisterCounterBeside("count by qqwing, games that need chains or trial", hard);
    Register("rate, games that need chains or trial", hard, RateGame);
    Register("rate, games of all levels", all, RateGame);
    AlertMask = RatingMask;
    Register("alert scan, mid-game", middle, [] { ScanAlerts(ModeAlert); });
    Register("alert scan, stuck", stuck, [] { ScanAlerts(ModeAlert); });
    Register("first hint stage, stuck", stuck, [] { ScanAlerts(ModeTeaser); });
    RegisterHopeless();
    RegisterTechniques(AfterTechniques(all, 0x6));
}

} // namespace
} // namespace kelvarine

int main(int argc, char **argv)
{
    kelvarine::RegisterAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
