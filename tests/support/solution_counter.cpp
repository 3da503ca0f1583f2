#include "support/solution_counter.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace kelvarine::testing {

namespace {

struct Search {
    CandidateField Field{};
    std::array<std::uint16_t, 9> RowUsed{};
    std::array<std::uint16_t, 9> ColumnUsed{};
    std::array<std::uint16_t, 9> BoxUsed{};
    Solution Numbers{};
    std::array<std::uint8_t, 81> Open{}; // the cells without a number, in their order
    std::size_t OpenCount = 0;
    std::size_t Limit = 0;
    std::size_t Count = 0;
    std::int64_t StepsLeft = 0;
    std::vector<Solution> *Found = nullptr; // nobody may ask for the solutions
};

// Every place as row, column and box.
struct House {
    std::uint8_t Row;
    std::uint8_t Column;
    std::uint8_t Box;
};

constexpr std::array<House, 81> Houses = [] {
    std::array<House, 81> houses{};
    for (unsigned place = 0; place < 81; ++place) {
        const auto part = [](unsigned number) {
            return static_cast<std::uint8_t>(number);
        };
        houses[place] = {part(place / 9), part(place % 9), part(place / 27 * 3 + place % 9 / 3)};
    }
    return houses;
}();

unsigned Choices(const Search &search, std::size_t place)
{
    const House &house = Houses[place];
    const unsigned used =
        search.RowUsed[house.Row] | search.ColumnUsed[house.Column] | search.BoxUsed[house.Box];
    return search.Field[place] & AnyNumber & ~used;
}

void Toggle(Search &search, std::size_t place, unsigned bit)
{
    const House &house = Houses[place];
    search.RowUsed[house.Row] ^= static_cast<std::uint16_t>(bit);
    search.ColumnUsed[house.Column] ^= static_cast<std::uint16_t>(bit);
    search.BoxUsed[house.Box] ^= static_cast<std::uint16_t>(bit);
}

// Gives every cell with one candidate its number and opens all others. False when two clash.
bool Start(Search &search)
{
    for (std::size_t place = 0; place < 81; ++place) {
        const unsigned candidates = search.Field[place] & AnyNumber;
        if (std::popcount(candidates) != 1) {
            search.Open[search.OpenCount++] = static_cast<std::uint8_t>(place);
        } else if (Choices(search, place) == 0) {
            return false;
        } else {
            search.Numbers[place] = static_cast<std::uint8_t>(std::countr_zero(candidates));
            Toggle(search, place, candidates);
        }
    }
    return true;
}

// The open cell with the fewest choices, as a place among the open ones.
std::size_t Narrowest(const Search &search)
{
    std::size_t narrowest = 0;
    int fewest = 10;
    for (std::size_t k = 0; k < search.OpenCount && fewest > 1; ++k) {
        const int count = std::popcount(Choices(search, search.Open[k]));
        if (count < fewest) {
            fewest = count;
            narrowest = k;
        }
    }
    return narrowest;
}

void Extend(Search &search)
{
    if (--search.StepsLeft < 0) {
        return;
    }
    if (search.OpenCount == 0) {
        ++search.Count;
        if (search.Found != nullptr) {
            search.Found->push_back(search.Numbers);
        }
        return;
    }
    const std::size_t narrowest = Narrowest(search);
    const auto cell = search.Open.begin() + static_cast<std::ptrdiff_t>(narrowest);
    const std::uint8_t place = *cell;
    std::copy(cell + 1, search.Open.begin() + static_cast<std::ptrdiff_t>(search.OpenCount), cell);
    --search.OpenCount;
    for (unsigned rest = Choices(search, place);
         rest != 0 && search.Count < search.Limit && search.StepsLeft >= 0; rest &= rest - 1) {
        const unsigned bit = rest & -rest;
        search.Numbers[place] = static_cast<std::uint8_t>(std::countr_zero(bit));
        Toggle(search, place, bit);
        Extend(search);
        Toggle(search, place, bit);
    }
    const auto end = search.Open.begin() + static_cast<std::ptrdiff_t>(search.OpenCount);
    std::copy_backward(cell, end, end + 1);
    *cell = place;
    ++search.OpenCount;
}

// Number of solutions up to a limit, told to found where somebody asks for them; nothing when that
// takes more than so many steps.
std::optional<std::size_t> Count(std::int64_t steps, const CandidateField &field, std::size_t limit,
                                 std::vector<Solution> *found)
{
    Search search;
    search.Field = field;
    search.Limit = limit;
    search.StepsLeft = steps;
    search.Found = found;
    if (limit > 0 && Start(search)) {
        Extend(search);
    }
    if (search.StepsLeft < 0) {
        return std::nullopt;
    }
    return search.Count;
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
    std::vector<Solution> found;
    if (!Count(steps, field, limit, &found).has_value()) {
        return std::nullopt;
    }
    return found;
}

std::optional<std::size_t> CountWithin(std::int64_t steps, const CandidateField &field,
                                       std::size_t limit)
{
    return Count(steps, field, limit, nullptr);
}

} // namespace kelvarine::testing
