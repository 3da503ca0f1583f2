#include "ui/window/table_focus.h"

#include "ui/window/board_widget.h"
#include "ui/window/main_window.h"

#include <QAccessible>

#include <utility>

namespace kelvarine {

namespace {

bool watching = false;
bool leftOut = false;
QAccessible::UpdateHandler usual = nullptr; // who is told where nothing is left out

bool IsTableFocus(const QAccessibleEvent &event)
{
    return event.type() == QAccessible::Focus && event.child() < 0 && Window() != nullptr &&
           event.object() == Window()->Client->Board;
}

void EndWatch()
{
    QAccessible::installUpdateHandler(usual);
    watching = false;
}

void Watch(QAccessibleEvent *event);

void BeginWatch()
{
    usual = QAccessible::installUpdateHandler(Watch);
    watching = true;
}

void Watch(QAccessibleEvent *event)
{
    EndWatch();
    if (IsTableFocus(*event)) {
        leftOut = true;
        return;
    }
    QAccessible::updateAccessibility(event);
    BeginWatch();
}

} // namespace

void LeaveOutTableFocus()
{
    if (!watching) {
        BeginWatch();
    }
}

bool TableFocusWasLeftOut()
{
    if (watching) {
        EndWatch();
    }
    return std::exchange(leftOut, false);
}

} // namespace kelvarine
