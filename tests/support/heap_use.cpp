#include "support/heap_use.h"

#include <cstdlib>
#include <new>

namespace kelvarine::testing {

std::int64_t BytesAskedFor;

} // namespace kelvarine::testing

// The forms for arrays and those that do not throw come here as well.

void *operator new(std::size_t size)
{
    kelvarine::testing::BytesAskedFor += static_cast<std::int64_t>(size);
    if (void *memory = std::malloc(size)) {
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
