#include "outside/later_write.h"

#include <cassert>
#include <chrono>
#include <filesystem>
#include <future>
#include <system_error>
#include <utility>

namespace kelvarine {

namespace {

using Work = std::shared_future<std::string>; // the words of a failure

Work toSystem;
Work toDisk;

Work &WorkOf(Reach reach)
{
    return reach == Reach::System ? toSystem : toDisk;
}

std::string Write(Reach reach, const std::string &path, const std::string &bytes)
{
    std::string error;
    if (!ReplaceWholeFile(path, bytes, error, MissingFolders::Made, reach) &&
        reach == Reach::System) {
        std::error_code unseen;
        std::filesystem::remove(path, unseen);
    }
    return error;
}

// What has come to an end already.
Work Ended(std::string words)
{
    std::promise<std::string> end;
    end.set_value(std::move(words));
    return end.get_future().share();
}

} // namespace

void BeginWrite(Reach reach, std::string path, std::string bytes)
{
    assert(!IsWriting(reach));
    const Work before = reach == Reach::Disk ? toSystem : Work();
    const auto write = [reach, before, path = std::move(path), bytes = std::move(bytes)] {
        if (before.valid()) {
            before.wait();
        }
        return Write(reach, path, bytes);
    };
    try {
        WorkOf(reach) = std::async(std::launch::async, write).share();
    } catch (const std::system_error &) {
        WorkOf(reach) = Ended(write()); // the system has no thread left, so this one waits
    }
}

bool IsWriting(Reach reach)
{
    const Work &work = WorkOf(reach);
    return work.valid() && work.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

bool IsWriting()
{
    return IsWriting(Reach::System) || IsWriting(Reach::Disk);
}

std::string EndWrite(Reach reach)
{
    const Work work = std::exchange(WorkOf(reach), Work());
    return work.valid() ? work.get() : std::string();
}

} // namespace kelvarine
