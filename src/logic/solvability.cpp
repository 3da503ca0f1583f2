#include "logic/solvability.h"

#include <bit>

namespace kelvarine {

namespace {

constexpr std::int64_t MostNodes = 3'000'000;

constexpr std::size_t CellCount = 81;

// What each cell may hold, by CellIndex.
using Field = std::array<CellWord, CellCount>;

std::size_t IndexOf(Cell cell)
{
    return static_cast<std::size_t>(CellIndex(cell));
}

// The next decision: a few pairs of a cell and a number of which one must hold.
struct Choice {
    std::array<std::size_t, 9> Places{};
    std::array<CellWord, 9> Numbers{};
    std::size_t Count = 10; // of no choice found yet, more than any
};

void OfferCell(const Field &field, std::size_t cell, Choice &choice)
{
    const CellWord candidates = field[cell];
    const auto count = static_cast<std::size_t>(std::popcount(candidates));
    if (count >= choice.Count) {
        return;
    }
    choice.Count = 0;
    for (CellWord rest = candidates; rest != 0; rest &= rest - 1) {
        choice.Places[choice.Count] = cell;
        choice.Numbers[choice.Count] = rest & (~rest + 1);
        ++choice.Count;
    }
}

void OfferHouse(const Field &field, const House &house, CellWord number, Choice &choice)
{
    std::array<std::size_t, 9> places{};
    std::size_t count = 0;
    for (const Cell cell : house.Cells) {
        if ((field[IndexOf(cell)] & number) != 0) {
            places[count++] = IndexOf(cell);
        }
    }
    if (count < choice.Count) {
        choice.Places = places;
        choice.Numbers.fill(number);
        choice.Count = count;
    }
}

// Search with the tightest decision first: the cell with the fewest numbers or the house with the
// fewest places for one. Decided cells are dropped from the undecided ones and so never chosen
// again.
class Search {
public:
    // True when the field can be filled, or when the search gave up.
    bool MayBeFilled(Field field, std::array<bool, CellCount> decided)
    {
        ++nodes_;
        const Choice choice = Tightest(field, decided);
        if (choice.Count > 9) {
            return true; // nothing is left to be decided
        }
        for (std::size_t k = 0; k < choice.Count; ++k) {
            if (nodes_ > MostNodes) {
                return true;
            }
            Field next = field;
            std::array<bool, CellCount> nextDecided = decided;
            if (Decide(next, nextDecided, choice.Places[k], choice.Numbers[k]) &&
                MayBeFilled(next, nextDecided)) {
                return true;
            }
        }
        return false;
    }

private:
    static Choice Tightest(const Field &field, const std::array<bool, CellCount> &decided)
    {
        Choice choice;
        for (std::size_t cell = 0; cell < CellCount && choice.Count > 1; ++cell) {
            if (!decided[cell]) {
                OfferCell(field, cell, choice);
            }
        }
        for (const House &house : Houses) {
            CellWord placed = 0;
            for (const Cell cell : house.Cells) {
                placed |= decided[IndexOf(cell)] ? field[IndexOf(cell)] : 0;
            }
            for (CellWord rest = CandidateMask & ~placed; rest != 0 && choice.Count > 1;
                 rest &= rest - 1) {
                OfferHouse(field, house, rest & (~rest + 1), choice);
            }
        }
        return choice;
    }

    // Puts a number in a cell. False when another cell of its houses has nothing left.
    static bool Decide(Field &field, std::array<bool, CellCount> &decided, std::size_t place,
                       CellWord number)
    {
        field[place] = number;
        decided[place] = true;
        for (const std::uint8_t house : CellHouses[place]) {
            for (const Cell cell : Houses[house].Cells) {
                const std::size_t other = IndexOf(cell);
                if (other != place && (field[other] &= ~number) == 0) {
                    return false;
                }
            }
        }
        return true;
    }

    std::int64_t nodes_ = 0;
};

} // namespace

bool IsProvenUnsolvable(const GridTable &grid)
{
    Field field{};
    for (const Cell cell : Cells) {
        field[IndexOf(cell)] = grid[cell.Column][cell.Row] & CandidateMask;
    }
    return !Search().MayBeFilled(field, {});
}

} // namespace kelvarine
