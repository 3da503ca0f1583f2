// Runs of the driver from full pencilmarks, ended without the walk. From there trial and error
// comes to every way to fill the grid, each once and in the order of the scan, so a search of its
// own can tell at once where the walk would end after passes without number.
#pragma once

#include <cstdint>

namespace kelvarine {

// ApplyLogic in the modes SolveForPlayer, CountSolutions and ListSolutions25, in microseconds where
// every given has one candidate, every other cell all nine, and SolveMask holds trial and error and
// a single of the levels; anywhere else it is ApplyLogic. Returns and leaves what ApplyLogic does,
// but no technique is used then and UsedMask stays 0. It yields before it starts and after each
// listed solution; a search stopped there leaves the last one on the grid.
std::int32_t RunByFillings(std::int32_t mode);

// Puts the first way to fill Grid in the order of the scan on Grid. False when there is none.
bool FillGrid();

} // namespace kelvarine
