#include "ui/window/tools_listen.h"

#include "input/told.h"

#include <QAccessible>

namespace kelvarine {

namespace {

// The toolkit tells when tools begin to listen and when they cease.
class Watch : public QAccessible::ActivationObserver {
public:
    Watch()
    {
        QAccessible::installActivationObserver(this);
    }
    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;
    ~Watch() override
    {
        QAccessible::removeActivationObserver(this);
    }

    void accessibilityActiveChanged(bool active) override
    {
        Active = active;
        if (!active) {
            SetToldDefaults(); // who comes later is not told what happened meanwhile
        }
    }

    bool Active = QAccessible::isActive();
};

} // namespace

bool ToolsListen()
{
    static const Watch watch;
    return watch.Active;
}

} // namespace kelvarine
