// Kinds of widgets that have a description of their own for assistive tools.
#pragma once

#include <QAccessible>
#include <QObject>

namespace kelvarine {

// Has the toolkit describe each widget of a kind, now and later, by a description that is made of
// it; from the second time on nothing. Before anything asks for the description of such a widget,
// because that is kept: best in its constructor.
template <typename Widget, typename Description>
void DescribeKindToTools()
{
    [[maybe_unused]] static const bool done = [] {
        QAccessible::installFactory(
            [](const QString & /*kind*/, QObject *object) -> QAccessibleInterface * {
                auto *widget = qobject_cast<Widget *>(object);
                return widget == nullptr ? nullptr : new Description(widget);
            });
        return true;
    }();
}

} // namespace kelvarine
