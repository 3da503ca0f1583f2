#include "ui/window/opening.h"

#include "outside/events.h"
#include "ui/window/main_window.h"
#include "ui/window/placing.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <cmath>

namespace kelvarine {

namespace {

bool IsSizedByTheDesktop(const QWidget &window)
{
    return window.isMaximized() || window.isFullScreen() || window.isMinimized();
}

// The largest size up to a wanted one that leaves room for the frame.
QSize SizeWithin(const QWidget &window, const QSize &wanted, const QRect &room,
                 const QMargins &frame)
{
    const QSize inner = room.marginsRemoved(frame).size();
    return &window == Window() ? Window()->SizeWithin(wanted, inner) : wanted.boundedTo(inner);
}

// The frame of a window on view. Where it ends within a logical pixel it is taken for a pixel
// wider.
QMargins FrameOf(const QWidget &window)
{
    const QMargins frame = window.windowHandle()->frameMargins();
    const double ratio = window.devicePixelRatioF();
    return ratio == std::floor(ratio) ? frame : frame + 1;
}

// The frame of a window is known when it is on view and not before. Until then it is taken for that
// of the main window, or, for this, as wide as the style draws frames.
QMargins ExpectedFrame(const QWidget &window)
{
    if (&window != Window() && Window()->isVisible() && !IsSizedByTheDesktop(*Window())) {
        return FrameOf(*Window());
    }
    return {1, window.style()->pixelMetric(QStyle::PM_TitleBarHeight), 1, 1};
}

// A window that has been shown and is not in its place yet.
class Opening : public QObject {
public:
    explicit Opening(QWidget &shown) : QObject(&shown), window(shown), wanted(shown.size())
    {
        const bool placed = window.testAttribute(Qt::WA_Moved);
        const QMargins frame = ExpectedFrame(window);
        const QRect room =
            ScreenAt(placed ? window.geometry().center() : window.screen()->geometry().center());
        size = SizeWithin(window, wanted, room, frame);
        corner = window.pos();
        const QPoint kept = KeptOnScreen({corner, size.grownBy(frame)}, room);
        window.resize(size);
        if (placed && (kept != corner || size != wanted)) {
            corner = kept;
            // Any other way the window would be put there without its frame.
            window.windowHandle()->setFramePosition(corner);
        }
        frameMoves = window.geometry().topLeft() == corner;
        window.windowHandle()->installEventFilter(this);
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Expose:
        case QEvent::Move:
            // When the window itself has taken the event.
            CallFromEventLoop([opening = QPointer(this)] {
                if (opening != nullptr) {
                    opening->Settle();
                }
            });
            break;
        case QEvent::Hide:
            deleteLater();
            break;
        default:
            break;
        }
        return false;
    }

private:
    // The window has a frame, and where this has put it is not told yet.
    [[nodiscard]] bool IsUnderWay(const QMargins &frame) const
    {
        return frameMoves && !frame.isNull() && window.geometry().topLeft() == corner &&
               HasPlaces();
    }

    // On Wayland no window knows where it stands.
    static bool HasPlaces()
    {
        return !QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    }

    // Fits the window by the frame that it really has.
    void Settle()
    {
        const QMargins frame = window.windowHandle()->frameMargins();
        if (settled || !window.windowHandle()->isExposed() || IsUnderWay(frame)) {
            return;
        }
        settled = true;
        deleteLater();
        if (!IsSizedByTheDesktop(window)) {
            Fit(frame, FrameOf(window));
        }
    }

    void Fit(const QMargins &frame, const QMargins &roomyFrame)
    {
        const QRect room = window.screen()->availableGeometry();
        // A window that the desktop has given another size is not grown.
        const QSize most = window.size() == size ? wanted : window.size();
        const QSize fitting = SizeWithin(window, most, room, roomyFrame);
        const QRect whole(window.geometry().topLeft() - QPoint(frame.left(), frame.top()),
                          fitting.grownBy(roomyFrame));
        const QPoint inner = KeptOnScreen(whole, room) + QPoint(frame.left(), frame.top());
        if (const QRect place(inner, fitting); place != window.geometry()) {
            window.setGeometry(place);
        }
    }

    QWidget &window;
    QSize wanted;
    QSize size;      // asked for when it was shown
    QPoint corner;   // the same
    bool frameMoves; // the frame comes to stand at that corner, and the window farther in
    bool settled = false;
};

bool OpensNow(const QWidget &widget, const QEvent &event)
{
    const Qt::WindowType type = widget.windowType();
    return event.type() == QEvent::Show && !event.spontaneous() &&
           (type == Qt::Window || type == Qt::Dialog) &&
           !widget.testAttribute(Qt::WA_DontShowOnScreen) && !IsSizedByTheDesktop(widget);
}

class OpeningWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *widget = qobject_cast<QWidget *>(watched);
        if (widget != nullptr && widget->isWindow() && Window() != nullptr &&
            OpensNow(*widget, *event)) {
            new Opening(*widget);
        }
        return false;
    }
};

} // namespace

void WatchOpeningWindows()
{
    qApp->installEventFilter(new OpeningWatch(Window()));
}

} // namespace kelvarine
