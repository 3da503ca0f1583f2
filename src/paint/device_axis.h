// Where the pixels of the board lie on a screen that has a fraction of pixels more than the board:
// borders, lines and cells take whole device pixels, cells as many as cells and lines as many as
// lines of their kind. What is left over goes to the ends.
#pragma once

#include <array>
#include <cstddef>

namespace kelvarine {

// A stretch of the board across or down, such as a cell or a line.
struct DeviceStretch {
    int Begin = 0; // logical pixels
    int Length = 0;
    int DeviceBegin = 0;
    int DeviceLength = 0;
};

// One direction of the board. Without stretches every pixel is alike.
struct DeviceAxis {
    double Ratio = 1;
    std::size_t Count = 0;
    std::array<DeviceStretch, 21> Stretches; // two borders, ten lines, nine cells
};

// The board in one direction, by the side of its cells and the thicknesses; plain where the ratio
// is whole, since then nothing is left over.
DeviceAxis BoardAxis(double ratio, int cellSide);

// Device pixel at which a logical pixel begins; any position will do.
int EdgeOn(const DeviceAxis &axis, int position);

// The logical pixel that is painted at a place in device pixels: the other way round.
int PixelOn(const DeviceAxis &axis, double place);

} // namespace kelvarine
