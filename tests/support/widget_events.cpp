#include "support/widget_events.h"

#include "board/geometry.h"
#include "support/widget_modal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QtTest>

namespace kelvarine::testing {

void SendMouse(QWidget *widget, QEvent::Type type, QPoint place, Qt::MouseButton button,
               Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(type, place, widget->mapToGlobal(QPointF(place)), button, buttons, modifiers);
    QApplication::sendEvent(widget, &event);
}

void Click(QWidget *widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    SendMouse(widget, QEvent::MouseButtonPress, place, button, button, modifiers);
    SendMouse(widget, QEvent::MouseButtonRelease, place, button, Qt::NoButton, modifiers);
}

void MovePointerTo(const QWidget &widget)
{
    QWidget *window = widget.window();
    QTest::mouseMove(window->windowHandle(), widget.mapTo(window, widget.rect().center()));
}

void SendKey(QWidget *widget, QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(type, key, modifiers);
    QApplication::sendEvent(widget, &event);
}

QPoint CentreOf(int column, int row)
{
    return {CellX(column) + CellWidth / 2, CellY(row) + CellHeight / 2};
}

QPoint PlaceOf(int column, int row, int number)
{
    return {CellX(column) + CellWidth * (2 * ((number - 1) % 3) + 1) / 6,
            CellY(row) + CellHeight * (2 * ((number - 1) / 3) + 1) / 6};
}

ToolButtonWidget *ToolButtonOf(const MainWindow &window, int index)
{
    return window.findChild<ToolButtonWidget *>(QStringLiteral("cmdTool%1").arg(index));
}

std::vector<std::string> CloseModals(const std::function<void()> &action)
{
    std::vector<std::string> seen;
    WhileModal<QWidget>(action, [&](QWidget &window) {
        std::string words = window.windowTitle().toStdString();
        if (const auto *box = qobject_cast<QMessageBox *>(&window)) {
            words += ": " + box->text().toStdString();
        }
        seen.push_back(words);
        if (auto *dialog = qobject_cast<QDialog *>(&window)) {
            dialog->reject();
        } else {
            window.close();
        }
    });
    return seen;
}

} // namespace kelvarine::testing
