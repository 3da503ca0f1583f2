#include "configure/look_settings.h"

#include "board/margin.h"
#include "grid/colour.h"
#include "outside/board.h"
#include "outside/window.h"

#include <cassert>

namespace kelvarine {

const std::array<std::string_view, ColourCount> ColourCaptions{
    " Given cells",     " Unknown cells",      " Selected cells",       " Given numbers",
    " Unknown numbers", " Primary grid lines", " Secondary grid lines", " Pencilmark grid lines",
    " Hi-lites 1",      " Hi-lites 2",         " Alerts && links",      " Exterior margins",
};

const std::array<std::string_view, CountOf(PencilmarkLayoutRange)> LayoutCaptions{" Variable",
                                                                                  " 3 X 3"};

void SetColour(std::size_t index, Colour colour)
{
    assert(index < ColourTable.size());
    assert(colour <= 0xFFFFFF);
    ColourTable[index] = colour;
    if (index == MarginColour) {
        PickMarginTextColour();
        RefreshWindow();
    }
    DrawBoard();
}

std::int32_t *TextureOf(std::size_t index)
{
    assert(index < ColourTable.size());
    switch (index) {
    case GivenCellColour:
        return &GivenTexture;
    case UnknownCellColour:
        return &UnknownTexture;
    case PrimaryLineColour:
    case SecondaryLineColour:
        return &GridTexture;
    default:
        return nullptr;
    }
}

void SetTexture(std::size_t index, std::int32_t tile)
{
    if (std::int32_t *texture = TextureOf(index); texture != nullptr) {
        *texture = tile;
        DrawBoard();
    }
}

void SetThickness(std::int32_t &thickness, std::int32_t pixels)
{
    thickness = pixels;
    ResizeWindow();
}

void SetLookFlag(Flag &flag, bool on)
{
    flag = FlagOf(on);
    DrawBoard();
}

void SetPencilmarkLayout(std::int32_t layout)
{
    PencilmarkLayout = layout;
    DrawBoard();
}

} // namespace kelvarine
