// A counter of solutions that others have made, measured beside ours in the same run where it is
// installed.
#pragma once

#include "benchmarks/sample.h"

#include <string>

namespace kelvarine {

// Registers a benchmark that lets qqwing count the solutions of the givens of each position. It
// takes the times that qqwing itself tells, so that its start counts for nothing, and is an error
// where qqwing is missing.
void RegisterCounterBeside(const std::string &name, const Sample &sample);

} // namespace kelvarine
