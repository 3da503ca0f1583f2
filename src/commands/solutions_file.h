// The listed solutions as a text file.
#pragma once

namespace kelvarine {

// Asks for a file and writes the solutions to it as they are on view. A failure is told in the
// system's words.
void cmdSaveAsTextFile();

} // namespace kelvarine
