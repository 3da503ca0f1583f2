#include "ui/controls/level_label.h"

#include "ui/controls/finger_room.h"
#include "ui/controls/focus_frame.h"
#include "ui/window/described_kind.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <utility>

namespace kelvarine {

namespace {

constexpr int ArrowSide = 7;
constexpr int ArrowRoom = ArrowSide + 4; // at the right end

bool OpensMenu(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Menu:
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    case Qt::Key_F10:
        return event.modifiers() == Qt::ShiftModifier;
    default:
        return false;
    }
}

// A button that opens a menu, and not the text that the toolkit takes a label for.
class LevelAccess : public QAccessibleWidget {
public:
    explicit LevelAccess(LevelLabel *level) : QAccessibleWidget(level, QAccessible::ButtonMenu)
    {
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList{pressAction(), showMenuAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name == pressAction() || name == showMenuAction()) {
            static_cast<LevelLabel *>(object())->OpenLevels();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }
};

} // namespace

LevelLabel::LevelLabel(QWidget *parent, std::function<void()> openMenu)
    : QLabel(parent), openLevels(std::move(openMenu))
{
    DescribeKindToTools<LevelLabel, LevelAccess>();
    setFocusPolicy(Qt::StrongFocus);
    // The press and the keys below are all that opens the menu.
    setContextMenuPolicy(Qt::PreventContextMenu);
    setContentsMargins(3, 0, ArrowRoom, 0);
    setAccessibleDescription("Space, Enter or the menu key opens the levels");
}

QSize LevelLabel::sizeHint() const
{
    const QSize text = QLabel::sizeHint();
    return {text.width(), WithRoomForFinger(std::max(text.height(), fontMetrics().height() + 4))};
}

void LevelLabel::OpenLevels()
{
    openLevels();
}

void LevelLabel::ShowOpen(bool open)
{
    QPalette colours;
    if (open) {
        colours.setColor(QPalette::WindowText, QColor(255, 0, 0));
    }
    setPalette(colours);
}

void LevelLabel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton || event->button() == Qt::LeftButton) {
        openLevels();
    }
}

void LevelLabel::keyPressEvent(QKeyEvent *event)
{
    NoteKey(*this);
    if (OpensMenu(*event)) {
        openLevels();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void LevelLabel::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    NoteFocus(*this, *event);
}

void LevelLabel::focusOutEvent(QFocusEvent *event)
{
    QLabel::focusOutEvent(event);
    NoteFocus(*this, *event);
}

void LevelLabel::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(underMouse() ? palette().color(QPalette::Light)
                                  : palette().color(QPalette::Button));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = QRect(width() - ArrowRoom + 2, (height() - ArrowSide) / 2, ArrowSide, ArrowSide);
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, this);
    PaintFocus(*this, painter, rect());
    painter.end();
    QLabel::paintEvent(event);
}

void LevelLabel::enterEvent(QEnterEvent *event)
{
    QLabel::enterEvent(event);
    update();
}

void LevelLabel::leaveEvent(QEvent *event)
{
    QLabel::leaveEvent(event);
    update();
}

} // namespace kelvarine
