// A file that is written while the program goes on: nobody waits for the disk. A thread hands the
// bytes to the system and touches nothing else of the program.
#pragma once

#include <string>

namespace kelvarine {

// Begins to replace a file as ReplaceWholeFile does. No other write may be under way.
void BeginWrite(std::string path, std::string bytes);

// True from the beginning of a write until its end.
bool IsWriting();

// Waits for the end of what was begun last. Returns the system's words when it failed, and nothing
// when it went well or was told already.
std::string EndWrite();

} // namespace kelvarine
