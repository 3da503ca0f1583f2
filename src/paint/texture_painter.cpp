#include "paint/texture_painter.h"

#include "board/fill.h"

#include <algorithm>
#include <array>
#include <cmath>

// The macro declares a function of the global namespace, so it cannot stand in ours.
static void OpenResources()
{
    Q_INIT_RESOURCE(kelvarine);
}

namespace kelvarine {

namespace {

// A strip of tiles that were drawn for a device pixel ratio.
struct Strip {
    double Ratio;
    const char *File;
};

constexpr std::array Strips{Strip{1, ":/textures.png"}, Strip{1.5, ":/textures-1.5.png"},
                            Strip{2, ":/textures-2.png"}};

// That of the ratio, or the next one below.
const Strip &StripFor(double ratio)
{
    const auto *above = std::ranges::find_if(
        Strips.begin() + 1, Strips.end(), [&](const Strip &strip) { return strip.Ratio > ratio; });
    return *(above - 1);
}

int SideAt(double ratio)
{
    return std::max(1, static_cast<int>(std::lround(TileSide * ratio)));
}

// The tiles at the size that they have on a screen, and for which device pixel ratio that is.
struct TileSet {
    double Ratio = 0;
    std::array<QImage, TileCount> Tiles;
};

TileSet tileSet; // picture cache

void CutTiles(double ratio)
{
    OpenResources();
    const Strip &strip = StripFor(ratio);
    const QImage drawn = QImage(strip.File).convertToFormat(QImage::Format_RGB32);
    const int drawnSide = SideAt(strip.Ratio);
    const int side = SideAt(ratio);
    for (int tile = 0; tile < TileCount; ++tile) {
        const QImage cut = drawn.copy(0, tile * drawnSide, drawnSide, drawnSide);
        // Not smoothed: greys between those of the tiles would tint the colours beneath.
        tileSet.Tiles[static_cast<std::size_t>(tile)] = cut.scaled(side, side);
    }
    tileSet.Ratio = ratio;
}

const QImage &TileFor(std::int32_t texture, double ratio)
{
    if (tileSet.Ratio != ratio) {
        CutTiles(ratio);
    }
    return tileSet.Tiles[static_cast<std::size_t>(texture)];
}

bool IsTile(std::int32_t texture)
{
    return texture > NoTexture && texture < TileCount;
}

// Walks over an area of a rectangle line by line, tile by tile, and hands every stretch to lay:
// its pixels, those of the tile that come upon them, and how many there are.
template <typename Lay>
void LayTiles(const Canvas &canvas, const Rectangle &rectangle, std::int32_t texture,
              const Lay &lay)
{
    const DeviceArea area = DevicePart(canvas, rectangle);
    if (area.Left == area.Right || area.Top == area.Bottom) {
        return;
    }
    const QImage &tile = TileFor(texture, canvas.Ratio);
    const int side = tile.width();
    const int originX = DeviceX(canvas, rectangle.X);
    const int originY = DeviceY(canvas, rectangle.Y);
    const int firstBegin = (area.Left - originX) % side;
    for (int y = area.Top; y < area.Bottom; ++y) {
        const auto *tileLine =
            reinterpret_cast<const std::uint32_t *>(tile.constScanLine((y - originY) % side));
        std::uint32_t *pixels = canvas.Pixels + y * canvas.Stride;
        int begin = firstBegin;
        for (int left = area.Left; left < area.Right;) {
            const int length = std::min(side - begin, area.Right - left);
            lay(pixels + left, tileLine + begin, length);
            left += length;
            begin = 0;
        }
    }
}

// Pictures drawn on paper latest. Most cells of a page look alike, and a picture that is drawn
// again takes no room in a document.
constexpr std::size_t KeptPictures = 32;
std::array<QImage, KeptPictures> paperPictures; // picture cache
std::size_t oldestPicture;

const QImage &KeptPicture(const QImage &picture)
{
    const auto *known = std::find(paperPictures.begin(), paperPictures.end(), picture);
    if (known != paperPictures.end()) {
        return *known;
    }
    QImage &kept = paperPictures[oldestPicture];
    oldestPicture = (oldestPicture + 1) % KeptPictures;
    kept = picture.copy();
    return kept;
}

// Shows a part of the pixels on paper, each a sharp square.
void ShowOnPaper(const Canvas &canvas, const DeviceArea &area)
{
    if (area.Left == area.Right || area.Top == area.Bottom) {
        return;
    }
    const auto *begin =
        reinterpret_cast<const uchar *>(canvas.Pixels + area.Top * canvas.Stride + area.Left);
    const QImage part(begin, area.Right - area.Left, area.Bottom - area.Top,
                      canvas.Stride * static_cast<qsizetype>(sizeof(std::uint32_t)),
                      QImage::Format_RGB32);
    canvas.Paper->drawImage(QRectF(area.Left, area.Top, part.width(), part.height()),
                            KeptPicture(part));
}

} // namespace

void TextureRectangle(const Canvas &canvas, const Rectangle &rectangle, std::int32_t texture)
{
    if (!IsTile(texture)) {
        return;
    }
    LayTiles(canvas, rectangle, texture,
             [](std::uint32_t *pixels, const std::uint32_t *tile, int length) {
                 for (int k = 0; k < length; ++k) {
                     pixels[k] &= tile[k];
                 }
             });
    if (canvas.Paper != nullptr) {
        ShowOnPaper(canvas, DevicePart(canvas, rectangle));
    }
}

void FillTextured(const Canvas &canvas, const Rectangle &rectangle, Colour colour,
                  std::int32_t texture)
{
    if (canvas.Paper != nullptr || !IsTile(texture)) {
        FillCorners(canvas, {rectangle.X, rectangle.Y},
                    {rectangle.X + rectangle.Width - 1, rectangle.Y + rectangle.Height - 1},
                    colour);
        TextureRectangle(canvas, rectangle, texture);
        return;
    }
    LayTiles(
        canvas, rectangle, texture,
        [paint = Opaque | colour](std::uint32_t *pixels, const std::uint32_t *tile, int length) {
            for (int k = 0; k < length; ++k) {
                pixels[k] = paint & tile[k];
            }
        });
}

} // namespace kelvarine
