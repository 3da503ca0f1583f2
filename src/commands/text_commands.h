// The four commands that bring a position in and out as text.
#pragma once

namespace kelvarine {

// Put the position on the clipboard, as a framed drawing or as a single line.
void mnuCopyGridFormat();
void mnuCopySingleLineFormat();

// Begin the game that the clipboard, or a text that the player types, holds. Too little text is
// told or asked about, and on No the game in hand goes on untouched.
void mnuGameClipboard();
void mnuGameTextString();

} // namespace kelvarine
