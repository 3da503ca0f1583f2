// The painting of the board against a plain form of it: each step over the whole picture, one
// after the other, and each pixel by itself.
#include "game/clock.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "paint/board_painter.h"
#include "paint/cell_painter.h"
#include "paint/grid_painter.h"
#include "paint/link_painter.h"
#include "paint/number_painter.h"
#include "paint/text_painter.h"
#include "paint/texture_painter.h"
#include "support/pixels.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>

namespace kelvarine::testing {
namespace {

std::mt19937 draw; // NOLINT(cert-msc32-c,cert-msc51-cpp): the same states in each run

int Between(int least, int most)
{
    return std::uniform_int_distribution(least, most)(draw);
}

Flag AnyFlag()
{
    return Between(0, 1) == 0 ? False : True;
}

Colour AnyColour()
{
    return static_cast<Colour>(Between(0, 0xFFFFFF));
}

// ---- The plain form -------------------------------------------------------------------------

std::uint32_t PlainBlend(std::uint32_t below, Colour above, int cover)
{
    std::uint32_t mixed = 0xFF000000;
    for (const int shift : {0, 8, 16}) {
        const int low = static_cast<int>(below >> shift & 0xFF);
        const int high = static_cast<int>(above >> shift & 0xFF);
        const int sum = low * (255 - cover) + high * cover;
        mixed |= static_cast<std::uint32_t>((2 * sum + 255) / 510) << shift; // to the nearest
    }
    return mixed;
}

void PlainMask(const Canvas &canvas, const Mask &mask, int left, int top, Colour colour)
{
    for (int line = 0; line < mask.Height; ++line) {
        for (int column = 0; column < mask.Width; ++column) {
            const int x = left + column;
            const int y = top + line;
            if (x < 0 || y < 0 || x >= canvas.DeviceWidth || y >= canvas.DeviceHeight) {
                continue;
            }
            std::uint32_t &pixel = canvas.Pixels[y * canvas.Stride + x];
            const auto index = static_cast<std::size_t>(line * mask.Width + column);
            pixel = PlainBlend(pixel, colour, mask.Coverage[index]);
        }
    }
}

void PlainCell(const Canvas &canvas, Cell cell)
{
    const Rectangle place = AreaOf(cell);
    const CellFill fill = FillOf(cell);
    if (fill.Paint) {
        FillCorners(canvas, {place.X, place.Y},
                    {place.X + place.Width - 1, place.Y + place.Height - 1}, *fill.Paint);
    }
    TextureRectangle(canvas, place, fill.Texture);
    DrawCell(canvas, cell, {}); // the frame and the ring
}

double PointsOf(NumberLayout layout)
{
    return layout == NumberLayout::Pair   ? PairFontSize
           : layout == NumberLayout::Quad ? QuadFontSize
           : layout == NumberLayout::Nine ? NineFontSize
                                          : GivenFontSize;
}

void PlainDigit(const Canvas &canvas, int number, double points, Point centre, Colour colour)
{
    const DigitPicture &digit = DigitAt(points, canvas.Ratio, number);
    PlainMask(canvas, digit.Shape, centre.X - digit.Width / 2, centre.Y - digit.Height / 2, colour);
}

void PlainRules(const Canvas &canvas, NumberLayout layout, Cell cell)
{
    const Rectangle place = AreaOf(cell);
    const Colour colour = ColourTable[PencilmarkLineColour];
    const int right = place.X + place.Width;
    const int bottom = place.Y + place.Height;
    const int parts = layout == NumberLayout::Quad ? 2 : layout == NumberLayout::Nine ? 3 : 1;
    if (layout == NumberLayout::Pair) {
        DrawLine(canvas, {place.X, bottom}, {right, place.Y - 1}, colour);
    }
    for (int part = 1; part < parts; ++part) {
        const int y = place.Y + place.Height * part / parts;
        const int x = place.X + place.Width * part / parts;
        DrawLine(canvas, {place.X, y}, {right, y}, colour);
        DrawLine(canvas, {x, place.Y}, {x, bottom}, colour);
    }
}

void PlainNumbers(const Canvas &canvas, Cell cell)
{
    if (HasFinerPixels(canvas)) {
        DrawNumbers(canvas, cell); // on the whole picture, and masks are tried below
        return;
    }
    const CellWord word = WordAt(cell);
    const bool given = (word & GivenBit) != 0;
    const NumberLayout layout = given ? NumberLayout::One : LayoutFor(CandidatesIn(word));
    if (PencilmarkLines != False && NumberFilter == CandidateMask) {
        PlainRules(canvas, layout, cell);
    }
    const Colour ink = ColourTable[given ? GivenNumberColour : UnknownNumberColour];
    int place = 0;
    for (int number = 1; number <= 9; ++number) {
        if ((word & BitOf(number)) == 0 || (given && place == 1)) {
            continue;
        }
        ++place;
        if ((NumberFilter & BitOf(number)) != 0) {
            PlainDigit(canvas, number, PointsOf(layout), NumberCentre(layout, cell, number, place),
                       WinDisplayRunning != False ? 0 : ink);
        }
    }
}

// A board without a border shows the margin in the device pixels that lie beside its outermost
// lines.
void PlainLeftOver(const Canvas &canvas)
{
    if (BorderThickness > 0 || canvas.Across.Count == 0 || canvas.Down.Count == 0) {
        return;
    }
    for (int y = 0; y < canvas.DeviceHeight; ++y) {
        for (int x = 0; x < canvas.DeviceWidth; ++x) {
            const bool board = x >= DeviceX(canvas, 0) && x < DeviceX(canvas, canvas.Width) &&
                               y >= DeviceY(canvas, 0) && y < DeviceY(canvas, canvas.Height);
            if (!board) {
                canvas.Pixels[y * canvas.Stride + x] = Opaque | ColourTable[MarginColour];
            }
        }
    }
}

QImage PlainBoard(QImage picture)
{
    const Canvas canvas = BoardCanvasOf(picture);
    PlainLeftOver(canvas);
    DrawPrimaryGrid(canvas);
    CloseGrid(canvas);
    DrawSecondaryGrid(canvas);
    TextureBackground(canvas);
    DrawExteriorBorder(canvas);
    for (const Cell cell : Cells) {
        PlainCell(canvas, cell);
    }
    DrawLinks(picture);
    for (const Cell cell : Cells) {
        if (!IsPaused()) {
            PlainNumbers(canvas, cell);
        }
    }
    return picture;
}

// ---- Random states --------------------------------------------------------------------------

void DrawLook()
{
    std::generate(ColourTable.begin(), ColourTable.end(), AnyColour);
    std::generate(HighlightColours.begin(), HighlightColours.end(), AnyColour);
    GivenTexture = Between(-1, TileCount);
    UnknownTexture = Between(-1, TileCount);
    GridTexture = Between(-1, TileCount);
    PrimaryThickness = Between(-1, 12);
    SecondaryThickness = Between(-1, 8);
    BorderThickness = Between(-1, 12);
    PrimaryGrid3D = AnyFlag();
    SecondaryGrid3D = AnyFlag();
    GivenCells3D = AnyFlag();
    UnknownCells3D = AnyFlag();
    SelectedCells3D = AnyFlag();
    PencilmarkLayout = Between(0, 1);
    PencilmarkLines = AnyFlag();
    StrongLinkMode = Between(0, 2);
}

void DrawGame()
{
    for (const Cell cell : Cells) {
        const auto marks = static_cast<CellWord>(draw());
        const auto sparing = static_cast<CellWord>(draw() & draw() & draw());
        const auto coloured = static_cast<CellWord>(Between(0, 3) == 0 ? CellColour : 0);
        WordAt(cell) = (marks & CandidateMask & (Between(0, 1) == 0 ? sparing : CandidateMask)) |
                       (marks & (GivenBit | coloured)) |
                       (sparing & (SelectedBit | AlertBit | HintCellBit | HintDomainBit));
    }
    NumberFilter =
        Between(0, 3) == 0 ? static_cast<CellWord>(draw()) & CandidateMask : CandidateMask;
    WinDisplayRunning = Between(0, 4) == 0 ? True : False;
    WinStage = Between(0, 7);
    WinColoursSet = AnyFlag();
    std::generate(WinColours.begin(), WinColours.end(), AnyColour);
    PauseCaption = Between(0, 9) == 0 ? "Resume" : "Pause";
    ChainColumns[0] = 0;
}

// A picture that held something before, of the size of the board or nearly.
QImage DrawPicture(double ratio)
{
    LayoutBoard(Between(0, 500), Between(0, 500), 0);
    const QSize size(std::max(1, static_cast<int>(BoardPlace.Width * ratio) + Between(-20, 20)),
                     std::max(1, static_cast<int>(BoardPlace.Height * ratio) + Between(-20, 20)));
    QImage picture(size, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            picture.setPixel(x, y, static_cast<std::uint32_t>(7919 * y + 104729 * x) | Opaque);
        }
    }
    return picture;
}

class PlainPainting : public FlatBoard {
protected:
    void SetUp() override
    {
        FlatBoard::SetUp();
        draw.seed(20261122);
    }
};

TEST_F(PlainPainting, IsEqualToTheFastOneInStripsOfAnyHeight)
{
    constexpr std::array ratios{1.0, 1.0, 1.25, 1.5, 1.75, 2.0, 3.0, 0.5};
    for (int k = 0; k < 400; ++k) {
        DrawLook();
        DrawGame();
        const double ratio = ratios[static_cast<std::size_t>(k) % ratios.size()];
        const QImage before = DrawPicture(ratio);
        const auto chance = static_cast<unsigned>(k); // of the colours of the win display
        std::srand(chance);
        const QImage plain = PlainBoard(before);
        for (const int lines : {Between(1, 20), Between(20, 300), 100000}) {
            QImage strips = before;
            std::srand(chance);
            PaintBoardInStrips(strips, lines);
            ASSERT_EQ(strips, plain) << "state " << k << ", lines " << lines;
        }
        QImage usual = before;
        std::srand(chance);
        PaintBoard(usual);
        ASSERT_EQ(usual, plain) << "state " << k;
    }
}

TEST_F(PlainPainting, MasksAreLaidAtAnyPlaceOfTheirOwn)
{
    for (int k = 0; k < 300; ++k) {
        QImage picture = DrawPicture(1 + k % 3 * 0.5);
        QImage plain = picture.copy();
        const Mask &digit = DigitAt(Between(1, 90), picture.devicePixelRatio(), k % 10).Shape;
        const Point place{Between(-40, 300), Between(-40, 300)};
        const Colour colour = AnyColour();
        BlendMask(CanvasOf(picture), digit, place, colour);
        const Canvas whole = CanvasOf(plain);
        PlainMask(whole, digit, DeviceX(whole, place.X), DeviceY(whole, place.Y), colour);
        ASSERT_EQ(picture, plain) << k;
    }
}

} // namespace
} // namespace kelvarine::testing
