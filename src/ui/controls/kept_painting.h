// What the painter of the board reads, kept while a picture is painted of something else.
#pragma once

#include "board/geometry.h"
#include "board/look.h"
#include "game/clock.h"
#include "game/win_display.h"
#include "grid/grid.h"

#include <tuple>

namespace kelvarine {

// Everything that the painter of the board reads.
inline auto PaintedState()
{
    return std::tie(Grid, NumberFilter, ChainColumns, ChainRows, ColourTable, GivenTexture,
                    UnknownTexture, GridTexture, PrimaryThickness, SecondaryThickness,
                    BorderThickness, MarginThickness, PrimaryGrid3D, SecondaryGrid3D, GivenCells3D,
                    UnknownCells3D, SelectedCells3D, PencilmarkLayout, PencilmarkLines,
                    StrongLinkMode, WinDisplayRunning, PauseCaption, CellWidth, CellHeight,
                    GivenFontSize, PairFontSize, QuadFontSize, NineFontSize, BoardPlace);
}

// A copy of all that, put back when it goes out of scope.
class KeptPainting {
public:
    KeptPainting() = default;
    KeptPainting(const KeptPainting &) = delete;
    KeptPainting &operator=(const KeptPainting &) = delete;
    ~KeptPainting()
    {
        PaintedState() = kept;
    }

private:
    template <typename... Types>
    static std::tuple<Types...> CopyOf(const std::tuple<Types &...> &state)
    {
        return state;
    }

    decltype(CopyOf(PaintedState())) kept = CopyOf(PaintedState());
};

} // namespace kelvarine
