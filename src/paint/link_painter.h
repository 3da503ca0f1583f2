// Strong links and the chain of a hint, painted over the cells and under the numbers.
#pragma once

class QImage;

namespace kelvarine {

// True when DrawLinks paints anything.
bool ShowsLinks();

// Paints what the settings, the numbers in view and the chain ask for; nothing while the win
// display runs.
void DrawLinks(QImage &picture);

} // namespace kelvarine
