#include "paint/device_axis.h"

#include "board/geometry.h"
#include "board/look.h"

#include <algorithm>
#include <cmath>

namespace kelvarine {

namespace {

constexpr double Farthest = 1e8; // keeps sums of edges within their type

int Scaled(double ratio, int length)
{
    return static_cast<int>(std::clamp(std::round(length * ratio), -Farthest, Farthest));
}

// Adds a stretch behind those that are there; one without pixels has none.
void Add(DeviceAxis &axis, int length, int deviceLength)
{
    DeviceStretch next{0, length, 0, deviceLength};
    if (axis.Count > 0) {
        const DeviceStretch &last = axis.Stretches[axis.Count - 1];
        next.Begin = last.Begin + last.Length;
        next.DeviceBegin = last.DeviceBegin + last.DeviceLength;
    }
    axis.Stretches[axis.Count++] = next;
}

// Offset within a stretch. Measured from the nearer end, so that frames are alike on both sides.
int OffsetIn(const DeviceStretch &stretch, double ratio, int offset)
{
    const int deviceHalf = stretch.DeviceLength / 2;
    if (2 * offset <= stretch.Length) {
        return std::min(Scaled(ratio, offset), deviceHalf);
    }
    return stretch.DeviceLength -
           std::min(Scaled(ratio, stretch.Length - offset), stretch.DeviceLength - deviceHalf);
}

} // namespace

DeviceAxis BoardAxis(double ratio, int cellSide)
{
    DeviceAxis axis{ratio, 0, {}};
    if (ratio == std::floor(ratio)) {
        return axis;
    }
    const int lines = LinesAcross();
    const int primary = Scaled(ratio, PrimaryThickness);
    const int secondary = Scaled(ratio, SecondaryThickness);
    const int room = Scaled(ratio, 9 * cellSide + lines + 2 * BorderThickness);
    const int border = Scaled(ratio, BorderThickness);
    const int cell = (room - 2 * border - 4 * primary - 6 * secondary) / 9;
    if (cell < 1) {
        return axis;
    }
    const int rest = room - 9 * cell - 4 * primary - 6 * secondary;
    Add(axis, BorderThickness, rest / 2);
    for (int line = 1; line <= 9; ++line) {
        const bool box = line % 3 == 1;
        Add(axis, box ? PrimaryThickness : SecondaryThickness, box ? primary : secondary);
        Add(axis, cellSide, cell);
    }
    Add(axis, PrimaryThickness, primary);
    Add(axis, BorderThickness, rest - rest / 2);
    return axis;
}

int EdgeOn(const DeviceAxis &axis, int position)
{
    if (axis.Count == 0 || position < 0) {
        return Scaled(axis.Ratio, position);
    }
    for (std::size_t k = 0; k < axis.Count; ++k) {
        const DeviceStretch &stretch = axis.Stretches[k];
        if (position < stretch.Begin + stretch.Length) {
            const bool end = k == 0 || k + 1 == axis.Count;
            const double ratio =
                end ? static_cast<double>(stretch.DeviceLength) / stretch.Length : axis.Ratio;
            return stretch.DeviceBegin + OffsetIn(stretch, ratio, position - stretch.Begin);
        }
    }
    const DeviceStretch &last = axis.Stretches[axis.Count - 1];
    // A border without logical pixels belongs to the margin.
    return last.DeviceBegin + (last.Length > 0 ? last.DeviceLength : 0) +
           Scaled(axis.Ratio, position - last.Begin - last.Length);
}

int PixelOn(const DeviceAxis &axis, double place)
{
    constexpr double exact = 1e-3; // of a pixel; a place is told in fractions of logical ones
    const double device = std::floor(std::clamp(place, -Farthest, Farthest) + exact);
    int position = static_cast<int>(std::floor(device / axis.Ratio));
    while (EdgeOn(axis, position + 1) <= device) {
        ++position;
    }
    while (EdgeOn(axis, position) > device) {
        --position;
    }
    return position;
}

} // namespace kelvarine
