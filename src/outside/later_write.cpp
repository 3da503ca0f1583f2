#include "outside/later_write.h"

#include "outside/whole_file.h"

#include <cassert>
#include <chrono>
#include <future>
#include <utility>

namespace kelvarine {

namespace {

std::future<std::string> underWay; // the words of a failure

} // namespace

void BeginWrite(std::string path, std::string bytes)
{
    assert(!IsWriting());
    underWay = std::async(std::launch::async, [path = std::move(path), bytes = std::move(bytes)] {
        std::string error;
        ReplaceWholeFile(path, bytes, error);
        return error;
    });
}

bool IsWriting()
{
    return underWay.valid() &&
           underWay.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

std::string EndWrite()
{
    return underWay.valid() ? underWay.get() : std::string();
}

} // namespace kelvarine
