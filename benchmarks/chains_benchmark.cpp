// What the chains cost on grids that have more of them than anyone could walk along: alert scan,
// hint stages, a pass and a whole run of the driver with all techniques, and each chain technique
// alone in every mode. The counters tell the mean and the worst of one grid in microseconds of
// processor time.
#include "game/alert_scan.h"
#include "grid/grid.h"
#include "logic/chain_positions.h"
#include "logic/driver.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "logic/technique_table.h"
#include "program/defaults.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace kelvarine {
namespace {

using testing::chains::Random;

struct Family {
    std::string Name;
    std::function<void(Random &)> Make;
};

// Pairs of the numbers from 1 to a highest one, in some percent of the cells three of them and in
// some one or none.
Family Pairs(int highest, int threes, int fewer)
{
    const std::string more = threes > 0 ? ", with threes" : "";
    const std::string less = fewer > 0 ? ", with gaps" : "";
    return {"pairs of 1 to " + std::to_string(highest) + more + less, [=](Random &random) {
                testing::chains::MakePairsUpTo(random, highest, threes, fewer);
            }};
}

std::vector<Family> MakeFamilies()
{
    std::vector<Family> families;
    for (int highest = 2; highest <= 6; ++highest) {
        families.push_back(Pairs(highest, 0, 0));
        families.push_back(Pairs(highest, 0, 30));
        if (highest > 2) {
            families.push_back(Pairs(highest, 25, 0));
            families.push_back(Pairs(highest, 25, 30));
        }
    }
    families.push_back({"two solutions", testing::chains::MakeTwoSolutions});
    families.push_back({"sound, rich in pairs", testing::chains::MakePairRich});
    families.push_back({"sound, in the middle of a game", testing::chains::MakeMidGame});
    return families;
}

double Microseconds()
{
    std::timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

double TimeOf(const GridTable &grid, const std::function<void()> &work)
{
    Grid = grid;
    HintText.clear();
    const double before = Microseconds();
    work();
    return Microseconds() - before;
}

// Many grids in a row; one that seems to be the worst is measured again, for the machine may have
// been busy with other things.
void Measure(benchmark::State &state, const Family &family, const std::function<void()> &work)
{
    constexpr int grids = 1000;
    double sum = 0;
    double worst = 0;
    for (auto _ : state) {
        Random random(1);
        for (int k = 0; k < grids; ++k) {
            family.Make(random);
            for (int selected = 0; selected < 3; ++selected) {
                WordAt(Cells[static_cast<std::size_t>(testing::chains::Below(random, 81))]) |=
                    SelectedBit;
            }
            const GridTable grid = Grid;
            double time = TimeOf(grid, work);
            for (int again = 0; again < 2 && time > worst; ++again) {
                time = std::min(time, TimeOf(grid, work));
            }
            sum += time;
            worst = std::max(worst, time);
        }
    }
    state.counters["mean_us"] = sum / grids;
    state.counters["worst_us"] = worst;
}

void Register(const std::string &name, const std::function<void()> &work)
{
    static const std::vector<Family> families = MakeFamilies();
    for (const Family &family : families) {
        benchmark::RegisterBenchmark(
            (name + "/" + family.Name).c_str(),
            [=, &family](benchmark::State &state) { Measure(state, family, work); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1);
    }
}

// What the driver does in a pass of the apply command: the techniques in turn until one finds
// something.
void RunPass()
{
    Flag found = False;
    for (std::size_t level = 1; level <= Levels; ++level) {
        for (const TechniqueRow &row : Techniques) {
            for (const Operation operation : row.DriverApply) {
                if ((LevelTable[level] & BitOf(row.Number)) != 0 && operation != nullptr &&
                    found == False) {
                    operation(ModeChange, found);
                }
            }
        }
    }
}

void RegisterAll()
{
    SetDefaults();
    AlertMask = RatingMask;
    for (const std::int32_t mode :
         {ModeAlert, ModeExplain, ModeTeaser, ModeTeaserPlace, ModeFull}) {
        Register("scan, mode " + std::to_string(mode), [=] { ScanAlerts(mode); });
    }
    Register("pass", RunPass);
    Register("apply, no trial and error", [] {
        SolveMask = RatingMask & ~TrialBit;
        ApplyLogic(SolveAsPlayer);
    });
    for (const std::int32_t number : {RemotePairs, XYWing, XYChain, SinglesChain}) {
        for (std::int32_t mode = ModeChange; mode <= ModeFull; ++mode) {
            const TechniqueRow &row = *FindTechnique(number);
            const Operation operation = (mode == ModeChange ? row.Driver : row.AlertScan)[0];
            Register(std::string(row.ReportName) + ", mode " + std::to_string(mode), [=] {
                Flag found = False;
                operation(mode, found);
            });
        }
    }
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
