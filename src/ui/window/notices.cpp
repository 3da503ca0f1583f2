#include "ui/window/notices.h"

#include "ui/window/described_kind.h"
#include "ui/window/main_window.h"
#include "ui/window/part_accessible.h"
#include "ui/window/tools_listen.h"

#include <QAccessibleWidget>

#include <algorithm>
#include <array>
#include <utility>

namespace kelvarine {

namespace {

// So many words can wait to be read by a tool that is busy. Each has an object of its own, since
// tools keep what an object is called.
constexpr std::size_t NoticeCount = 8;

class NoticeAccessible : public PartAccessible {
public:
    explicit NoticeAccessible(QString said) : words(std::move(said))
    {
    }

    [[nodiscard]] bool isValid() const override
    {
        return Window() != nullptr;
    }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(Window()->Client);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? words : QString();
    }
    [[nodiscard]] QRect rect() const override
    {
        return {}; // nothing of it is seen
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return QAccessible::Notification;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        return state;
    }

private:
    QString words;
};

class ClientAccessible : public QAccessibleWidget {
public:
    explicit ClientAccessible(ClientArea *client) : QAccessibleWidget(client, QAccessible::Client)
    {
    }
    ClientAccessible(const ClientAccessible &) = delete;
    ClientAccessible &operator=(const ClientAccessible &) = delete;
    ~ClientAccessible() override
    {
        for (std::size_t place = 0; place < Held(); ++place) {
            QAccessible::deleteAccessibleInterface(notices[place]);
        }
    }

    [[nodiscard]] int childCount() const override
    {
        return QAccessibleWidget::childCount() + static_cast<int>(Held());
    }
    [[nodiscard]] QAccessibleInterface *child(int index) const override
    {
        const int widgets = QAccessibleWidget::childCount();
        if (index < widgets) {
            return QAccessibleWidget::child(index);
        }
        const auto place = static_cast<std::size_t>(index - widgets);
        return place < Held() ? QAccessible::accessibleInterface(notices[place]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *wanted) const override
    {
        for (std::size_t place = 0; place < Held(); ++place) {
            if (QAccessible::accessibleInterface(notices[place]) == wanted) {
                return QAccessibleWidget::childCount() + static_cast<int>(place);
            }
        }
        return QAccessibleWidget::indexOfChild(wanted);
    }

    void Say(const QString &words)
    {
        QAccessible::Id &place = notices[said % NoticeCount];
        if (said >= NoticeCount) {
            QAccessible::deleteAccessibleInterface(place);
        }
        ++said;
        // Registered, it belongs to the toolkit until it is deleted above.
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
        place = QAccessible::registerAccessibleInterface(new NoticeAccessible(words));
        QAccessibleEvent event(QAccessible::accessibleInterface(place), QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&event);
    }

private:
    [[nodiscard]] std::size_t Held() const
    {
        return std::min(said, NoticeCount);
    }

    std::array<QAccessible::Id, NoticeCount> notices{};
    std::size_t said = 0;
};

} // namespace

void DescribeNoticesToTools()
{
    DescribeKindToTools<ClientArea, ClientAccessible>();
}

void Tell(const QString &words)
{
    if (words.isEmpty() || Window() == nullptr || !ToolsListen()) {
        return;
    }
    static_cast<ClientAccessible *>(QAccessible::queryAccessibleInterface(Window()->Client))
        ->Say(words);
}

} // namespace kelvarine
