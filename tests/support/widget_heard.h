// What the program itself tells assistive tools. The toolkit drops it where no tool runs, so the
// linker leads the program's calls through here.
#pragma once

#include <functional>

class QAccessibleEvent;

namespace kelvarine::testing {

// Is given each event; nothing listens when empty.
extern std::function<void(const QAccessibleEvent &event)> Hear;

} // namespace kelvarine::testing
