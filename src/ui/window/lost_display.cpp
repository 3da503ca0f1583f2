#include "ui/window/lost_display.h"

#include <cstdlib>

namespace kelvarine {

namespace {

// What belongs to the thread is taken down before all that is static, whenever that was made, and
// before what was handed to std::atexit.
class ExitWatch {
public:
    ExitWatch() = default;
    ExitWatch(const ExitWatch &) = delete;
    ExitWatch &operator=(const ExitWatch &) = delete;
    ~ExitWatch()
    {
        if (EndsAtOnce) {
            std::_Exit(EXIT_FAILURE);
        }
    }

    bool EndsAtOnce = false;
};

thread_local ExitWatch exitWatch;

} // namespace

void EndAtOnceOnExit(bool on)
{
    exitWatch.EndsAtOnce = on;
}

} // namespace kelvarine
