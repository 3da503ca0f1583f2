// An open file of the system that closes itself.
#pragma once

#include <unistd.h>
#include <utility>

namespace kelvarine {

class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number)
    {
    }
    Descriptor(Descriptor &&other) noexcept : number_(std::exchange(other.number_, -1))
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor()
    {
        if (number_ >= 0) {
            ::close(number_);
        }
    }

    [[nodiscard]] int Number() const
    {
        return number_;
    }

    [[nodiscard]] bool IsOpen() const
    {
        return number_ >= 0;
    }

    // True when closing reported no late error.
    bool Close()
    {
        return ::close(std::exchange(number_, -1)) == 0;
    }

private:
    int number_;
};

} // namespace kelvarine
