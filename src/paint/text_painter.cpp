#include "paint/text_painter.h"

#include "grid/colour.h"
#include "paint/text.h"
#include "paint/toolkit_colour.h"

#include <QFont>
#include <QGlyphRun>

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <string>
#include <utility>

namespace kelvarine {

namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0;
constexpr std::uint8_t HalfCovered = 128; // a pixel counts as ink

Face FaceOf(const QRawFont &font)
{
    const int ascent = static_cast<int>(std::lround(font.ascent()));
    const int height = ascent + static_cast<int>(std::lround(font.descent()));
    return {font, ascent, height};
}

// ---- Cache of digits -----------------------------------------------------------------------

using Digits = std::array<DigitPicture, 10>;

struct DigitSet {
    double Points = 0;
    double Ratio = 0;
    Face Letters;
    Digits Pictures;
};

// A board shows at most four sizes at once; twice as many leave room for a second board.
std::array<DigitSet, 8> digitSets;
std::size_t oldestSet;

// Middle of the smallest rectangle round all that is covered.
std::pair<double, double> MiddleOfInk(const Mask &mask)
{
    int left = mask.Width;
    int right = 0;
    int top = mask.Height;
    int bottom = 0;
    for (int y = 0; y < mask.Height; ++y) {
        for (int x = 0; x < mask.Width; ++x) {
            if (mask.Coverage[static_cast<std::size_t>(y * mask.Width + x)] >= HalfCovered) {
                left = std::min(left, x);
                right = std::max(right, x + 1);
                top = std::min(top, y);
                bottom = std::max(bottom, y + 1);
            }
        }
    }
    return {(left + right) / 2.0, (top + bottom) / 2.0};
}

Digits PaintDigits(const Face &face, double ratio)
{
    Digits digits;
    for (std::size_t digit = 0; digit < digits.size(); ++digit) {
        const std::string text = std::to_string(digit);
        const int width = TextWidth(face, text);
        const QSize size(std::max(1, static_cast<int>(std::ceil(width * ratio))),
                         std::max(1, static_cast<int>(std::ceil(face.Height * ratio))));
        QImage picture(size, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        WriteText(painter, face, {0, 0}, text, 0);
        painter.end();
        const Mask mask = MaskOf(picture);
        const auto [x, y] = MiddleOfInk(mask);
        digits[digit] = {mask, width, face.Height, x, y};
    }
    return digits;
}

const DigitSet &DigitSetFor(double points, double ratio)
{
    const auto *known = std::find_if(digitSets.begin(), digitSets.end(), [&](const DigitSet &set) {
        return set.Points == points && set.Ratio == ratio;
    });
    if (known != digitSets.end()) {
        return *known;
    }
    DigitSet &set = digitSets[oldestSet];
    oldestSet = (oldestSet + 1) % digitSets.size();
    const Face face = BoardFace(points);
    set = {points, ratio, face, PaintDigits(face, ratio)};
    return set;
}

} // namespace

Face BoardFace(double points)
{
    QRawFont font = QRawFont::fromFont(QFont("Arial"));
    font.setPixelSize(points * PixelsPerPoint);
    return FaceOf(font);
}

Face FaceOf(const QFont &font)
{
    return FaceOf(QRawFont::fromFont(font));
}

int TextWidth(const Face &face, std::string_view text)
{
    double width = 0;
    for (const QPointF &advance :
         face.Font.advancesForGlyphIndexes(face.Font.glyphIndexesForString(Text(text)))) {
        width += advance.x();
    }
    return static_cast<int>(std::lround(width));
}

void WriteText(QPainter &painter, const Face &face, Point place, std::string_view text,
               Colour colour)
{
    const QVector<quint32> glyphs = face.Font.glyphIndexesForString(Text(text));
    QVector<QPointF> places;
    QPointF pen;
    for (const QPointF &advance : face.Font.advancesForGlyphIndexes(glyphs)) {
        places.append(pen);
        pen += advance;
    }
    QGlyphRun run;
    run.setRawFont(face.Font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(places);
    painter.setPen(ToolkitColour(colour));
    painter.drawGlyphRun(QPointF(place.X, place.Y + face.Ascent), run);
}

const DigitPicture &DigitAt(double points, double ratio, int digit)
{
    assert(digit >= 0 && digit <= 9);
    assert(points > 0 && ratio > 0);
    return DigitSetFor(points, ratio).Pictures[static_cast<std::size_t>(digit)];
}

void WriteDigit(QPainter &painter, double points, Point place, int digit, Colour colour)
{
    WriteText(painter, DigitSetFor(points, 1).Letters, place, std::to_string(digit), colour);
}

} // namespace kelvarine
