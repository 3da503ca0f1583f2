#include "logic/technique_table.h"

#include "logic/fish.h"
#include "logic/hidden_groups.h"
#include "logic/intersections.h"
#include "logic/naked_groups.h"
#include "logic/singles.h"

namespace kelvarine {

namespace {

// A search with its size settled.
template <void (*Search)(std::int32_t mode, Flag &found, std::int32_t size), std::int32_t Size>
void Sized(std::int32_t mode, Flag &found)
{
    Search(mode, found, Size);
}

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
