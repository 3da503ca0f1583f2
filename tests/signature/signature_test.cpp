#include "signature/signature.h"

#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// A commit that changes this number says why; one that only makes things faster leaves it alone.
constexpr std::uint64_t Expected = 7798220367753086184ULL;

TEST(Signature, IsTheOneInTheRepository)
{
    EXPECT_EQ(LogicSignature(), Expected);
}

// Leftovers of the first run would show in the second.
TEST(Signature, IsTheSameTwiceInOneProcess)
{
    const std::uint64_t first = LogicSignature();
    EXPECT_EQ(LogicSignature(), first);
}

} // namespace
} // namespace kelvarine::testing
