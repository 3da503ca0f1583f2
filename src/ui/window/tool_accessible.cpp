#include "ui/window/tool_accessible.h"

#include "input/spoken.h"
#include "input/toolbar.h"
#include "outside/events.h"
#include "paint/text.h"
#include "ui/window/described_kind.h"
#include "ui/window/toolbar_widget.h"

#include <QAccessibleWidget>

namespace kelvarine {

namespace {

class ToolAccessible : public QAccessibleWidget {
public:
    explicit ToolAccessible(ToolButtonWidget *button)
        : QAccessibleWidget(button, QAccessible::Button), number(button->Number())
    {
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return Text(SpokenTool(number));
        case QAccessible::Description:
            return Text(SpokenToolUse(number));
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
            return;
        }
        // A box may come up, and the tool waits for its answer until this is over.
        CallFromEventLoop([pressed = number] { ToolPressed(pressed); });
    }

private:
    std::int32_t number;
};

} // namespace

void DescribeToolsToTools()
{
    DescribeKindToTools<ToolButtonWidget, ToolAccessible>();
}

} // namespace kelvarine
