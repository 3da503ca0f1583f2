#include "support/heap_use.h"

#include <cstdlib>
#include <new>

namespace kelvarine::testing {

std::atomic<std::int64_t> BytesAskedFor;

} // namespace kelvarine::testing

// The form that does not throw stands here too, because the sanitizers have one of their own, whose
// memory the operator delete below must not be given.

void *operator new(std::size_t size, const std::nothrow_t & /*tag*/) noexcept
{
    kelvarine::testing::BytesAskedFor += static_cast<std::int64_t>(size);
    return std::malloc(size);
}

void *operator new(std::size_t size)
{
    if (void *memory = operator new(size, std::nothrow)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
