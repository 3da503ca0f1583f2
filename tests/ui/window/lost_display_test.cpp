// The end of a program whose display went, each in a process of its own.
#include "support/child_process.h"
#include "ui/window/lost_display.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace kelvarine::testing {
namespace {

constexpr int TakenDown = 2;

// Tells that it is taken down.
struct Witness {
    Witness() = default;
    Witness(const Witness &) = delete;
    Witness &operator=(const Witness &) = delete;
    ~Witness()
    {
        ::_exit(TakenDown);
    }
};

[[noreturn]] void ExitWithSomethingMadeLater()
{
    static const Witness witness;
    std::exit(EXIT_SUCCESS);
}

TEST(LostDisplay, TakesNothingDownNotEvenWhatWasMadeLater)
{
    const int result = RunInChild([]() -> int {
        EndAtOnceOnExit(true);
        ExitWithSomethingMadeLater();
    });
    EXPECT_EQ(result, EXIT_FAILURE);
}

TEST(LostDisplay, EndThatIsInOrderTakesEverythingDown)
{
    const int result = RunInChild([]() -> int {
        EndAtOnceOnExit(true);
        EndAtOnceOnExit(false);
        ExitWithSomethingMadeLater();
    });
    EXPECT_EQ(result, TakenDown);
}

} // namespace
} // namespace kelvarine::testing
