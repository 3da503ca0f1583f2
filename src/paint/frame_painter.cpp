#include "paint/frame_painter.h"

#include "board/look.h"
#include "grid/colour.h"

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

// Colours of the legs of a frame, in the order in which they are drawn.
struct LegColours {
    Colour Bottom;
    Colour Right;
    Colour Top;
    Colour Left;
};

constexpr Colour Grey(Colour level)
{
    return Rgb(level, level, level);
}

constexpr std::array<LegColours, 3> Styles{{
    {Grey(255), Grey(218), Grey(64), Grey(90)},
    {Grey(64), Grey(90), Grey(235), Grey(210)},
    {Grey(64), Grey(90), Grey(190), Grey(170)},
}};

// The dark shade of a colour: 70 less of each part, but not below 0.
constexpr Colour Dark(Colour colour)
{
    Colour dark = 0;
    for (const int shift : {0, 8, 16}) {
        dark |= (std::max<Colour>(colour >> shift & 0xFF, 70) - 70) << shift;
    }
    return dark;
}

static_assert(Dark(0x4645FF) == 0x0000B9);

// One connected stroke for each pixel of thickness; where two legs meet the later one shows.
void DrawLegs(const Canvas &target, const LegColours &colours, int thickness,
              const Rectangle &inside)
{
    for (int k = 0; k < thickness; ++k) {
        const int left = inside.X - 1 - k;
        const int right = inside.X + inside.Width + k;
        const int top = inside.Y - 1 - k;
        const int bottom = inside.Y + inside.Height + k;
        DrawLine(target, {left + 1, bottom}, {right, bottom}, colours.Bottom);
        DrawLine(target, {right, bottom}, {right, top}, colours.Right);
        DrawLine(target, {right, top}, {left, top}, colours.Top);
        DrawLine(target, {left, top}, {left, bottom}, colours.Left);
    }
}

} // namespace

void DrawFrame3D(const Canvas &target, int style, int thickness, int x, int width, int y,
                 int height)
{
    const auto index = static_cast<std::size_t>(style);
    if (index < Styles.size()) {
        DrawLegs(target, Styles[index], thickness, {x, y, width, height});
    }
}

void DrawFrameWithin3D(const Canvas &target, int style, int thickness, const Rectangle &place)
{
    DrawFrame3D(target, style, thickness, place.X + thickness, place.Width - 2 * thickness,
                place.Y + thickness, place.Height - 2 * thickness);
}

void DrawBoxFrame3D(const Canvas &target, bool raised, int thickness, int x, int width, int y,
                    int height)
{
    const Colour light = ColourTable[PrimaryLineColour];
    const Colour dark = Dark(light);
    const LegColours colours =
        raised ? LegColours{dark, dark, light, light} : LegColours{light, light, dark, dark};
    DrawLegs(target, colours, thickness, {x, y, width, height});
}

// The two forms differ in where their lines end, and are meant to.

void DrawHorizontalSecondaryLine3D(const Canvas &target, int lines, int x, int y)
{
    const Colour light = ColourTable[SecondaryLineColour];
    const int band = y - SecondaryThickness;
    for (int k = 0; k < lines; ++k) {
        const int upper = band + k;
        const int lower = band + 2 * lines - 1 - k;
        DrawLine(target, {x - k, upper}, {x + CellWidth + k - 1, upper}, light);
        DrawLine(target, {x - k, lower}, {x + CellWidth + k, lower}, Dark(light));
    }
}

void DrawVerticalSecondaryLine3D(const Canvas &target, int lines, int x, int y)
{
    const Colour light = ColourTable[SecondaryLineColour];
    const int band = x - SecondaryThickness;
    for (int k = 0; k < lines; ++k) {
        const int left = band + k;
        const int right = band + 2 * lines - 1 - k;
        DrawLine(target, {left, y - k}, {left, y + CellHeight + k}, light);
        DrawLine(target, {right, y - k - 1}, {right, y + CellHeight + k}, Dark(light));
    }
}

} // namespace kelvarine
