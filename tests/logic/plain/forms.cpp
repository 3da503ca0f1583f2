#include "logic/plain/forms.h"

#include "grid/grid.h"
#include "logic/plain/fish.h"
#include "logic/plain/hidden_groups.h"
#include "logic/plain/hinge_wings.h"
#include "logic/plain/intersections.h"
#include "logic/plain/naked_groups.h"
#include "logic/plain/remote_pairs.h"
#include "logic/plain/singles.h"
#include "logic/plain/singles_chains.h"
#include "logic/plain/xy_chains.h"
#include "logic/technique_masks.h"

#include <algorithm>
#include <array>

namespace kelvarine::testing::plain {

namespace {

template <auto Search, std::int32_t Size>
void Sized(std::int32_t mode, Flag &found)
{
    Search(mode, found, Size);
}

void SearchXYWings(std::int32_t mode, Flag &found)
{
    SearchXYChains(mode, 3, 3, found);
}

void SearchAllXYChains(std::int32_t mode, Flag &found)
{
    SearchXYChains(mode, 0, MaxXYLinks, found);
}

// Marks in one search; tells the shortest chain first.
void ScanXYChains(std::int32_t mode, Flag &found)
{
    if (mode == 1) {
        SearchAllXYChains(mode, found);
        return;
    }
    for (std::int32_t cells = 2; cells <= MaxXYLinks && HintText.empty(); ++cells) {
        SearchXYChains(mode, cells, cells, found);
    }
}

// A technique that runs the same operations wherever it runs.
constexpr Form Same(std::int32_t number, const OperationList &operations)
{
    return {number, operations, operations, operations};
}

constexpr OperationList LargeHingeWings{Sized<SearchHingeWings, 4>, Sized<SearchHingeWings, 5>,
                                        Sized<SearchHingeWings, 6>, Sized<SearchHingeWings, 7>,
                                        Sized<SearchHingeWings, 8>, Sized<SearchHingeWings, 9>};

constexpr std::array Forms{
    Form{NakedSingle,
         {FindUnplacedLastCandidate, FindUnplacedNakedSingle, ApplyNakedSingles},
         {ApplyNakedSingles},
         {FindUnplacedLastCandidate, FindUnplacedNakedSingle, Sized<FindNakedGroup, 1>}},
    Form{HiddenSingle,
         {FindUnplacedHiddenSingle, ApplyHiddenSingles},
         {FindUnplacedHiddenSingle, ApplyHiddenSingles},
         {FindUnplacedHiddenSingle, Sized<FindHiddenGroup, 1>}},
    Form{NakedPair, {ApplyNakedPairs}, {ApplyNakedPairs}, {Sized<FindNakedGroup, 2>}},
    Same(HiddenPair, {Sized<FindHiddenGroup, 2>}),
    Same(NakedTriple, {Sized<FindNakedGroup, 3>}),
    Same(HiddenTriple, {Sized<FindHiddenGroup, 3>}),
    Same(NakedQuad, {Sized<FindNakedGroup, 4>}),
    Same(HiddenQuad, {Sized<FindHiddenGroup, 4>}),
    Same(Intersection, {FindIntersections}),
    Same(XWing, {Sized<SearchFishColumns, 2>, Sized<SearchFishRows, 2>}),
    Same(Swordfish, {Sized<SearchFishColumns, 3>, Sized<SearchFishRows, 3>}),
    Same(Jellyfish, {Sized<SearchFishColumns, 4>, Sized<SearchFishRows, 4>}),
    Same(XYWing, {SearchXYWings}),
    Same(kelvarine::RemotePairs, {SearchRemotePairs}),
    Form{XYChain, {SearchAllXYChains}, {SearchAllXYChains}, {ScanXYChains}},
    Same(XYZWing, {Sized<SearchHingeWings, 3>}),
    Same(HingeWing, LargeHingeWings),
    Same(SinglesChain, {SearchSinglesChains}),
};

} // namespace

const Form *FindForm(std::int32_t number)
{
    const auto *const form = std::ranges::find(Forms, number, &Form::Number);
    return form == Forms.end() ? nullptr : form;
}

} // namespace kelvarine::testing::plain
