#include "support/random_fields.h"

#include "grid/grid.h"
#include "support/random_positions.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <numeric>
#include <string>

namespace kelvarine::testing {

namespace {

std::uint16_t Bit(unsigned number)
{
    return static_cast<std::uint16_t>(1U << number);
}

std::uint16_t DrawBit(std::mt19937 &random)
{
    return Bit(1 + static_cast<unsigned>(random() % 9));
}

// So many different numbers.
std::uint16_t DrawMask(std::mt19937 &random, int count)
{
    std::uint16_t mask = 0;
    while (std::popcount(mask) < count) {
        mask |= DrawBit(random);
    }
    return mask;
}

// One number to each cell.
CandidateField DrawFilled(std::mt19937 &random)
{
    return FieldOf(DrawSolution(random));
}

CandidateField DrawGivens(std::mt19937 &random, int fewest, int most)
{
    const auto more = static_cast<int>(random() % static_cast<unsigned>(most - fewest + 1));
    return FieldOf(DrawGame(random, fewest + more));
}

std::uint16_t &AnyGiven(std::mt19937 &random, CandidateField &field)
{
    std::size_t place = random() % 81;
    while (field[place] == AnyNumber) {
        place = random() % 81;
    }
    return field[place];
}

CandidateField DrawOneWrongGiven(std::mt19937 &random)
{
    CandidateField field = DrawGivens(random, 12, 31);
    AnyGiven(random, field) = DrawBit(random);
    return field;
}

CandidateField DrawTwoClashingGivens(std::mt19937 &random)
{
    CandidateField field = DrawGivens(random, 8, 31);
    const std::size_t column = random() % 9;
    const std::size_t row = random() % 9;
    const std::size_t other = (row + 1 + random() % 8) % 9;
    const std::uint16_t number = DrawBit(random);
    field[9 * row + column] = number;
    field[9 * other + column] = number;
    return field;
}

bool SeeEachOther(std::size_t a, std::size_t b)
{
    return a / 9 == b / 9 || a % 9 == b % 9 || (a / 27 == b / 27 && a % 9 / 3 == b % 9 / 3);
}

CandidateField DrawLateContradictions(std::mt19937 &random)
{
    CandidateField field{};
    field.fill(AnyNumber);
    const std::size_t tries = 16 + random() % 16;
    for (std::size_t k = 0; k < tries; ++k) {
        const std::size_t place = random() % 81;
        const std::uint16_t number = DrawBit(random);
        bool clashes = false;
        for (std::size_t other = 0; other < 81; ++other) {
            clashes = clashes || (SeeEachOther(place, other) && field[other] == number);
        }
        if (!clashes) {
            field[place] = number;
        }
    }
    return field;
}

// The numbers of a complete grid with so many others, or as many without it.
CandidateField DrawFewCandidates(std::mt19937 &random, int others)
{
    CandidateField field{};
    const bool hasFilling = random() % 2 == 0;
    if (hasFilling) {
        field = DrawFilled(random);
    }
    for (std::uint16_t &cell : field) {
        for (int k = 0; k < others; ++k) {
            cell |= hasFilling ? DrawBit(random) : 0;
        }
        if (!hasFilling) {
            cell = DrawMask(random, others + static_cast<int>(random() % 2));
        }
    }
    return field;
}

CandidateField DrawPatternedPairs(std::mt19937 &random)
{
    CandidateField field = DrawFilled(random);
    std::array<unsigned, 9> partners{1, 2, 3, 4, 5, 6, 7, 8, 9};
    std::ranges::shuffle(partners, random);
    for (std::uint16_t &cell : field) {
        cell |= Bit(partners[static_cast<std::size_t>(std::countr_zero(cell)) - 1]);
    }
    for (auto spoilt = random() % 4; spoilt > 0; --spoilt) {
        field[random() % 81] = DrawMask(random, 2);
    }
    return field;
}

} // namespace

std::string_view NameOf(FieldFamily family)
{
    constexpr std::array<std::string_view, FieldFamilies.size()> names{"sparse",
                                                                       "dense",
                                                                       "one wrong given",
                                                                       "two clashing givens",
                                                                       "late contradictions",
                                                                       "pairs",
                                                                       "patterned pairs",
                                                                       "three candidates"};
    return names[static_cast<std::size_t>(family)];
}

CandidateField DrawField(std::mt19937 &random, FieldFamily family)
{
    switch (family) {
    case FieldFamily::Sparse:
        return DrawGivens(random, 0, 19);
    case FieldFamily::Dense:
        return DrawGivens(random, 30, 79);
    case FieldFamily::OneWrongGiven:
        return DrawOneWrongGiven(random);
    case FieldFamily::TwoClashingGivens:
        return DrawTwoClashingGivens(random);
    case FieldFamily::LateContradictions:
        return DrawLateContradictions(random);
    case FieldFamily::Pairs:
        return DrawFewCandidates(random, 1);
    case FieldFamily::PatternedPairs:
        return DrawPatternedPairs(random);
    case FieldFamily::ThreeCandidates:
        return DrawFewCandidates(random, 2);
    }
    return {};
}

Field InScanOrder(const CandidateField &field)
{
    Field words{};
    for (std::size_t k = 0; k < words.size(); ++k) {
        words[k] = field[static_cast<std::size_t>((Cells[k].Row - 1) * 9 + Cells[k].Column - 1)];
    }
    return words;
}

void SetField(const CandidateField &field)
{
    const Field words = InScanOrder(field);
    for (std::size_t k = 0; k < words.size(); ++k) {
        WordAt(Cells[k]) = words[k] | (CandidatesIn(words[k]) == 1 ? GivenBit : 0);
    }
}

std::int64_t FieldsToCompare(std::int64_t usual)
{
    const char *more = std::getenv("KELVARINE_FIELDS");
    return more == nullptr ? usual : std::stoll(more);
}

} // namespace kelvarine::testing
