#include "game/transforms.h"

#include "grid/grid.h"
#include "grid/history.h"
#include "outside/board.h"

namespace kelvarine {

namespace {

struct Place {
    std::int32_t Column;
    std::int32_t Row;
};

// Where the word of a cell comes from, and where a cell of the chain goes.
struct Transform {
    Place (*From)(Place);
    Place (*To)(Place);
};

constexpr Place TurnedLeft(Place place)
{
    return {place.Row, 10 - place.Column};
}

constexpr Place TurnedRight(Place place)
{
    return {10 - place.Row, place.Column};
}

constexpr Place Mirrored(Place place)
{
    return {10 - place.Column, place.Row};
}

constexpr Place Flipped(Place place)
{
    return {place.Column, 10 - place.Row};
}

constexpr Transform RotateLeft{TurnedRight, TurnedLeft};
constexpr Transform RotateRight{TurnedLeft, TurnedRight};
constexpr Transform Mirror{Mirrored, Mirrored};
constexpr Transform Flip{Flipped, Flipped};

void Apply(const Transform &transform)
{
    const GridTable before = Grid;
    for (const Cell cell : Cells) {
        const Place from = transform.From({cell.Column, cell.Row});
        WordAt(cell) =
            before[static_cast<std::size_t>(from.Column)][static_cast<std::size_t>(from.Row)];
    }
    const auto length = static_cast<std::size_t>(ChainColumns[0]);
    for (std::size_t k = 1; k <= length; ++k) {
        const Place to = transform.To({ChainColumns[k], ChainRows[k]});
        ChainColumns[k] = to.Column;
        ChainRows[k] = to.Row;
    }
    PushUndoState();
    DrawBoard();
}

} // namespace

void mnuRotateGrid90Left()
{
    Apply(RotateLeft);
}

void mnuRotateGrid90Right()
{
    Apply(RotateRight);
}

void mnuMirrorGrid()
{
    Apply(Mirror);
}

void mnuFlipGrid()
{
    Apply(Flip);
}

} // namespace kelvarine
