// The values that a setting can take. Each setting's range is told once, beside the setting; who
// reads, shows or tests it takes it from there.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kelvarine {

struct Range {
    std::int32_t Least;
    std::int32_t Most;

    friend constexpr bool operator==(const Range &, const Range &) = default;
};

constexpr bool IsIn(const Range &range, std::int32_t value)
{
    return value >= range.Least && value <= range.Most;
}

// Number of values in a range.
constexpr std::size_t CountOf(const Range &range)
{
    return static_cast<std::size_t>(range.Most - range.Least) + 1;
}

// The indices of a table.
template <typename Table>
constexpr Range IndicesOf(const Table &table)
{
    return {0, static_cast<std::int32_t>(table.size()) - 1};
}

} // namespace kelvarine
