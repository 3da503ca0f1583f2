#include "ui/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int Farthest = 1 << 20; // pixels; a settings file may hold anything

QRect RectangleOf(const WindowPlace &place)
{
    const auto within = [](std::int32_t value, int least) {
        return std::clamp(value, least, Farthest);
    };
    return {within(place.Left, -Farthest), within(place.Top, -Farthest), within(place.Width, 1),
            within(place.Height, 1)};
}

int AreaIn(const QScreen &screen, const QRect &window)
{
    const QRect part = screen.availableGeometry() & window;
    return part.width() * part.height();
}

// The screen that shows most of a window; the main one where none shows any of it.
QRect ScreenFor(const QRect &window)
{
    const QScreen *best = QGuiApplication::primaryScreen();
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (AreaIn(*screen, window) > AreaIn(*best, window)) {
            best = screen;
        }
    }
    return best->availableGeometry();
}

} // namespace

void RestorePlace(QWidget &window, const WindowPlace &place)
{
    if (place.Width <= 0 || place.Height <= 0) {
        return;
    }
    const QRect wanted = RectangleOf(place);
    const QRect screen = ScreenFor(wanted);
    window.resize(wanted.size().boundedTo(screen.size()));
    window.move(std::clamp(wanted.left(), screen.left(),
                           std::max(screen.left(), screen.right() + 1 - window.width())),
                std::clamp(wanted.top(), screen.top(),
                           std::max(screen.top(), screen.bottom() + 1 - window.height())));
}

WindowPlace PlaceOf(const QWidget &window)
{
    return {window.x(), window.y(), window.width(), window.height()};
}

} // namespace kelvarine
