// A table of labels as assistive tools see it: cells with a heading for each row and column.
#pragma once

namespace kelvarine {

// From here on every table of labels is described to tools.
void DescribeLabelTablesToTools();

} // namespace kelvarine
