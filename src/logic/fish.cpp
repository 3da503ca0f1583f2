#include "logic/fish.h"

#include "grid/names.h"
#include "logic/number_sets.h"
#include "logic/places.h"
#include "logic/technique.h"

#include <bit>

namespace kelvarine {

namespace {

// What differs between the two forms of the search: the houses, and the words, which are not
// quite each other's mirror. That is intended.
struct FishForm {
    std::size_t FirstBase; // index into Houses of line 1 of the base
    std::size_t FirstCover;
    std::string (*BaseName)(int line);
    std::string (*CoverName)(int line);
    std::string_view BaseWord;
    std::string_view CoverWord;
    std::string_view Intersection;
    std::string_view OtherTitle; // of a size without a name; none keeps the title that stood
};

constexpr FishForm ByColumns{
    .FirstBase = FirstColumn,
    .FirstCover = FirstRow,
    .BaseName = ColumnName,
    .CoverName = RowName,
    .BaseWord = "Columns: ",
    .CoverWord = "    Rows: ",
    .Intersection = "-row intersection ",
    .OtherTitle = "Conflict with a Whale ",
};

constexpr FishForm ByRows{
    .FirstBase = FirstRow,
    .FirstCover = FirstColumn,
    .BaseName = RowName,
    .CoverName = ColumnName,
    .BaseWord = "Rows: ",
    .CoverWord = "    Columns: ",
    .Intersection = "-row exclusive intersection. ",
    .OtherTitle = "",
};

// A number and the base lines that show it; lines are bits 1..9, as numbers are.
struct Fish {
    const FishForm &Form;
    std::int32_t Size;
    int Number;
    CellWord Base;
    Places Cover; // cover lines, bit 0 for line 1
};

// ---- Words and marks -----------------------------------------------------------------------

// By size, 2 up.
constexpr std::array<std::string_view, 3> Teasers{
    "There's a conflict with an X-wing.",
    "There's a conflict with a Swordfish.",
    "There's a conflict with a Jellyfish.",
};
constexpr std::array<std::string_view, 3> Titles{
    "Conflict with X-wing",
    "Conflict with Swordfish",
    "Conflict with Jellyfish",
};

bool HasName(std::int32_t size)
{
    return size >= 2 && size <= 4;
}

void LocateFish(const Fish &fish)
{
    HintText += MessageLineEnd;
    HintText += "It involves the number " + std::to_string(fish.Number);
}

// Entitles a fish. The search finds none without a name; the title of the others is kept.
void Entitle(const Fish &fish)
{
    if (HasName(fish.Size)) {
        HintTitle = Titles[static_cast<std::size_t>(fish.Size - 2)];
    } else if (!fish.Form.OtherTitle.empty()) {
        HintTitle = fish.Form.OtherTitle;
    }
}

std::string NamesOfLines(CellWord lines, std::string (*name)(int line))
{
    std::string names;
    for (int line = 1; line <= 9; ++line) {
        if ((lines & BitOf(line)) != 0) {
            names += name(line);
        }
    }
    return names;
}

// Marks all of the base lines, whether in the cover or not, by where the number stands.
void MarkBase(const Fish &fish)
{
    const CellWord bit = BitOf(fish.Number);
    for (std::size_t line = 1; line <= 9; ++line) {
        if ((fish.Base & BitTable[line]) == 0) {
            continue;
        }
        for (const Cell cell : Houses[fish.Form.FirstBase + line - 1].Cells) {
            WordAt(cell) |= (WordAt(cell) & bit) != 0 ? HintCellBit : HintDomainBit;
        }
    }
}

// Appends to the text that stands.
void Explain(const Fish &fish, Cell target)
{
    const FishForm &form = fish.Form;
    const std::string size = std::to_string(fish.Size);
    HintText += "Cell " + NameOf(target) + " contains a " + std::to_string(fish.Number);
    HintText += " which conflicts with a " + size + "-column/" + size;
    HintText += form.Intersection;
    HintText += MessageLineEnd;
    Entitle(fish);
    if (HasName(fish.Size)) {
        HintText += form.BaseWord;
        HintText += NamesOfLines(fish.Base, form.BaseName);
    }
    HintText += form.CoverWord;
    HintText += NamesOfLines(CellWord{fish.Cover} << 1, form.CoverName);
    MarkBase(fish);
}

// ---- Search --------------------------------------------------------------------------------

// The cover lines where a number has one place alone.
Places LoneCovers(const PlacesByHouse &places, const FishForm &form)
{
    Places lone = 0;
    for (std::size_t line = 0; line < 9; ++line) {
        const bool alone = CountPlaces(places[form.FirstCover + line]) == 1;
        lone |= static_cast<Places>((alone ? 1U : 0U) << line);
    }
    return lone;
}

// For each base line, from 0, the numbers for which it can be part of a fish: those with one
// place up to size places in it, and none of them alone in its cover line.
std::array<Places, 9> FittingNumbers(const PlaceTable &table, const FishForm &form,
                                     std::int32_t size)
{
    std::array<Places, 9> fitting{};
    for (std::size_t n = 1; n <= 9; ++n) {
        const Places lone = LoneCovers(table.Of[n], form);
        for (std::size_t line = 0; line < 9; ++line) {
            const Places places = table.Of[n][form.FirstBase + line];
            const Places count = CountPlaces(places);
            const bool fits = count != 0 && count <= size && (places & lone) == 0;
            fitting[line] |= static_cast<Places>(fits ? BitTable[n] : 0);
        }
    }
    return fitting;
}

// Calls use(line) for each of some lines, bits 1..9, in ascending order, line 1 being 0.
template <typename Use>
void ForLines(CellWord lines, const Use &use)
{
    for (; lines != 0; lines &= lines - 1) {
        use(static_cast<std::size_t>(std::countr_zero(lines)) - 1);
    }
}

// The cover of a number over some base lines, or none when the pattern does not stand: the cover
// has as many lines as the base, and each of them meets the number in two base lines at least.
// A fish with a cover line that is met once would be sound too; passing it over is intended.
Places CoverOf(const PlacesByHouse &places, const FishForm &form, CellWord base, std::int32_t size)
{
    Places once = 0;
    Places twice = 0;
    ForLines(base, [&](std::size_t line) {
        const Places held = places[form.FirstBase + line];
        twice |= static_cast<Places>(once & held);
        once |= held;
    });
    return once == twice && CountPlaces(once) == size ? once : Places{0};
}

// Acts on the number in the cover outside the base, cover line by cover line. True when the call
// is over.
bool ActOnFish(const Fish &fish, std::int32_t mode, Flag &found)
{
    const CellWord bit = BitOf(fish.Number);
    const auto name = static_cast<std::size_t>(fish.Size - 2);
    for (Places cover = fish.Cover; cover != 0; cover &= static_cast<Places>(cover - 1)) {
        const House &line = Houses[fish.Form.FirstCover + FirstPlace(cover)];
        for (std::size_t k = 0; k < line.Cells.size(); ++k) {
            const Cell cell = line.Cells[k];
            const CellWord word = WordAt(cell);
            if ((fish.Base & BitTable[k + 1]) != 0 || (word & bit) == 0 || (word & GivenBit) != 0) {
                continue;
            }
            if (ActOnTarget(
                    mode, found, cell, [=](CellWord &target) { target &= ~bit; },
                    [=] { Tease(Teasers[name]); }, [&] { LocateFish(fish); },
                    [&] { Explain(fish, cell); })) {
                return true;
            }
        }
    }
    return false;
}

void SearchFish(const FishForm &form, std::int32_t mode, Flag &found, std::int32_t size)
{
    // One base line meets no cover line twice, and a fifth line of a larger selection would have
    // no cells: neither finds anything.
    if (!HasName(size)) {
        return;
    }
    const PlaceTable &table = PlacesNow();
    std::array<Places, 9> fitting = FittingNumbers(table, form, size);
    for (const CellWord base : NumberSets(size)) {
        CellWord numbers = CandidateMask;
        ForLines(base, [&](std::size_t line) { numbers &= fitting[line]; });
        for (; numbers != 0; numbers &= numbers - 1) {
            const int number = LowestCandidate(numbers);
            const PlacesByHouse &places = table.Of[static_cast<std::size_t>(number)];
            const Places cover = CoverOf(places, form, base, size);
            if (cover == 0) {
                continue;
            }
            if (ActOnFish({form, size, number, base, cover}, mode, found)) {
                return;
            }
            if (mode == ModeChange) {
                fitting = FittingNumbers(PlacesNow(), form, size);
            }
        }
    }
}

} // namespace

void SearchFishColumns(std::int32_t mode, Flag &found, std::int32_t size)
{
    SearchFish(ByColumns, mode, found, size);
}

void SearchFishRows(std::int32_t mode, Flag &found, std::int32_t size)
{
    SearchFish(ByRows, mode, found, size);
}

} // namespace kelvarine
