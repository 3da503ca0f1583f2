// Windows that hold the program until they are answered, looked at while they stand.
#pragma once

#include <QApplication>
#include <QTimer>

#include <functional>
#include <utility>

namespace kelvarine::testing {

// Runs an action, and looks at each modal window of a kind that it brings into view; again and
// again where the look leaves it standing, but not from within a look at the very same window.
// Returns how often.
template <typename Box>
int WhileModal(const std::function<void()> &action, const std::function<void(Box &)> &look)
{
    int looks = 0;
    QWidget *inHand = nullptr;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        auto *box = qobject_cast<Box *>(QApplication::activeModalWidget());
        if (box == nullptr || box == inHand || !box->isVisible()) {
            return;
        }
        ++looks;
        QWidget *const before = std::exchange(inHand, box);
        look(*box);
        inHand = before;
    });
    watch.start(1);
    action();
    return looks;
}

} // namespace kelvarine::testing
