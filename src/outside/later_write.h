// Files that are written while the program goes on: nobody waits for the disk. Threads hand the
// bytes to the system and touch nothing else of the program.
#pragma once

#include "outside/whole_file.h"

#include <string>

namespace kelvarine {

// Begins to replace a file as ReplaceWholeFile does. There is one writer for each reach, and no
// other write of the same reach may be under way. What is to come to the disk waits for what was
// begun before to come into the system's hands, but not the other way round. Where that fails the
// file is taken away, so that nothing older is taken for it.
void BeginWrite(Reach reach, std::string path, std::string bytes);

// True from the beginning of a write until its end: of one reach, or of any.
bool IsWriting(Reach reach);
bool IsWriting();

// Waits for the end of what was begun last. Returns the system's words when it failed, and nothing
// when it went well or was told already.
std::string EndWrite(Reach reach);

} // namespace kelvarine
