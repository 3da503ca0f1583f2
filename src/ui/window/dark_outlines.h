// Boxes that can be seen on a dark desktop: the toolkit's own style draws the outlines of check
// boxes, options, text boxes and lists darker than their window, which leaves nothing of them where
// that is dark.
#pragma once

namespace kelvarine {

// Has the style draw such outlines lighter than a dark window, and the frames of lists in whole
// pixels of the screen. Nothing else changes, and nothing at all where the desktop brings a style
// of its own. To be called once.
void LightenDarkOutlines();

} // namespace kelvarine
