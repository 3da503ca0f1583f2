// Files that are written while the program goes on: nobody waits for the disk. A thread hands the
// bytes to the system and touches nothing else of the program.
#pragma once

#include "outside/whole_file.h"

#include <string>
#include <vector>

namespace kelvarine {

struct LaterWrite {
    std::string Path;
    std::string Bytes;
    Reach HowFar = Reach::Disk;
};

// Begins to replace files as ReplaceWholeFile does, one after the other; at most one of each reach,
// of which no other write may be under way. Where one fails that is to come no further than the
// system, its file is taken away, so that nothing older is taken for it. Where the system has no
// thread left, all is written before this returns.
void BeginWrite(std::vector<LaterWrite> files);

// True from the beginning of a write until its end: of one reach, or of any.
bool IsWriting(Reach reach);
bool IsWriting();

// Waits for the end of what was begun last. Returns the system's words when it failed, and nothing
// when it went well or was told already.
std::string EndWrite(Reach reach);

} // namespace kelvarine
