#include "ui/window/menu_bar.h"

#include "outside/events.h"
#include "outside/window.h"
#include "ui/controls/finger_room.h"

#include <QActionEvent>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QProxyStyle>

#include <algorithm>
#include <utility>

namespace kelvarine {

namespace {

// In this style a bar has what stands behind its separator at its far end.
class FarEndStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override
    {
        return hint == SH_DrawMenuBarSeparator
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, answer);
    }

    // The application's style is not asked where a control has one of its own.
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
        return type == CT_MenuBarItem
                   ? QSize(WithRoomForFinger(usual.width()), WithRoomForFinger(usual.height()))
                   : usual;
    }
};

} // namespace

MenuBar::MenuBar(QWidget *parent) : QMenuBar(parent)
{
    // In the bar of the desktop the clock would be out of sight.
    setNativeMenuBar(false);
    auto *style = new FarEndStyle;
    style->setParent(this);
    setStyle(style);
}

void MenuBar::BeginFarEnd()
{
    addSeparator();
}

QMenu *MenuBar::AddMenu(const QString &name, const QString &caption)
{
    QMenu *menu = addMenu(caption);
    menu->setObjectName(name);
    menu->installEventFilter(this);
    return menu;
}

void MenuBar::actionEvent(QActionEvent *event)
{
    // The toolkit works out its places anew and forgets where the player is. While he is in the bar
    // the new caption stands in the old place.
    if (event->type() == QEvent::ActionChanged && activeAction() != nullptr) {
        lateChange = event->action();
        update();
        return;
    }
    QMenuBar::actionEvent(event);
}

void MenuBar::paintEvent(QPaintEvent *event)
{
    if (lateChange != nullptr && activeAction() == nullptr) {
        QActionEvent late(QEvent::ActionChanged, std::exchange(lateChange, nullptr));
        QMenuBar::actionEvent(&late);
    }
    QMenuBar::paintEvent(event);
}

bool MenuBar::eventFilter(QObject *watched, QEvent *event)
{
    // The toolkit has this bar watch its window, too.
    auto *menu = qobject_cast<QMenu *>(watched);
    if (menu == nullptr) {
        return QMenuBar::eventFilter(watched, event);
    }
    if (event->type() == QEvent::Show) {
        MoveIntoWindow(*menu);
    } else if (event->type() == QEvent::Hide) {
        CallFromEventLoop([bar = QPointer(this)] {
            if (bar != nullptr) {
                bar->FocusBoardAfterMenus();
            }
        });
    } else if (event->type() == QEvent::KeyPress &&
               static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        // The toolkit would leave the keyboard with the bar.
        menu->close();
        Leave();
        return true;
    }
    return false;
}

// Moves a menu that is about to be seen into the window, as far as that is wide enough.
void MenuBar::MoveIntoWindow(QMenu &menu) const
{
    const QRect inside(window()->mapToGlobal(QPoint(0, 0)), window()->size());
    const int rightmost = std::max(inside.left(), inside.right() + 1 - menu.width());
    menu.move(std::min(menu.x(), rightmost), menu.y());
}

// The focus comes back when the player has left the menus, and not from one to the next.
void MenuBar::FocusBoardAfterMenus()
{
    if (QApplication::activePopupWidget() == nullptr && activeAction() == nullptr) {
        Leave();
    }
}

void MenuBar::Leave()
{
    // To give the focus away is not enough: the toolkit takes the next Alt for the end of this
    // walk.
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QMenuBar::keyPressEvent(&escape);
    FocusBoard();
}

} // namespace kelvarine
