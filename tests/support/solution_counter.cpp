#include "support/solution_counter.h"

#include <bit>
#include <limits>

namespace kelvarine::testing {

namespace {

struct Search {
    CandidateField Field{};
    std::array<std::uint16_t, 9> RowUsed{};
    std::array<std::uint16_t, 9> ColumnUsed{};
    std::array<std::uint16_t, 9> BoxUsed{};
    Solution Numbers{}; // 0 for an open cell
    std::size_t Limit = 0;
    std::int64_t StepsLeft = 0;
    std::vector<Solution> Found;
};

constexpr std::size_t BoxOf(std::size_t place)
{
    return place / 27 * 3 + place % 9 / 3;
}

unsigned Choices(const Search &search, std::size_t place)
{
    const unsigned used =
        search.RowUsed[place / 9] | search.ColumnUsed[place % 9] | search.BoxUsed[BoxOf(place)];
    return search.Field[place] & AnyNumber & ~used;
}

void Toggle(Search &search, std::size_t place, std::uint16_t bit)
{
    search.RowUsed[place / 9] ^= bit;
    search.ColumnUsed[place % 9] ^= bit;
    search.BoxUsed[BoxOf(place)] ^= bit;
}

// The open cell with the fewest choices, or 81 when all cells hold a number.
std::size_t NarrowestCell(const Search &search)
{
    std::size_t narrowest = 81;
    int fewest = 10;
    for (std::size_t place = 0; place < 81 && fewest > 1; ++place) {
        if (search.Numbers[place] == 0) {
            const int count = std::popcount(Choices(search, place));
            if (count < fewest) {
                fewest = count;
                narrowest = place;
            }
        }
    }
    return narrowest;
}

void Extend(Search &search)
{
    if (--search.StepsLeft < 0) {
        return;
    }
    const std::size_t place = NarrowestCell(search);
    if (place == 81) {
        search.Found.push_back(search.Numbers);
        return;
    }
    for (unsigned rest = Choices(search, place); rest != 0 && search.Found.size() < search.Limit;
         rest &= rest - 1) {
        const int number = std::countr_zero(rest);
        const auto bit = static_cast<std::uint16_t>(1U << number);
        search.Numbers[place] = static_cast<std::uint8_t>(number);
        Toggle(search, place, bit);
        Extend(search);
        Toggle(search, place, bit);
    }
    search.Numbers[place] = 0;
}

} // namespace

CandidateField FieldOf(std::string_view line)
{
    CandidateField field{};
    field.fill(AnyNumber);
    for (std::size_t place = 0; place < field.size() && place < line.size(); ++place) {
        if (line[place] >= '1' && line[place] <= '9') {
            field[place] = static_cast<std::uint16_t>(1U << (line[place] - '0'));
        }
    }
    return field;
}

std::vector<Solution> SolutionsOf(const CandidateField &field, std::size_t limit)
{
    return *SolutionsWithin(std::numeric_limits<std::int64_t>::max(), field, limit);
}

std::optional<std::vector<Solution>> SolutionsWithin(std::int64_t steps,
                                                     const CandidateField &field, std::size_t limit)
{
    Search search;
    search.Field = field;
    search.Limit = limit;
    search.StepsLeft = steps;
    if (limit > 0) {
        Extend(search);
    }
    if (search.StepsLeft < 0) {
        return std::nullopt;
    }
    return search.Found;
}

} // namespace kelvarine::testing
