#include "logic/hinge_wings.h"

#include "logic/chain_search.h"

namespace kelvarine {

namespace {

// The search of a hinge runs twice, with wings in its column or box and with wings in its row or
// box. The passes differ in one lead-in as well: that of wings in the line, some of them outside
// the box, and none elsewhere in the box; intended.
struct Pass {
    HouseKind Line;
    std::string_view LineLeadIn;
};

constexpr std::string_view ConflictLeadIn = "There's a conflict with ";

constexpr std::array Passes{
    Pass{HouseKind::Column, ConflictLeadIn},
    Pass{HouseKind::Row, "There's "},
};

struct Search {
    std::int32_t Mode;
    Flag &Found;
    std::int32_t Size;
    std::array<CellSet, 10> Pairs{}; // by number: cells with it and one other candidate
    int Hinge = 0;
    const Pass *Current = nullptr;
    int Number = 0;
    std::size_t WingCount = 0; // wings of the number, in the lists from element 1 on
    bool OutsideBox = false;   // a wing in the line lies outside the hinge's box
    bool BoxWing = false;      // a wing was found in the box only
    bool Removed = false;      // a removal may have made other cells hinges
};

CellSet HingeCells(std::int32_t size)
{
    return CellsWhere(
        [=](CellWord word) { return CandidatesIn(word) == size && (word & GivenBit) == 0; });
}

CellSet LineOf(const Search &search)
{
    return HouseSetOf(CellOf(search.Hinge), search.Current->Line);
}

CellSet BoxOf(const Search &search)
{
    return HouseSetOf(CellOf(search.Hinge), HouseKind::Box);
}

// Finds Pairs.
void FindPairs(Search &search)
{
    search.Pairs.fill(NoCells);
    CellSet twos = CellsWhere([](CellWord word) { return CandidatesIn(word) == 2; });
    for (; twos.Any(); twos.DropFirst()) {
        const CellWord pair = WordOf(twos.First()) & CandidateMask;
        for (CellWord rest = pair; rest != 0; rest &= rest - 1) {
            search.Pairs[static_cast<std::size_t>(std::countr_zero(rest))].Add(twos.First());
        }
    }
}

// ---- Words ---------------------------------------------------------------------------------

std::string WingName(std::int32_t size)
{
    return size == 3 ? "XYZ-Wing" : size == 4 ? "WXYZ-Wing" : "Hinge-Wing";
}

void Tease(const Search &search)
{
    const bool lineOnly = search.OutsideBox && !search.BoxWing;
    HintText = lineOnly ? search.Current->LineLeadIn : ConflictLeadIn;
    HintText += (search.Size == 3 ? "an " : "a ") + WingName(search.Size) + ".";
}

void Locate(const Search &search)
{
    HintText += MessageLineEnd;
    HintText += MessageLineEnd;
    HintText += "The hinge cell is " + NameOf(CellOf(search.Hinge));
}

Cell Wing(std::size_t i)
{
    return MakeCell(ChainColumns[i], ChainRows[i]);
}

void Explain(const Search &search, Cell target)
{
    HintTitle = WingName(search.Size);
    HintText = "Cell " + NameOf(target) + " contains a " + std::to_string(search.Number) +
               " which conflicts with:";
    HintText += MessageLineEnd;
    HintText += "     hinge cell " + NameOf(CellOf(search.Hinge)) + " and ";
    HintText += MessageLineEnd;
    HintText += "     wing cells ";
    for (std::size_t i = 1; i <= search.WingCount; ++i) {
        HintText += NameOf(Wing(i)) + " ";
        WordAt(Wing(i)) |= HintDomainBit;
    }
    WordOf(search.Hinge) |= HintCellBit;
}

// ---- Targets -------------------------------------------------------------------------------

void TakeNumber(Search &search, int target)
{
    CellWord &word = WordOf(target);
    word &= ~BitOf(search.Number);
    search.Removed = true;
    FindPairs(search);
}

// Acts on the targets among some cells, in scan order.
bool ActOn(Search &search, CellSet cells)
{
    for (CellSet rest = cells; rest.Any(); rest.DropFirst()) {
        const int target = rest.First();
        const CellWord word = WordOf(target);
        if ((word & ScratchMark2) != 0 || (word & BitOf(search.Number)) == 0) {
            continue;
        }
        if (ActOnTarget(
                search.Mode, search.Found, CellOf(target),
                [&](CellWord &) { TakeNumber(search, target); }, [&] { Tease(search); },
                [&] { Locate(search); }, [&] { Explain(search, CellOf(target)); })) {
            return true;
        }
    }
    return false;
}

// All wings stand. What sees the hinge and all of them depends on where they are.
bool ActOnTargets(Search &search)
{
    const CellSet line = LineOf(search);
    const CellSet box = BoxOf(search);
    if (search.OutsideBox) {
        return ActOn(search, search.BoxWing ? line & box : line);
    }
    if (search.BoxWing) {
        return ActOn(search, box);
    }
    return ActOn(search, line) || ActOn(search, box);
}

// ---- Wings ---------------------------------------------------------------------------------

// Looks for a wing with the number and one other in the line and then in the box; in either the
// first in scan order is taken.
bool FindWing(Search &search, int other)
{
    const CellSet pairs = search.Pairs[static_cast<std::size_t>(search.Number)] &
                          search.Pairs[static_cast<std::size_t>(other)];
    const CellSet inLine = pairs & LineOf(search);
    const CellSet inBox = pairs & BoxOf(search);
    if (!inLine.Any() && !inBox.Any()) {
        return false;
    }
    const int wing = inLine.Any() ? inLine.First() : inBox.First();
    search.OutsideBox = search.OutsideBox || !BoxOf(search).Has(wing);
    search.BoxWing = search.BoxWing || !inLine.Any();
    ++search.WingCount;
    ChainColumns[search.WingCount] = CellOf(wing).Column;
    ChainRows[search.WingCount] = CellOf(wing).Row;
    WordOf(wing) |= ScratchMark2;
    return true;
}

// Finds a wing for each other candidate of the hinge, up to the first that has none. Wings found
// so far keep their mark.
bool FindWings(Search &search)
{
    const CellWord bit = BitOf(search.Number);
    for (CellWord rest = WordOf(search.Hinge) & CandidateMask & ~bit; rest != 0; rest &= rest - 1) {
        if (!FindWing(search, std::countr_zero(rest))) {
            return false;
        }
    }
    return true;
}

bool RunPass(Search &search)
{
    const CellWord hinge = WordOf(search.Hinge);
    for (search.Number = 1; search.Number <= 9; ++search.Number) {
        search.WingCount = 0;
        search.OutsideBox = false;
        search.BoxWing = false;
        if ((hinge & BitOf(search.Number)) != 0 && FindWings(search) && ActOnTargets(search)) {
            return true;
        }
    }
    // This clears the wings of number 9 alone, if there are any. Those of lower numbers keep their
    // mark and are no targets for the rest of the call; intended.
    for (std::size_t i = 1; i <= search.WingCount; ++i) {
        WordAt(Wing(i)) &= ~ScratchMark2;
    }
    return false;
}

// Whether any peer of the hinge holds two of its candidates and nothing else. Without one nothing
// happens.
bool HasWings(const Search &search)
{
    CellSet once = NoCells;
    CellSet twice = NoCells;
    for (CellWord rest = WordOf(search.Hinge) & CandidateMask; rest != 0; rest &= rest - 1) {
        const CellSet pairs = search.Pairs[static_cast<std::size_t>(std::countr_zero(rest))];
        twice = twice | (once & pairs);
        once = once | pairs;
    }
    return (twice & PeersOf(search.Hinge)).Any();
}

bool RunPasses(Search &search)
{
    if (!HasWings(search)) {
        return false;
    }
    for (const Pass &pass : Passes) {
        search.Current = &pass;
        if (RunPass(search)) {
            return true;
        }
    }
    return false;
}

} // namespace

void SearchHingeWings(std::int32_t mode, Flag &found, std::int32_t size)
{
    Search search{.Mode = mode, .Found = found, .Size = size};
    CellSet hinges = HingeCells(size);
    if (hinges.Any()) {
        FindPairs(search);
    }
    while (hinges.Any()) {
        search.Hinge = hinges.First();
        WordOf(search.Hinge) |= ScratchMark2;
        if (RunPasses(search)) {
            return;
        }
        WordOf(search.Hinge) &= ~ScratchMark2;
        hinges.DropFirst();
        if (search.Removed) {
            hinges = HingeCells(size).After(search.Hinge);
            search.Removed = false;
        }
    }
}

} // namespace kelvarine
