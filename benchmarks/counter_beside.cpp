#include "benchmarks/counter_beside.h"

#include "grid/cell_word.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <memory>
#include <unistd.h>

namespace kelvarine {

namespace {

// The givens, row by row, with a dot for every other cell.
std::string GivensOf(const GridTable &grid)
{
    std::string marks;
    for (std::size_t place = 0; place < 81; ++place) {
        const CellWord word = grid[place % 9 + 1][place / 9 + 1];
        marks += (word & GivenBit) != 0
                     ? static_cast<char>('0' + std::countr_zero(word & CandidateMask))
                     : '.';
    }
    return marks;
}

// A new file with the givens of all positions, a line each; empty when none can be written.
std::string FileOfGivens(const Sample &sample)
{
    std::string path = std::string(P_tmpdir) + "/givens-XXXXXX";
    const int made = ::mkstemp(path.data());
    if (made < 0) {
        return {};
    }
    ::close(made);
    std::ofstream file(path);
    for (const GridTable &grid : sample) {
        file << GivensOf(grid) << '\n';
    }
    return path;
}

struct Close {
    void operator()(std::FILE *stream) const
    {
        ::pclose(stream);
    }
};

// Microseconds of each position, in the order of the file. Empty when qqwing does not run.
std::vector<double> TimesOf(const std::string &path)
{
    constexpr double microseconds = 1000; // of one of its milliseconds
    const std::string command =
        "qqwing --solve --nosolution --count-solutions --timer --csv <" + path + " 2>&1";
    const std::unique_ptr<std::FILE, Close> stream(::popen(command.c_str(), "r"));
    std::vector<double> times;
    std::array<char, 256> line{};
    while (stream != nullptr && std::fgets(line.data(), line.size(), stream.get()) != nullptr) {
        int solutions = 0;
        double milliseconds = 0;
        if (std::sscanf(line.data(), "%d,%lf,", &solutions, &milliseconds) == 2) {
            times.push_back(milliseconds * microseconds);
        }
    }
    return times;
}

void MeasureBeside(benchmark::State &state, const Sample &sample)
{
    const std::string path = FileOfGivens(sample);
    std::vector<double> best(sample.size(), std::numeric_limits<double>::max());
    for (auto _ : state) {
        const std::vector<double> times = TimesOf(path);
        if (times.size() != sample.size()) {
            ::unlink(path.c_str());
            state.SkipWithError("qqwing is not installed");
            return;
        }
        std::ranges::transform(best, times, best.begin(),
                               [](double one, double other) { return std::min(one, other); });
    }
    ::unlink(path.c_str());
    TellTimes(state, std::move(best));
}

} // namespace

void RegisterCounterBeside(const std::string &name, const Sample &sample)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State &state) {
        MeasureBeside(state, sample);
    })->Unit(benchmark::kMillisecond);
}

} // namespace kelvarine
