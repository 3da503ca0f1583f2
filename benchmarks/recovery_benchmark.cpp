// What the recovery adds to a key press: the time that its look at the game keeps a key waiting, if
// one comes right then, on the disk and in memory. Counters tell the median and the longest.
#include "files/recovery.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/later_write.h"
#include "support/outside_double.h"
#include "support/settings_folder.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <vector>

namespace kelvarine {
namespace {

double Microseconds(const std::chrono::steady_clock::duration &time)
{
    return std::chrono::duration<double, std::micro>(time).count();
}

void KeyPress(benchmark::State &state, const char *folder)
{
    ::setenv("TMPDIR", folder, 1);
    const testing::SettingsFolders folders;
    testing::Restart();
    StartGame(NewGame);
    std::vector<double> times;
    for ([[maybe_unused]] auto _ : state) {
        Grid[1][1] ^= BitTable[1];
        PushUndoState();
        const auto start = std::chrono::steady_clock::now();
        RecoveryTick();
        const auto taken = std::chrono::steady_clock::now() - start;
        EndWrite(Reach::System);
        EndWrite(Reach::Disk);
        times.push_back(Microseconds(taken));
        state.SetIterationTime(times.back() / 1e6);
    }
    std::ranges::sort(times);
    state.counters["median_us"] = times[times.size() / 2];
    state.counters["worst_us"] = times.back();
    EndRecovery(true);
}

BENCHMARK_CAPTURE(KeyPress, disk, "/var/tmp")->UseManualTime();
BENCHMARK_CAPTURE(KeyPress, memory, "/dev/shm")->UseManualTime();

} // namespace
} // namespace kelvarine

BENCHMARK_MAIN();
