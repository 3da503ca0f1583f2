#include "support/widget_all_events.h"

#include "support/widget_program.h"

#include <QAccessible>
#include <QTimer>
#include <QtTest>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <utility>

namespace kelvarine::testing {

namespace {

bool isRecording = false;
std::vector<std::string> told;

std::string KindOf(QAccessible::Event kind)
{
    switch (kind) {
    case QAccessible::Focus:
        return "Focus";
    case QAccessible::NameChanged:
        return "NameChanged";
    default:
        return std::to_string(kind);
    }
}

std::string RoleOf(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Table:
        return "table";
    case QAccessible::Cell:
        return "cell";
    case QAccessible::StaticText:
        return "text";
    default:
        return std::to_string(role);
    }
}

void Note(const QAccessibleEvent &event)
{
    QAccessibleInterface *item = event.accessibleInterface();
    if (item != nullptr && item->isValid()) {
        told.push_back(KindOf(event.type()) + " " + RoleOf(item->role()) + " " +
                       item->text(QAccessible::Name).toStdString());
    }
}

} // namespace

std::vector<std::string> EventsDuring(const std::function<void()> &act)
{
    told.clear();
    isRecording = true;
    act();
    // Two rounds: what an action puts off may put off its telling.
    for (int round = 0; round < 2; ++round) {
        bool over = false;
        QTimer::singleShot(0, [&] { over = true; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return over; }, Patience));
    }
    isRecording = false;
    return std::exchange(told, {});
}

std::vector<std::string> OfKind(const std::string &kind, std::vector<std::string> events)
{
    std::erase_if(events, [&](const std::string &one) { return !one.starts_with(kind + " "); });
    return events;
}

} // namespace kelvarine::testing

// The toolkit's libraries find this one before their own, to which it hands on.
void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    if (kelvarine::testing::isRecording) {
        kelvarine::testing::Note(*event);
    }
    using Update = void (*)(QAccessibleEvent *);
    static const auto update = reinterpret_cast<Update>(
        ::dlsym(RTLD_NEXT, "_ZN11QAccessible19updateAccessibilityEP16QAccessibleEvent"));
    update(event);
}
