// The worst that random positions of eight families do to each command, and the counter of
// solutions beside the walk that it stands for. KELVARINE_FIELDS sets the number of positions of a
// family.
#include "benchmarks/sample.h"
#include "game/alert_scan.h"
#include "game/assistance.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "logic/counter.h"
#include "logic/driver.h"
#include "logic/filling_runs.h"
#include "logic/rating.h"
#include "logic/technique.h"
#include "logic/technique_masks.h"
#include "program/defaults.h"
#include "support/outside_double.h"
#include "support/random_fields.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <random>
#include <string>

namespace kelvarine {
namespace {

using testing::FieldFamily;

struct Command {
    const char *Name;
    std::function<void()> Run;
};

const std::vector<Command> &Commands()
{
    static const std::vector<Command> commands{
        {"rate", RateGame},
        {"list", ListSolutions},
        {"solve", mnuSolveGame},
        {"alert scan",
         [] {
             ScanAlerts(ModeAlert);
         }},
        {"hint", mnuHint},
        {"apply",
         [] {
             SolveMask = RatingMask & ~TrialBit;
             ApplyLogic(SolveAsPlayer);
         }},
    };
    return commands;
}

Sample DrawSample(FieldFamily family)
{
    std::mt19937 random(1);
    Sample sample;
    const std::int64_t size = testing::FieldsToCompare(1'000);
    while (static_cast<std::int64_t>(sample.size()) < size) {
        testing::SetField(testing::DrawField(random, family));
        sample.push_back(Grid);
    }
    return sample;
}

bool IsGames(FieldFamily family)
{
    return static_cast<std::size_t>(family) < testing::GameFamilies;
}

// The walk of a count, which is given up after so many passes.
void WalkCount()
{
    constexpr std::int64_t mostPasses = 1'000;
    SolveMask = CountingMask;
    ApplyLogicWithin(mostPasses, CountSolutions);
}

void RegisterFamily(FieldFamily family)
{
    const Sample sample = DrawSample(family);
    const std::string name(testing::NameOf(family));
    Register("count, " + name, sample,
             [] { benchmark::DoNotOptimize(CountFillings(FieldOf(Grid), 2)); });
    if (IsGames(family)) {
        Register("count by the walk of at most 1000 passes, " + name, sample, WalkCount);
    }
    for (const Command &command : Commands()) {
        Register(std::string(command.Name) + ", " + name, sample, [&command] {
            testing::Seen = {};
            command.Run();
        });
    }
}

} // namespace
} // namespace kelvarine

int main(int argc, char **argv)
{
    kelvarine::SetDefaults();
    kelvarine::AlertMask = kelvarine::RatingMask;
    for (const auto family : kelvarine::testing::FieldFamilies) {
        kelvarine::RegisterFamily(family);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
