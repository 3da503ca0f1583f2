// The help's window.
#pragma once

namespace kelvarine {

// Shows the help at the topic of a context number: 202, 204 to 216 the tabs of the configuration
// screen, 600 the file window; any other number is the default topic.
void ShowHelpTopic(int context);

} // namespace kelvarine
