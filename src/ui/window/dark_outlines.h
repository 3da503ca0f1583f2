// Boxes that can be seen on a dark desktop: the toolkit's own style draws the outlines of check
// boxes, options and text boxes darker than their window, which leaves nothing of them where that
// is dark.
#pragma once

namespace kelvarine {

// Has the style draw such outlines lighter than a dark window. Nothing where the desktop brings a
// style of its own, nor on a light window. To be called once.
void LightenDarkOutlines();

} // namespace kelvarine
