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
#include "logic/xy_chains.h"

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
        .Number = 1,
        .ReportName = "Naked single",
        .DriverApply = {FindUnplacedLastCandidate, FindUnplacedNakedSingle, ApplyNakedSingles},
        .Driver = {ApplyNakedSingles},
        .DriverRunsAll = false,
        .AlertScan = {FindUnplacedLastCandidate, FindUnplacedNakedSingle, Sized<FindNakedGroup, 1>},
    },
    TechniqueRow{
        .Number = 2,
        .ReportName = "Hidden single",
        .DriverApply = {FindUnplacedHiddenSingle, ApplyHiddenSingles},
        .Driver = {FindUnplacedHiddenSingle, ApplyHiddenSingles},
        .DriverRunsAll = false,
        .AlertScan = {FindUnplacedHiddenSingle, Sized<FindHiddenGroup, 1>},
    },
    TechniqueRow{
        .Number = 3,
        .ReportName = "Naked pair",
        .DriverApply = {ApplyNakedPairs},
        .Driver = {ApplyNakedPairs},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindNakedGroup, 2>},
    },
    TechniqueRow{
        .Number = 4,
        .ReportName = "Hidden pair",
        .DriverApply = {Sized<FindHiddenGroup, 2>},
        .Driver = {Sized<FindHiddenGroup, 2>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindHiddenGroup, 2>},
    },
    TechniqueRow{
        .Number = 5,
        .ReportName = "Naked triple",
        .DriverApply = {Sized<FindNakedGroup, 3>},
        .Driver = {Sized<FindNakedGroup, 3>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindNakedGroup, 3>},
    },
    TechniqueRow{
        .Number = 6,
        .ReportName = "Hidden triple",
        .DriverApply = {Sized<FindHiddenGroup, 3>},
        .Driver = {Sized<FindHiddenGroup, 3>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindHiddenGroup, 3>},
    },
    TechniqueRow{
        .Number = 7,
        .ReportName = "Naked quad",
        .DriverApply = {Sized<FindNakedGroup, 4>},
        .Driver = {Sized<FindNakedGroup, 4>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindNakedGroup, 4>},
    },
    TechniqueRow{
        .Number = 8,
        .ReportName = "Hidden quad",
        .DriverApply = {Sized<FindHiddenGroup, 4>},
        .Driver = {Sized<FindHiddenGroup, 4>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<FindHiddenGroup, 4>},
    },
    TechniqueRow{
        .Number = 9,
        .ReportName = "Col/row/box intersection",
        .DriverApply = {FindIntersections},
        .Driver = {FindIntersections},
        .DriverRunsAll = false,
        .AlertScan = {FindIntersections},
    },
    TechniqueRow{
        .Number = 10,
        .ReportName = "X-wing",
        .DriverApply = {Sized<SearchFishColumns, 2>, Sized<SearchFishRows, 2>},
        .Driver = {Sized<SearchFishColumns, 2>, Sized<SearchFishRows, 2>},
        .DriverRunsAll = true,
        .AlertScan = {Sized<SearchFishColumns, 2>, Sized<SearchFishRows, 2>},
    },
    TechniqueRow{
        .Number = 11,
        .ReportName = "Swordfish",
        .DriverApply = {Sized<SearchFishColumns, 3>, Sized<SearchFishRows, 3>},
        .Driver = {Sized<SearchFishColumns, 3>, Sized<SearchFishRows, 3>},
        .DriverRunsAll = true,
        .AlertScan = {Sized<SearchFishColumns, 3>, Sized<SearchFishRows, 3>},
    },
    TechniqueRow{
        .Number = 12,
        .ReportName = "Jellyfish",
        .DriverApply = {Sized<SearchFishColumns, 4>, Sized<SearchFishRows, 4>},
        .Driver = {Sized<SearchFishColumns, 4>, Sized<SearchFishRows, 4>},
        .DriverRunsAll = true,
        .AlertScan = {Sized<SearchFishColumns, 4>, Sized<SearchFishRows, 4>},
    },
    TechniqueRow{
        .Number = 13,
        .ReportName = "XY-wing",
        .DriverApply = {SearchXYWings},
        .Driver = {SearchXYWings},
        .DriverRunsAll = false,
        .AlertScan = {SearchXYWings},
    },
    TechniqueRow{
        .Number = 14,
        .ReportName = "Remote pairs",
        .DriverApply = {SearchRemotePairs},
        .Driver = {SearchRemotePairs},
        .DriverRunsAll = false,
        .AlertScan = {SearchRemotePairs},
    },
    TechniqueRow{
        .Number = 15,
        .ReportName = "XY-chain",
        .DriverApply = {SearchAllXYChains},
        .Driver = {SearchAllXYChains},
        .DriverRunsAll = false,
        .AlertScan = {ScanXYChains},
    },
    TechniqueRow{
        .Number = 16,
        .ReportName = "XYZ-wing",
        .DriverApply = {Sized<SearchHingeWings, 3>},
        .Driver = {Sized<SearchHingeWings, 3>},
        .DriverRunsAll = false,
        .AlertScan = {Sized<SearchHingeWings, 3>},
    },
    TechniqueRow{
        .Number = 17,
        .ReportName = "Hinge-wing",
        .DriverApply = LargeHingeWings,
        .Driver = LargeHingeWings,
        .DriverRunsAll = false,
        .AlertScan = LargeHingeWings,
    },
    TechniqueRow{
        .Number = 18,
        .ReportName = "Singles chain",
        .DriverApply = {SearchSinglesChains},
        .Driver = {SearchSinglesChains},
        .DriverRunsAll = false,
        .AlertScan = {SearchSinglesChains},
    },
};

} // namespace

const std::span<const TechniqueRow> Techniques(Rows);

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
