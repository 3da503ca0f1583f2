// The help, as far as the seam asks for it.
#include "ui/presentation.h"

namespace kelvarine {

void ShowHelpTopic(int /*topic*/)
{
    ShowMessage("The help file was not found.");
}

} // namespace kelvarine
