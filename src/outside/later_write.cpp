#include "outside/later_write.h"

#include <cassert>
#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

namespace kelvarine {

namespace {

// What is under way of one reach: the words of its failure are to come.
struct Work {
    std::future<std::string> Words;
    std::jthread Writer; // if no other work has it
};

Work toSystem;
Work toDisk;

Work &WorkOf(Reach reach)
{
    return reach == Reach::System ? toSystem : toDisk;
}

std::string Write(const LaterWrite &file)
{
    std::string error;
    if (!ReplaceWholeFile(file.Path, file.Bytes, error, MissingFolders::Made, file.HowFar) &&
        file.HowFar == Reach::System) {
        std::error_code unseen;
        std::filesystem::remove(file.Path, unseen);
    }
    return error;
}

struct Job {
    std::vector<LaterWrite> Files;
    std::vector<std::promise<std::string>> Ends;
};

void DoAll(Job &job)
{
    for (std::size_t k = 0; k < job.Files.size(); ++k) {
        job.Ends[k].set_value(Write(job.Files[k]));
    }
}

} // namespace

void BeginWrite(std::vector<LaterWrite> files)
{
    assert(!files.empty());
    const auto job = std::make_shared<Job>();
    job->Files = std::move(files);
    job->Ends.resize(job->Files.size());
    for (std::size_t k = 0; k < job->Files.size(); ++k) {
        assert(!IsWriting(job->Files[k].HowFar));
        WorkOf(job->Files[k].HowFar).Words = job->Ends[k].get_future();
    }
    try {
        WorkOf(job->Files.back().HowFar).Writer = std::jthread([job] { DoAll(*job); });
    } catch (const std::system_error &) {
        DoAll(*job);
    }
}

bool IsWriting(Reach reach)
{
    const std::future<std::string> &words = WorkOf(reach).Words;
    return words.valid() && words.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

bool IsWriting()
{
    return IsWriting(Reach::System) || IsWriting(Reach::Disk);
}

std::string EndWrite(Reach reach)
{
    std::future<std::string> &words = WorkOf(reach).Words;
    return words.valid() ? words.get() : std::string();
}

} // namespace kelvarine
