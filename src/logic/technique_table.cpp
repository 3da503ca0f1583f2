#include "logic/technique_table.h"

#include "logic/singles.h"

namespace kelvarine {

namespace {

constexpr std::array Rows{
    TechniqueRow{
        .Number = 1,
        .ReportName = "Naked single",
        .DriverApply = {FindUnplacedLastCandidate, FindUnplacedNakedSingle, ApplyNakedSingles},
        .Driver = {ApplyNakedSingles},
        .DriverRunsAll = false,
        .AlertScan = {FindUnplacedLastCandidate, FindUnplacedNakedSingle},
    },
    TechniqueRow{
        .Number = 2,
        .ReportName = "Hidden single",
        .DriverApply = {FindUnplacedHiddenSingle, ApplyHiddenSingles},
        .Driver = {FindUnplacedHiddenSingle, ApplyHiddenSingles},
        .DriverRunsAll = false,
        .AlertScan = {FindUnplacedHiddenSingle},
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
