#include "support/widget_heard.h"

#include <QAccessible>

namespace kelvarine::testing {

std::function<void(const QAccessibleEvent &event)> Hear;

extern "C" {

// The names are the linker's.
// NOLINTBEGIN(clang-diagnostic-reserved-identifier)
void __real__ZN11QAccessible19updateAccessibilityEP16QAccessibleEvent(QAccessibleEvent *event);

void __wrap__ZN11QAccessible19updateAccessibilityEP16QAccessibleEvent(QAccessibleEvent *event)
{
    if (Hear) {
        Hear(*event);
    }
    __real__ZN11QAccessible19updateAccessibilityEP16QAccessibleEvent(event);
}
// NOLINTEND(clang-diagnostic-reserved-identifier)

} // extern "C"

} // namespace kelvarine::testing
