#include "ui/window/front.h"

#include "outside/events.h"
#include "outside/window.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QWindow>

#include <algorithm>

namespace kelvarine {

namespace {

bool IsScreen(const QWidget *window)
{
    return window != nullptr && window->isVisible() && window->parentWidget() == Window();
}

bool IsUnderWay(const QWidget *window)
{
    return window->isVisible() && window->parentWidget() == Window() &&
           !window->windowHandle()->isExposed();
}

// Waits until no window of the program is under way to the screen any more.
class ArrivalWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Expose || event->type() == QEvent::Hide) {
            CallFromEventLoop([watch = QPointer(this)] {
                if (watch != nullptr) {
                    watch->ActivateWhenAllAreThere();
                }
            });
        }
        return false;
    }

    void ActivateWhenAllAreThere()
    {
        if (!done && std::ranges::none_of(QApplication::topLevelWidgets(), IsUnderWay)) {
            done = true;
            Window()->activateWindow();
            deleteLater();
        }
    }

private:
    bool done = false;
};

} // namespace

QWidget *AskingWindow()
{
    if (QWidget *box = QApplication::activeModalWidget()) {
        return box;
    }
    QWidget *front = QApplication::activeWindow();
    const bool closing = Window() != nullptr && Window()->IsClosing();
    return IsScreen(front) && !closing ? front : Window();
}

int RunDialog(QDialog &dialog)
{
    const int result = dialog.exec();
    if (Window() != nullptr && dialog.parentWidget() == Window()) {
        FocusBoard();
    }
    return result;
}

void ActivateMainWindowLast()
{
    auto *watch = new ArrivalWatch;
    watch->setParent(Window());
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (IsUnderWay(window)) {
            window->windowHandle()->installEventFilter(watch);
        }
    }
    watch->ActivateWhenAllAreThere();
}

} // namespace kelvarine
