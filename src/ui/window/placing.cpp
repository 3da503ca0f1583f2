#include "ui/window/placing.h"

#include "ui/window/main_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int FarAway = 1'000'000;
constexpr int RoomBeside = 740; // pixels that the widest of the screens beside the board takes

// Size of a window with its frame. Before a window is shown, its frame is taken for as large as
// that of the main window.
QSize FramedSize(const QWidget &window)
{
    return window.size() + Window()->frameGeometry().size() - Window()->size();
}

} // namespace

QRect ScreenAt(const QPoint &point)
{
    const QScreen *screen = QGuiApplication::screenAt(point);
    return (screen != nullptr ? screen : Window()->screen())->availableGeometry();
}

QPoint FirstPlace(const QSize &size, const QRect &screen)
{
    const QPoint middle = screen.center() - QRect({}, size).center();
    const int beside = screen.right() + 1 - RoomBeside - size.width();
    return KeptOnScreen({{std::min(middle.x(), beside), middle.y()}, size}, screen);
}

QPoint PlaceBeside(const QRect &other, const QSize &size, const QRect &screen)
{
    const int right = other.right() + 1;
    const int left = other.left() - size.width();
    int x = right;
    if (right + size.width() > screen.right() + 1 && left >= screen.left()) {
        x = left;
    }
    return KeptOnScreen({QPoint(x, other.top()), size}, screen);
}

QPoint KeptOnScreen(const QRect &window, const QRect &screen)
{
    const int x = std::min(window.left(), screen.right() + 1 - window.width());
    const int y = std::min(window.top(), screen.bottom() + 1 - window.height());
    return {std::max(x, screen.left()), std::max(y, screen.top())};
}

bool HasRoomBeside(const QWidget &window)
{
    const QRect main = Window()->frameGeometry();
    const QRect room = ScreenAt(main.center());
    const QSize size = FramedSize(window);
    return !QRect(PlaceBeside(main, size, room), size).intersects(main);
}

void OpenAt(QWidget &window, const WindowPlace &place)
{
    // Any number may stand in a file; no screen reaches this far.
    const QPoint corner(std::clamp(place.Left, -FarAway, FarAway),
                        std::clamp(place.Top, -FarAway, FarAway));
    if (place.Width > 0 && place.Height > 0) {
        const QSize screen = ScreenAt(corner).size();
        window.resize(QSize(place.Width, place.Height).boundedTo(screen));
    }
    const QSize size = FramedSize(window);
    if (place == WindowPlace{}) {
        const QRect main = Window()->frameGeometry();
        window.move(PlaceBeside(main, size, ScreenAt(main.center())));
    } else {
        const QRect wanted(corner, size);
        window.move(KeptOnScreen(wanted, ScreenAt(wanted.center())));
    }
}

void BringToFront(QWidget &window)
{
    // At a start the main window is to have the keyboard, and no screen asks for it.
    const QWindow *main = Window()->windowHandle();
    const bool starting = main != nullptr && !main->isExposed();
    window.setAttribute(Qt::WA_ShowWithoutActivating, starting);
    if (window.isMinimized()) {
        window.showNormal();
    } else {
        window.show();
    }
    if (!starting) {
        window.raise();
        window.activateWindow();
    }
}

void KeepPlace(const QWidget &window, WindowPlace &place)
{
    if (window.isVisible() && !window.isMinimized()) {
        place = {window.x(), window.y(), window.width(), window.height()};
    }
}

} // namespace kelvarine
