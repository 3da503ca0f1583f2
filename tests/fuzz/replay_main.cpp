// Drives a fuzzer without libFuzzer: over a folder of inputs and the long seeds, and then over so
// many mutations of them, the same in every run.
//
//   replay <folder> <mutations>   runs
//   replay --seeds <folder>       writes the long seeds, for libFuzzer to start from
#include "fuzz/fuzz.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>

namespace kelvarine::testing {

namespace {

using Random = std::mt19937;

std::size_t Below(Random &random, std::size_t limit)
{
    return random() % limit;
}

std::vector<std::string> ReadInputs(const std::filesystem::path &folder)
{
    std::vector<std::filesystem::path> paths;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    std::vector<std::string> inputs;
    for (const auto &path : paths) {
        std::ifstream file(path, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return inputs;
}

void PutWord(std::string &input, std::size_t place, std::uint32_t word)
{
    for (std::size_t i = 0; i < 4 && place + i < input.size(); ++i) {
        input[place + i] = static_cast<char>(word >> (8 * i) & 0xFFU);
    }
}

void MutateOnce(std::string &input, const std::vector<std::string> &inputs, Random &random)
{
    constexpr std::array<std::uint32_t, 12> words{0,          1,          2,          100,
                                                  101,        0x3FE,      0x7FFFFFFF, 0x80000000,
                                                  0xFFFFFFFF, 0xFFFFFF9C, 0xFFFFF,    0x0F000400};
    constexpr std::string_view marks = "0123456789. |\r\n";
    const std::size_t place = Below(random, input.size() + 1);
    switch (Below(random, 7)) {
    case 0:
        PutWord(input, place, static_cast<std::uint32_t>(random()));
        break;
    case 1:
        PutWord(input, place / 4 * 4, words[Below(random, words.size())]);
        break;
    case 2:
        PutWord(input, place / 4 * 4, std::uint32_t{1} << Below(random, 32));
        break;
    case 3:
        input.resize(place);
        break;
    case 4:
        input.insert(place, Below(random, 9), marks[Below(random, marks.size())]);
        break;
    case 5:
        input.erase(place, Below(random, 9));
        break;
    default: {
        const std::string &other = inputs[Below(random, inputs.size())];
        const std::size_t from = Below(random, other.size() + 1);
        input.replace(std::min(from, input.size()), 400, other.substr(from, 400));
    }
    }
}

void Run(const std::string &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
}

void RunMutations(const std::vector<std::string> &inputs, unsigned count)
{
    for (unsigned run = 0; run < count; ++run) {
        Random random(run);
        std::string input = inputs[Below(random, inputs.size())];
        for (std::size_t edits = 1 + Below(random, 8); edits > 0; --edits) {
            MutateOnce(input, inputs, random);
        }
        Run(input);
    }
    std::cout << inputs.size() << " inputs and " << count << " mutations of them\n";
}

void WriteSeeds(const std::filesystem::path &folder)
{
    int number = 0;
    for (const std::string &seed : LongSeeds()) {
        std::ofstream file(folder / ("seed" + std::to_string(++number)), std::ios::binary);
        file << seed;
    }
}

int Replay(const std::filesystem::path &folder, unsigned mutations)
{
    std::vector<std::string> inputs = ReadInputs(folder);
    if (inputs.empty()) {
        std::cerr << "no inputs in " << folder << '\n';
        return 1;
    }
    std::ranges::move(LongSeeds(), std::back_inserter(inputs));
    std::ranges::for_each(inputs, Run);
    RunMutations(inputs, mutations);
    return 0;
}

} // namespace

} // namespace kelvarine::testing

int main(int argc, char **argv)
{
    using namespace kelvarine::testing;
    LLVMFuzzerInitialize(&argc, &argv);
    if (argc != 3) {
        return 2;
    }
    if (std::string_view(argv[1]) == "--seeds") {
        WriteSeeds(argv[2]);
        return 0;
    }
    return Replay(argv[1], static_cast<unsigned>(std::stoul(argv[2])));
}
