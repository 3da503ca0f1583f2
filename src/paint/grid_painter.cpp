#include "paint/grid_painter.h"

#include "board/geometry.h"
#include "board/look.h"
#include "grid/colour.h"
#include "grid/houses.h"
#include "paint/frame_painter.h"
#include "paint/texture_painter.h"

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

constexpr std::array<int, 3> BoxLines{1, 4, 7};

int BoxWidth()
{
    return 3 * CellWidth + 2 * SecondaryThickness;
}

int BoxHeight()
{
    return 3 * CellHeight + 2 * SecondaryThickness;
}

bool BeginsBox(int line)
{
    return BoxStart[static_cast<std::size_t>(line)] == line;
}

void DrawBoxLines(const Canvas &canvas, int x, int y)
{
    const int thickness = PrimaryThickness;
    if (PrimaryGrid3D != False) {
        DrawBoxFrame3D(canvas, false, thickness / 2, x, BoxWidth(), y, BoxHeight());
        return;
    }
    const Colour colour = ColourTable[PrimaryLineColour];
    FillCorners(canvas, {x - thickness, y - 1}, {x + BoxWidth() + thickness - 1, y - thickness},
                colour);
    FillCorners(canvas, {x - 1, y - thickness}, {x - thickness, y + BoxHeight() + thickness - 1},
                colour);
}

// Flat lines run through a whole box and are drawn at its first cell of their row or column;
// lines in 3D are drawn cell by cell.
void DrawSecondaryLines(const Canvas &canvas, Cell cell)
{
    const int x = CellX(cell.Column);
    const int y = CellY(cell.Row);
    const int half = SecondaryThickness / 2;
    const bool flat = SecondaryGrid3D == False;
    const bool left = BeginsBox(cell.Column);
    const bool top = BeginsBox(cell.Row);
    const Colour colour = ColourTable[SecondaryLineColour];
    if (left && !top && flat) {
        FillCorners(canvas, {x, y - SecondaryThickness}, {x + BoxWidth() - 1, y - 1}, colour);
    }
    if (!left && !flat) {
        DrawVerticalSecondaryLine3D(canvas, half, x, y);
    }
    if (top && !left && flat) {
        FillCorners(canvas, {x - SecondaryThickness, y}, {x - 1, y + BoxHeight() - 1}, colour);
    }
    if (!top && !flat) {
        DrawHorizontalSecondaryLine3D(canvas, half, x, y);
    }
}

bool IsCovered(const CellFills &fills, int column, int row)
{
    return fills[static_cast<std::size_t>(CellIndex(column, row))].Paint.has_value();
}

// Textures the lines of a canvas that a row of cells lies on, but for the cells that are covered.
// A texture laid twice is the same as once, so it does no harm if cells overlap.
void TextureBetweenCells(const Canvas &canvas, const CellFills &fills, int row)
{
    int open = canvas.Clip.Left; // the pixels before are done
    for (int column = 1; column <= 9; ++column) {
        if (!IsCovered(fills, column, row)) {
            continue;
        }
        const DeviceArea cell =
            DevicePart(canvas, {CellX(column), CellY(row), CellWidth, CellHeight});
        if (open < cell.Left) {
            TextureBackground(
                Within(canvas, {open, canvas.Clip.Top, cell.Left, canvas.Clip.Bottom}));
        }
        open = std::max(open, cell.Right);
    }
    TextureBackground(
        Within(canvas, {open, canvas.Clip.Top, canvas.Clip.Right, canvas.Clip.Bottom}));
}

void DrawLinesWithin(const Canvas &canvas, const Rectangle &part)
{
    const Canvas lines = Within(canvas, DevicePart(canvas, part));
    if (lines.Clip.Left == lines.Clip.Right || lines.Clip.Top == lines.Clip.Bottom) {
        return;
    }
    DrawPrimaryGrid(lines);
    CloseGrid(lines);
    DrawSecondaryGrid(lines);
    TextureBackground(lines);
}

} // namespace

void DrawPrimaryGrid(const Canvas &canvas)
{
    if (PrimaryThickness <= 0) {
        return;
    }
    for (const int column : BoxLines) {
        for (const int row : BoxLines) {
            DrawBoxLines(canvas, CellX(column), CellY(row));
        }
    }
}

void CloseGrid(const Canvas &canvas)
{
    const int thickness = PrimaryThickness;
    if (thickness <= 0) {
        return;
    }
    if (PrimaryGrid3D != False) {
        const int origin = thickness / 2 + BorderThickness;
        DrawBoxFrame3D(canvas, true, thickness / 2, origin, 3 * (BoxWidth() + thickness), origin,
                       3 * (BoxHeight() + thickness));
        return;
    }
    const int begin = BorderThickness + thickness;
    const int right = begin + 3 * (BoxWidth() + thickness) - 1;
    const int bottom = begin + 3 * (BoxHeight() + thickness) - 1;
    const Colour colour = ColourTable[PrimaryLineColour];
    FillCorners(canvas, {begin, bottom}, {right, bottom - thickness + 1}, colour);
    FillCorners(canvas, {right, begin}, {right - thickness + 1, bottom}, colour);
}

void DrawSecondaryGrid(const Canvas &canvas)
{
    if (SecondaryThickness <= 0) {
        return;
    }
    for (const Cell cell : Cells) {
        DrawSecondaryLines(canvas, cell);
    }
}

void TextureBackground(const Canvas &canvas)
{
    TextureRectangle(canvas, {BorderThickness, BorderThickness, canvas.Width, canvas.Height},
                     GridTexture);
}

void TextureUncovered(const Canvas &canvas, const CellFills &fills)
{
    if (GridTexture == NoTexture) {
        return;
    }
    const DeviceArea &clip = canvas.Clip;
    int open = clip.Top;
    for (int row = 1; row <= 9; ++row) {
        const DeviceArea cell = DevicePart(canvas, {CellX(1), CellY(row), CellWidth, CellHeight});
        if (open < cell.Top) {
            TextureBackground(Within(canvas, {clip.Left, open, clip.Right, cell.Top}));
        }
        if (cell.Top < cell.Bottom) {
            TextureBetweenCells(Within(canvas, {clip.Left, cell.Top, clip.Right, cell.Bottom}),
                                fills, row);
        }
        open = std::max(open, cell.Bottom);
    }
    TextureBackground(Within(canvas, {clip.Left, open, clip.Right, clip.Bottom}));
}

void DrawLinesAnew(const Canvas &canvas)
{
    const int border = BorderThickness;
    const int width = canvas.Width - 2 * border;
    const int height = canvas.Height - 2 * border;
    int x = border; // of the line in front of a cell, or behind the last
    int y = border;
    for (int line = 1; line <= 9; ++line) {
        DrawLinesWithin(canvas, {x, border, CellX(line) - x, height});
        DrawLinesWithin(canvas, {border, y, width, CellY(line) - y});
        x = CellX(line) + CellWidth;
        y = CellY(line) + CellHeight;
    }
    DrawLinesWithin(canvas, {x, border, PrimaryThickness, height});
    DrawLinesWithin(canvas, {border, y, width, PrimaryThickness});
}

void DrawExteriorBorder(const Canvas &canvas)
{
    DrawFrameWithin3D(canvas, Raised, BorderThickness, {0, 0, canvas.Width, canvas.Height});
}

} // namespace kelvarine
