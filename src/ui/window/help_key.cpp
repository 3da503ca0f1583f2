#include "ui/window/help_key.h"

#include "game/search.h"
#include "grid/grid.h"
#include "outside/help.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVariant>
#include <QWidget>

namespace kelvarine {

namespace {

constexpr const char *ContextName = "helpContext";

// Sees every key before the window that it goes to.
class HelpKeyWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(receiver);
        if (widget == nullptr || event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) {
            return false;
        }
        // During a search the key goes its way, and the board asks whether to stop.
        if (SearchActive != False) {
            return false;
        }
        if (widget->window() == Window()) {
            ReadyForCommand(); // a key of the board ends the win display, and then acts
        }
        ShowHelpTopic(widget->window()->property(ContextName).toInt());
        return true;
    }
};

} // namespace

void SetHelpContext(QWidget *window, int context)
{
    window->setProperty(ContextName, context);
}

void WatchForHelpKey()
{
    qApp->installEventFilter(new HelpKeyWatch(qApp));
}

} // namespace kelvarine
