#include "paint/pixel_painter.h"

#include "grid/colour.h"
#include "paint/toolkit_colour.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kelvarine {

namespace {

std::uint32_t *LineOf(const Canvas &canvas, int y)
{
    return canvas.Pixels + y * canvas.Stride;
}

void FillPixels(std::uint32_t *pixels, int left, int right, std::uint32_t value)
{
    if (left < right) {
        std::fill(pixels + left, pixels + right, value);
    }
}

// The part of an area that strokes may touch.
DeviceArea Cut(const Canvas &canvas, const DeviceArea &area)
{
    const DeviceArea &clip = canvas.Clip;
    const int left = std::clamp(area.Left, clip.Left, clip.Right);
    const int top = std::clamp(area.Top, clip.Top, clip.Bottom);
    return {left, top, std::clamp(area.Right, left, clip.Right),
            std::clamp(area.Bottom, top, clip.Bottom)};
}

void SetClip(Canvas &canvas, const DeviceArea &clip)
{
    canvas.Clip = clip;
    // Two pixels of the device and a logical one leave room for rounding and for the pen.
    canvas.FirstLine = PixelOn(canvas.Down, clip.Top - 2) - 1;
    canvas.LastLine = PixelOn(canvas.Down, clip.Bottom + 2) + 1;
}

// (below * (255 - cover) + above * cover) / 255 for the four bytes of a pixel, two at a time.
std::uint32_t Blend(std::uint32_t below, std::uint32_t above, std::uint32_t cover)
{
    constexpr std::uint32_t pairs = 0x00FF00FF;
    constexpr std::uint32_t halves = 0x00800080;
    const auto mix = [cover](std::uint32_t low, std::uint32_t high) {
        const std::uint32_t sum = low * (255 - cover) + high * cover + halves;
        return ((sum + (sum >> 8 & pairs)) >> 8) & pairs;
    };
    return mix(below & pairs, above & pairs) | mix(below >> 8 & pairs, above >> 8 & pairs) << 8;
}

std::ptrdiff_t RunsAbove(const Mask &mask, std::ptrdiff_t line)
{
    return static_cast<std::ptrdiff_t>(mask.RunsUpTo[static_cast<std::size_t>(line)]);
}

// Adds the runs of a line of a mask. A few covered pixels are no run of their own: they are blended
// faster with their neighbours than filled.
void AddRuns(Mask &mask, const std::uint8_t *covers)
{
    constexpr int leastWhole = 8;
    constexpr std::uint8_t whole = 255;
    const std::size_t first = mask.Runs.size();
    for (int x = 0; x < mask.Width;) {
        int end = x;
        while (end < mask.Width && covers[end] == whole) {
            ++end;
        }
        if (end - x >= leastWhole) {
            mask.Runs.push_back({x, end, true});
        } else if (end = std::max(end, x + 1); covers[x] != 0) {
            if (mask.Runs.size() == first || mask.Runs.back().Whole || mask.Runs.back().End != x) {
                mask.Runs.push_back({x, x, false});
            }
            mask.Runs.back().End = end;
        }
        x = end;
    }
    mask.RunsUpTo.push_back(mask.Runs.size());
}

} // namespace

Canvas CanvasOf(QImage &picture)
{
    if (picture.format() != QImage::Format_RGB32) {
        return {};
    }
    Canvas canvas;
    canvas.Pixels = reinterpret_cast<std::uint32_t *>(picture.bits());
    canvas.Stride = picture.bytesPerLine() / static_cast<qsizetype>(sizeof(std::uint32_t));
    canvas.DeviceWidth = picture.width();
    canvas.DeviceHeight = picture.height();
    canvas.Ratio = picture.devicePixelRatio();
    canvas.Across.Ratio = canvas.Ratio;
    canvas.Down.Ratio = canvas.Ratio;
    canvas.Width = static_cast<int>(std::lround(picture.width() / canvas.Ratio));
    canvas.Height = static_cast<int>(std::lround(picture.height() / canvas.Ratio));
    SetClip(canvas, {0, 0, canvas.DeviceWidth, canvas.DeviceHeight});
    return canvas;
}

Canvas Within(const Canvas &canvas, const DeviceArea &part)
{
    Canvas clipped = canvas;
    const DeviceArea clip = Cut(canvas, part);
    if (clip.Top == canvas.Clip.Top && clip.Bottom == canvas.Clip.Bottom) {
        clipped.Clip = clip; // the lines are the same, and asked for oftenest
    } else {
        SetClip(clipped, clip);
    }
    return clipped;
}

bool TouchesLines(const Canvas &canvas, int first, int last)
{
    return first <= canvas.LastLine && last >= canvas.FirstLine;
}

Canvas PaperCanvas(QPainter &paper, QImage &beneath)
{
    Canvas canvas = CanvasOf(beneath);
    canvas.Paper = &paper;
    return canvas;
}

Canvas BoardCanvasOf(QImage &picture)
{
    Canvas canvas = CanvasOf(picture);
    canvas.Across = BoardAxis(canvas.Ratio, CellWidth);
    canvas.Down = BoardAxis(canvas.Ratio, CellHeight);
    SetClip(canvas, canvas.Clip);
    return canvas;
}

bool HasFinerPixels(const Canvas &canvas)
{
    return canvas.Paper == nullptr && canvas.Ratio != 1;
}

int DeviceX(const Canvas &canvas, int x)
{
    return EdgeOn(canvas.Across, x);
}

int DeviceY(const Canvas &canvas, int y)
{
    return EdgeOn(canvas.Down, y);
}

void FillDeviceArea(const Canvas &canvas, const DeviceArea &area, Colour colour)
{
    const DeviceArea seen = Cut(canvas, area);
    for (int y = seen.Top; y < seen.Bottom; ++y) {
        std::fill(LineOf(canvas, y) + seen.Left, LineOf(canvas, y) + seen.Right, Opaque | colour);
    }
}

DeviceArea DevicePart(const Canvas &canvas, const Rectangle &rectangle)
{
    return Cut(canvas, {DeviceX(canvas, rectangle.X), DeviceY(canvas, rectangle.Y),
                        DeviceX(canvas, rectangle.X + rectangle.Width),
                        DeviceY(canvas, rectangle.Y + rectangle.Height)});
}

void FillCorners(const Canvas &canvas, Point a, Point b, Colour colour)
{
    const int left = std::min(a.X, b.X);
    const int top = std::min(a.Y, b.Y);
    const int bottom = std::max(a.Y, b.Y);
    if (canvas.Paper == nullptr && !TouchesLines(canvas, top, bottom)) {
        return;
    }
    const Rectangle all{left, top, std::max(a.X, b.X) - left + 1, bottom - top + 1};
    const DeviceArea area = DevicePart(canvas, all);
    FillDeviceArea(canvas, area, colour);
    if (canvas.Paper != nullptr && area.Left < area.Right && area.Top < area.Bottom) {
        canvas.Paper->fillRect(
            QRectF(area.Left, area.Top, area.Right - area.Left, area.Bottom - area.Top),
            ToolkitColour(colour));
    }
}

namespace {

// From the middle of a pixel to that of another, as wide as one.
void DrawSmoothLine(const Canvas &canvas, Point from, Point to, Colour colour)
{
    QImage picture(
        reinterpret_cast<uchar *>(canvas.Pixels), canvas.DeviceWidth, canvas.DeviceHeight,
        canvas.Stride * static_cast<qsizetype>(sizeof(std::uint32_t)), QImage::Format_RGB32);
    const auto middle = [&](Point pixel) {
        return QPointF((DeviceX(canvas, pixel.X) + DeviceX(canvas, pixel.X + 1)) / 2.0,
                       (DeviceY(canvas, pixel.Y) + DeviceY(canvas, pixel.Y + 1)) / 2.0);
    };
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ToolkitColour(colour), std::max(1.0, std::round(canvas.Ratio)),
                        Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(middle(from), middle(to));
}

// One pixel a step, unsmoothed.
void DrawSteps(const Canvas &canvas, Point from, Point to, Colour colour)
{
    if (!TouchesLines(canvas, std::min(from.Y, to.Y), std::max(from.Y, to.Y))) {
        return;
    }
    const int width = to.X - from.X;
    const int height = to.Y - from.Y;
    const int steps = std::max(std::abs(width), std::abs(height));
    for (int step = 0; step <= steps; ++step) {
        const double part = static_cast<double>(step) / std::max(steps, 1);
        const int left = from.X + static_cast<int>(std::lround(width * part));
        const int top = from.Y + static_cast<int>(std::lround(height * part));
        FillDeviceArea(canvas, {left, top, left + 1, top + 1}, colour);
    }
}

} // namespace

void DrawLine(const Canvas &canvas, Point from, Point to, Colour colour)
{
    if (from.X == to.X || from.Y == to.Y) {
        FillCorners(canvas, from, to, colour);
        return;
    }
    if (canvas.Paper != nullptr) {
        const QPointF middle(0.5, 0.5); // of a pixel
        canvas.Paper->setPen(QPen(ToolkitColour(colour), 1, Qt::SolidLine, Qt::FlatCap));
        canvas.Paper->drawLine(QPointF(from.X, from.Y) + middle, QPointF(to.X, to.Y) + middle);
        return;
    }
    if (HasFinerPixels(canvas)) {
        DrawSmoothLine(canvas, from, to, colour);
    } else {
        DrawSteps(canvas, from, to, colour);
    }
}

Mask MaskOf(const QImage &painted)
{
    Mask mask;
    mask.Width = painted.width();
    mask.Height = painted.height();
    mask.Coverage.reserve(static_cast<std::size_t>(mask.Width) *
                          static_cast<std::size_t>(mask.Height));
    mask.RunsUpTo.push_back(0);
    for (int y = 0; y < mask.Height; ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(painted.constScanLine(y));
        for (int x = 0; x < mask.Width; ++x) {
            mask.Coverage.push_back(static_cast<std::uint8_t>(qAlpha(line[x])));
        }
        AddRuns(mask, mask.Coverage.data() + static_cast<std::ptrdiff_t>(y) * mask.Width);
    }
    return mask;
}

void BlendMask(const Canvas &canvas, const Mask &mask, Point place, Colour colour)
{
    BlendMaskAtPixel(canvas, mask, DeviceX(canvas, place.X), DeviceY(canvas, place.Y), colour);
}

void BlendMaskAtPixel(const Canvas &canvas, const Mask &mask, int x, int y, Colour colour)
{
    const DeviceArea area = Cut(canvas, {x, y, x + mask.Width, y + mask.Height});
    for (int line = area.Top; line < area.Bottom; ++line) {
        const std::ptrdiff_t maskLine = line - y;
        const std::uint8_t *covers = mask.Coverage.data() + maskLine * mask.Width;
        std::uint32_t *pixels = LineOf(canvas, line);
        const auto end = mask.Runs.begin() + RunsAbove(mask, maskLine + 1);
        for (auto run = mask.Runs.begin() + RunsAbove(mask, maskLine); run != end; ++run) {
            const int left = std::max(x + run->Begin, area.Left);
            const int right = std::min(x + run->End, area.Right);
            if (run->Whole) {
                FillPixels(pixels, left, right, Opaque | colour);
                continue;
            }
            for (int column = left; column < right; ++column) {
                pixels[column] = Blend(pixels[column], Opaque | colour, covers[column - x]);
            }
        }
    }
}

} // namespace kelvarine
