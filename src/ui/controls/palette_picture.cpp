#include "ui/controls/palette_picture.h"

#include <QColor>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int GreyShare = 12; // the greys take this part of the height

// The hue across; down from white over the full colour to black.
QRgb Shade(double across, double down)
{
    const double saturation = std::min(1.0, 2 * down);
    const double value = std::min(1.0, 2 * (1 - down));
    return QColor::fromHsvF(static_cast<float>(across), static_cast<float>(saturation),
                            static_cast<float>(value))
        .rgb();
}

// Both ends included, so that pure black and white can be picked.
double Share(int place, int count)
{
    return count > 1 ? static_cast<double>(place) / (count - 1) : 0;
}

} // namespace

QImage PalettePicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    const int greys = height / GreyShare;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (y < greys) {
                const int grey = static_cast<int>(255 * Share(x, width));
                picture.setPixel(x, y, qRgb(grey, grey, grey));
            } else {
                picture.setPixel(
                    x, y, Shade(static_cast<double>(x) / width, Share(y - greys, height - greys)));
            }
        }
    }
    return picture;
}

} // namespace kelvarine
