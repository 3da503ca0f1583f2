#include "logic/technique_table.h"

#include "grid/grid.h"
#include "logic/fish.h"
#include "logic/hidden_groups.h"
#include "logic/hinge_wings.h"
#include "logic/intersections.h"
#include "logic/naked_groups.h"
#include "logic/remote_pairs.h"
#include "logic/singles.h"
#include "logic/singles_chains.h"
#include "logic/technique_masks.h"
#include "logic/xy_chains.h"

#include <algorithm>

namespace kelvarine {

namespace {

// A search with its size settled.
template <void (*Search)(std::int32_t mode, Flag &found, std::int32_t size), std::int32_t Size>
void Sized(std::int32_t mode, Flag &found)
{
    Search(mode, found, Size);
}

// Chains of exactly three cells.
void SearchXYWings(std::int32_t mode, Flag &found)
{
    SearchXYChains(mode, 3, 3, found);
}

void SearchAllXYChains(std::int32_t mode, Flag &found)
{
    SearchXYChains(mode, 0, MaxXYLinks, found);
}

constexpr OperationList LargeHingeWings{Sized<SearchHingeWings, 4>, Sized<SearchHingeWings, 5>,
                                        Sized<SearchHingeWings, 6>, Sized<SearchHingeWings, 7>,
                                        Sized<SearchHingeWings, 8>, Sized<SearchHingeWings, 9>};

constexpr std::array Rows{
    TechniqueRow{
        .Number = NakedSingle,
        .ReportName = "Naked single",
        .Caption = "   Naked singles",
        .Level = RatedEasy,
        .HelpPage = "naked-single",
        .DriverApply = {FindUnplacedLastCandidate, FindUnplacedNakedSingle, ApplyNakedSingles},
        .Driver = {ApplyNakedSingles},
        .DriverRunsAll = false,
        .AlertScan = {FindUnplacedLastCandidate, FindUnplacedNakedSingle, Sized<FindNakedGroup, 1>},
    },
    TechniqueRow{
        .Number = HiddenSingle,
        .ReportName = "Hidden single",
        .Caption = "   Hidden singles",
        .Level = RatedEasy,
        .HelpPage = "hidden-single",
        .DriverApply = {FindUnplacedHiddenSingle, ApplyHiddenSingles},
        .Driver = {FindUnplacedHiddenSingle, ApplyHiddenSingles},
        .DriverRunsAll = false,
        .AlertScan = {FindUnplacedHiddenSingle, Sized<FindHiddenGroup, 1>},
    },
    TechniqueRow{
        .Number = NakedPair,
        .ReportName = "Naked pair",
        .Caption = "   Naked pairs",
        .Level = RatedMedium,
        .HelpPage = "naked-pair",
        .DriverApply = {ApplyNakedPairs},
        .Driver = {ApplyNakedPairs},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindNakedGroup, 2>},
    },
    TechniqueRow{
        .Number = HiddenPair,
        .ReportName = "Hidden pair",
        .Caption = "   Hidden pairs",
        .Level = RatedHard,
        .HelpPage = "hidden-pair",
        .DriverApply = {Sized<FindHiddenGroup, 2>},
        .Driver = {Sized<FindHiddenGroup, 2>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindHiddenGroup, 2>},
    },
    TechniqueRow{
        .Number = NakedTriple,
        .ReportName = "Naked triple",
        .Caption = "   Naked triples",
        .Level = RatedMedium,
        .HelpPage = "naked-triple",
        .DriverApply = {Sized<FindNakedGroup, 3>},
        .Driver = {Sized<FindNakedGroup, 3>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindNakedGroup, 3>},
    },
    TechniqueRow{
        .Number = HiddenTriple,
        .ReportName = "Hidden triple",
        .Caption = "   Hidden triples",
        .Level = RatedHard,
        .HelpPage = "hidden-triple",
        .DriverApply = {Sized<FindHiddenGroup, 3>},
        .Driver = {Sized<FindHiddenGroup, 3>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindHiddenGroup, 3>},
    },
    TechniqueRow{
        .Number = NakedQuad,
        .ReportName = "Naked quad",
        .Caption = "   Naked quads",
        .Level = RatedHard,
        .HelpPage = "naked-quad",
        .DriverApply = {Sized<FindNakedGroup, 4>},
        .Driver = {Sized<FindNakedGroup, 4>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindNakedGroup, 4>},
    },
    TechniqueRow{
        .Number = HiddenQuad,
        .ReportName = "Hidden quad",
        .Caption = "   Hidden quads",
        .Level = RatedVeryHard,
        .HelpPage = "hidden-quad",
        .DriverApply = {Sized<FindHiddenGroup, 4>},
        .Driver = {Sized<FindHiddenGroup, 4>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindHiddenGroup, 4>},
    },
    TechniqueRow{
        .Number = Intersection,
        .ReportName = "Col/row/box intersection",
        .Caption = "   Col-row-box intersections",
        .Level = RatedMedium,
        .HelpPage = "intersection",
        .DriverApply = {FindIntersections},
        .Driver = {FindIntersections},
        .DriverRunsAll = false,
        .AlertScan = {FindIntersections},
    },
    TechniqueRow{
        .Number = XWing,
        .ReportName = "X-wing",
        .Caption = "   X-wing",
        .Level = RatedHard,
        .HelpPage = "x-wing",
        .DriverApply = {Sized<SearchFishColumns, 2>, Sized<SearchFishRows, 2>},
        .Driver = {Sized<SearchFishColumns, 2>, Sized<SearchFishRows, 2>},
        .DriverRunsAll = true,
        .AlertScan = {Sized<SearchFishColumns, 2>, Sized<SearchFishRows, 2>},
    },
    TechniqueRow{
        .Number = Swordfish,
        .ReportName = "Swordfish",
        .Caption = "   Swordfish",
        .Level = RatedHard,
        .HelpPage = "swordfish",
        .DriverApply = {Sized<SearchFishColumns, 3>, Sized<SearchFishRows, 3>},
        .Driver = {Sized<SearchFishColumns, 3>, Sized<SearchFishRows, 3>},
        .DriverRunsAll = true,
        .AlertScan = {Sized<SearchFishColumns, 3>, Sized<SearchFishRows, 3>},
    },
    TechniqueRow{
        .Number = Jellyfish,
        .ReportName = "Jellyfish",
        .Caption = "   Jellyfish",
        .Level = RatedVeryHard,
        .HelpPage = "jellyfish",
        .DriverApply = {Sized<SearchFishColumns, 4>, Sized<SearchFishRows, 4>},
        .Driver = {Sized<SearchFishColumns, 4>, Sized<SearchFishRows, 4>},
        .DriverRunsAll = true,
        .AlertScan = {Sized<SearchFishColumns, 4>, Sized<SearchFishRows, 4>},
    },
    TechniqueRow{
        .Number = XYWing,
        .ReportName = "XY-wing",
        .Caption = "   XY-wing",
        .Level = RatedVeryHard,
        .HelpPage = "xy-wing",
        .DriverApply = {SearchXYWings},
        .Driver = {SearchXYWings},
        .DriverRunsAll = false,
        .AlertScan = {SearchXYWings},
    },
    TechniqueRow{
        .Number = RemotePairs,
        .ReportName = "Remote pairs",
        .Caption = "   Remote pairs",
        .Level = RatedVeryHard,
        .HelpPage = "remote-pairs",
        .LinkLimit = &MaxRPLinks,
        .LimitBox = "txtMaxRPLinks",
        .DriverApply = {SearchRemotePairs},
        .Driver = {SearchRemotePairs},
        .DriverRunsAll = false,
        .AlertScan = {SearchRemotePairs},
    },
    TechniqueRow{
        .Number = XYChain,
        .ReportName = "XY-chain",
        .Caption = "   XY-chains",
        .Level = RatedVeryHard,
        .HelpPage = "xy-chain",
        .LinkLimit = &MaxXYLinks,
        .LimitBox = "txtMaxXYLinks",
        .DriverApply = {SearchAllXYChains},
        .Driver = {SearchAllXYChains},
        .DriverRunsAll = false,
        .AlertScan = {ScanXYChains},
    },
    TechniqueRow{
        .Number = XYZWing,
        .ReportName = "XYZ-wing",
        .Caption = "   XYZ-wing",
        .Level = RatedVeryHard,
        .HelpPage = "xyz-wing",
        .DriverApply = {Sized<SearchHingeWings, 3>},
        .Driver = {Sized<SearchHingeWings, 3>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<SearchHingeWings, 3>},
    },
    TechniqueRow{
        .Number = HingeWing,
        .ReportName = "Hinge-wing",
        .Caption = "   WXYZ-wing", // the logic report calls it by another name; both are intended
        .Level = RatedVeryHard,
        .HelpPage = "hinge-wing",
        .DriverApply = LargeHingeWings,
        .Driver = LargeHingeWings,
        .DriverRunsAll = false,
        .AlertScan = LargeHingeWings,
    },
    TechniqueRow{
        .Number = SinglesChain,
        .ReportName = "Singles chain",
        .Caption = "   Singles chains",
        .Level = RatedVeryHard,
        .HelpPage = "singles-chain",
        .LinkLimit = &MaxSinglesLinks,
        .LimitBox = "txtMaxSinglesLinks",
        .DriverApply = {SearchSinglesChains},
        .Driver = {SearchSinglesChains},
        .DriverRunsAll = false,
        .AlertScan = {SearchSinglesChains},
    },
    // The row that stands ready for one technique more. Settings hold its bit and its level.
    TechniqueRow{
        .Number = SinglesChain + 1,
        .ReportName = "",
        .Caption = "   Inference chains",
        .Level = RatedVeryHard,
        .HelpPage = "",
        .LimitBox = "txtMaxInferenceLinks",
        .DriverApply = {},
        .Driver = {},
        .DriverRunsAll = false,
        .AlertScan = {},
    },
};

// The rows before the one that no technique stands behind.
constexpr std::span<const TechniqueRow> RealRows(Rows.data(), Rows.size() - 1);

// Whether a row can be shown, rated and found under its number.
constexpr bool IsWhole(const TechniqueRow &row)
{
    return !row.Caption.empty() && row.Level >= RatedEasy && row.Level <= Levels &&
           &row == &Rows[static_cast<std::size_t>(row.Number) - 1];
}

static_assert(std::ranges::all_of(Rows, IsWhole), "a row lacks something or stands out of order");
static_assert(std::ranges::all_of(RealRows,
                                  [](const TechniqueRow &row) {
                                      return !row.ReportName.empty() && !row.HelpPage.empty();
                                  }),
              "a technique has no name in the report or no page in the help");

// The bits of the rows whose level is wished, of all rows with 0.
constexpr std::uint32_t BitsOfRows(std::int32_t level)
{
    std::uint32_t bits = 0;
    for (const TechniqueRow &row : Rows) {
        if (level == 0 || row.Level == level) {
            bits |= BitOf(row.Number);
        }
    }
    return bits;
}

} // namespace

const std::span<const TechniqueRow> Techniques(RealRows);
const std::span<const TechniqueRow> TechniqueRows(Rows);
const std::uint32_t TechniqueRowsMask = BitsOfRows(0);

void SetLevelDefaults()
{
    LevelTable.fill(0);
    for (std::int32_t level = RatedEasy; level <= Levels; ++level) {
        LevelTable[static_cast<std::size_t>(level)] = BitsOfRows(level);
    }
    // Trial and error is extreme, and with it every bit that no row names. Bit 0 is no technique's.
    LevelTable[Levels] |= ~(TechniqueRowsMask | BitTable[0]);
}

const TechniqueRow *FindTechnique(std::int32_t number)
{
    for (const TechniqueRow &row : Techniques) {
        if (row.Number == number) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace kelvarine
