#include "ui/configure/tab_strip_access.h"

#include "game/screens.h"
#include "ui/configure/tab_strip.h"
#include "ui/window/described_kind.h"
#include "ui/window/part_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <array>
#include <memory>

namespace kelvarine {

namespace {

class TabAccess : public PartAccessible, public QAccessibleActionInterface {
public:
    TabAccess(TabStrip *tabStrip, int tabNumber) : strip(tabStrip), tab(tabNumber)
    {
    }

    [[nodiscard]] bool isValid() const override
    {
        return true;
    }
    [[nodiscard]] QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(strip);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? strip->TextOfTab(tab) : QString();
    }
    [[nodiscard]] QRect rect() const override
    {
        const QRect place = strip->PlaceOfTab(tab);
        return {strip->mapToGlobal(place.topLeft()), place.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return QAccessible::PageTab;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.selectable = true;
        state.focusable = true;
        state.selected = tab == CurrentTab;
        state.focused = tab == CurrentTab && strip->hasFocus();
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return {pressAction()};
    }
    void doAction(const QString &name) override
    {
        if (name == pressAction()) {
            strip->Choose(tab);
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString & /*name*/) const override
    {
        return {};
    }

private:
    TabStrip *strip;
    int tab;
};

class TabStripAccess : public QAccessibleWidget {
public:
    explicit TabStripAccess(TabStrip *strip) : QAccessibleWidget(strip, QAccessible::PageTabList)
    {
        for (int tab = 0; tab < TabCount; ++tab) {
            tabs[static_cast<std::size_t>(tab)] =
                QAccessible::registerAccessibleInterface(new TabAccess(strip, tab));
        }
    }
    TabStripAccess(const TabStripAccess &) = delete;
    TabStripAccess &operator=(const TabStripAccess &) = delete;
    ~TabStripAccess() override
    {
        for (const QAccessible::Id id : tabs) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    [[nodiscard]] int childCount() const override
    {
        return TabCount;
    }
    [[nodiscard]] QAccessibleInterface *child(int index) const override
    {
        return index >= 0 && index < TabCount
                   ? QAccessible::accessibleInterface(tabs[static_cast<std::size_t>(index)])
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *wanted) const override
    {
        for (int tab = 0; tab < TabCount; ++tab) {
            if (child(tab) == wanted) {
                return tab;
            }
        }
        return -1;
    }
    [[nodiscard]] QAccessibleInterface *childAt(int x, int y) const override
    {
        for (int tab = 0; tab < TabCount; ++tab) {
            if (child(tab)->rect().contains(x, y)) {
                return child(tab);
            }
        }
        return nullptr;
    }

private:
    std::array<QAccessible::Id, TabCount> tabs{};
};

} // namespace

void InstallTabStripAccess()
{
    DescribeKindToTools<TabStrip, TabStripAccess>();
}

} // namespace kelvarine
