// The buttons of the toolbar as assistive tools see them: a name that stays while the sign changes,
// what a press would do now, and a press that acts as soon as the tool no longer waits for it.
#pragma once

namespace kelvarine {

// Makes the toolkit describe the buttons of the toolbar this way. Further calls do nothing.
void DescribeToolsToTools();

} // namespace kelvarine
