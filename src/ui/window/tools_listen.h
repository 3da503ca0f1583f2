// Whether assistive tools listen to the program.
#pragma once

namespace kelvarine {

// True while they do. Cheap, unlike the making of what they are told.
bool ToolsListen();

} // namespace kelvarine
