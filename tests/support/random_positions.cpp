#include "support/random_positions.h"

#include "grid/grid.h"

#include <algorithm>

namespace kelvarine::testing {

namespace {

bool OneIn(std::mt19937 &random, unsigned count)
{
    return random() % count == 0;
}

CellWord &WordAtPlace(std::size_t place)
{
    return Grid[place % 9 + 1][place / 9 + 1];
}

template <typename List>
void Shuffle(List &list, std::mt19937 &random)
{
    for (std::size_t k = list.size(); k > 1; --k) {
        std::swap(list[k - 1], list[random() % k]);
    }
}

std::array<std::size_t, 81> ShuffledPlaces(std::mt19937 &random)
{
    std::array<std::size_t, 81> places{};
    for (std::size_t k = 0; k < places.size(); ++k) {
        places[k] = k;
    }
    Shuffle(places, random);
    return places;
}

// The numbers on Grid that the cell at a place sees.
CellWord SeenFrom(std::size_t place)
{
    CellWord numbers = 0;
    for (std::size_t other = 0; other < 81; ++other) {
        const bool sees = other / 9 == place / 9 || other % 9 == place % 9 ||
                          (other / 27 == place / 27 && other % 9 / 3 == place % 9 / 3);
        const CellWord word = WordAtPlace(other) & CandidateMask;
        if (sees && other != place && (word & (word - 1)) == 0) {
            numbers |= word;
        }
    }
    return numbers;
}

void SetSelectionsAndMarks(std::mt19937 &random)
{
    const unsigned selected = 2 + random() % 20;
    for (std::size_t place = 0; place < 81; ++place) {
        if (OneIn(random, selected)) {
            WordAtPlace(place) |= SelectedBit;
        }
        if (OneIn(random, 4)) {
            WordAtPlace(place) |= random() & ~(CandidateMask | GivenBit | SelectedBit);
        }
    }
}

// Every number of the solution from place number open of an order on.
void PlaceNumbers(std::mt19937 &random, const Solution &solution,
                  const std::array<std::size_t, 81> &order, std::size_t open)
{
    Grid = {};
    for (std::size_t k = open; k < order.size(); ++k) {
        const CellWord given = OneIn(random, 4) ? 0 : GivenBit;
        WordAtPlace(order[k]) = BitOf(solution[order[k]]) | given;
    }
}

void SetSound(std::mt19937 &random, const Solution &solution, int open, int stale)
{
    const auto order = ShuffledPlaces(random);
    const auto openCells = static_cast<std::size_t>(open);
    // Stale candidates are those of the moment when a few more cells were open.
    PlaceNumbers(random, solution, order, std::min<std::size_t>(81, openCells + stale));
    const unsigned thinning = 2 + random() % 12;
    for (std::size_t k = 0; k < openCells; ++k) {
        CellWord candidates = CandidateMask & ~SeenFrom(order[k]);
        for (int number = 1; number <= 9; ++number) {
            if (OneIn(random, thinning) && number != solution[order[k]]) {
                candidates &= ~BitOf(number);
            }
        }
        WordAtPlace(order[k]) = candidates;
    }
    for (std::size_t k = openCells; k < order.size(); ++k) {
        WordAtPlace(order[k]) |= BitOf(solution[order[k]]);
    }
}

void SetClashing(std::mt19937 &random, const Solution &solution, int open)
{
    const auto order = ShuffledPlaces(random);
    PlaceNumbers(random, solution, order, static_cast<std::size_t>(open));
    for (std::size_t k = 0; k < static_cast<std::size_t>(open); ++k) {
        // Nothing, a few candidates or many, whatever fits.
        const CellWord few = random() & random();
        WordAtPlace(order[k]) = (OneIn(random, 3) ? 0 : few) & (CandidateMask | random() % 2);
    }
    for (unsigned change = random() % 6; change > 0; --change) {
        CellWord &word = WordAtPlace(random() % 81);
        word = (word & ~CandidateMask) | BitOf(1 + static_cast<int>(random() % 9));
    }
}

void SetAbsurd(std::mt19937 &random, int open)
{
    const unsigned emptiness = 1 + random() % 10;
    for (std::size_t place = 0; place < 81; ++place) {
        CellWord word = random();
        if (static_cast<int>(random() % 81) >= open) {
            word = (word & ~CandidateMask) | BitOf(1 + static_cast<int>(random() % 9));
        } else if (OneIn(random, emptiness)) {
            word &= random() & random();
        }
        WordAtPlace(place) = word;
    }
}

} // namespace

std::string DrawSolution(std::mt19937 &random)
{
    // Three boxes that do not see each other at random, then one of the first solutions of that.
    std::string start(81, '.');
    for (std::size_t box = 0; box < 3; ++box) {
        std::string digits = "123456789";
        Shuffle(digits, random);
        for (std::size_t k = 0; k < 9; ++k) {
            start[(box * 3 + k / 3) * 9 + box * 3 + k % 3] = digits[k];
        }
    }
    const std::vector<Solution> several = SolutionsOf(FieldOf(start), 5);
    const Solution &solution = several[random() % several.size()];
    std::string digits;
    for (const std::uint8_t number : solution) {
        digits += static_cast<char>('0' + number);
    }
    return digits;
}

std::string DrawGame(std::mt19937 &random, int givens)
{
    std::string game = DrawSolution(random);
    const auto order = ShuffledPlaces(random);
    for (auto k = static_cast<std::size_t>(givens); k < order.size(); ++k) {
        game[order[k]] = '.';
    }
    return game;
}

Solution SetRandomPosition(std::mt19937 &random, PositionKind kind, int open)
{
    Solution solution{};
    const std::string digits = DrawSolution(random);
    std::ranges::transform(digits, solution.begin(),
                           [](char digit) { return static_cast<std::uint8_t>(digit - '0'); });
    switch (kind) {
    case PositionKind::Sound:
        SetSound(random, solution, open, 0);
        break;
    case PositionKind::Stale:
        SetSound(random, solution, open, 1 + static_cast<int>(random() % 30));
        break;
    case PositionKind::Clashing:
        SetClashing(random, solution, open);
        break;
    case PositionKind::Absurd:
        SetAbsurd(random, open);
        return solution;
    }
    SetSelectionsAndMarks(random);
    return solution;
}

} // namespace kelvarine::testing
