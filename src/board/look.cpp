#include "board/look.h"

#include "grid/colour.h"

namespace kelvarine {

std::array<Colour, ColourCount> ColourTable{};
std::array<Colour, 11> HighlightColours{};
std::int32_t GivenTexture;
std::int32_t UnknownTexture;
std::int32_t GridTexture;
std::int32_t PrimaryThickness;
std::int32_t SecondaryThickness;
std::int32_t BorderThickness;
std::int32_t MarginThickness;
Flag PrimaryGrid3D;
Flag SecondaryGrid3D;
Flag GivenCells3D;
Flag UnknownCells3D;
Flag SelectedCells3D;
std::int32_t PencilmarkLayout;
Flag PencilmarkLines;
std::int32_t StrongLinkMode;
Flag ToolbarVisible;
Flag ToolTipsVisible;
Flag CoordinatesVisible;

namespace {

constexpr Colour White = Rgb(255, 255, 255);
constexpr Colour Black = Rgb(0, 0, 0);

} // namespace

void SetDefaultLook()
{
    ColourTable[GivenCellColour] = Rgb(32, 96, 80);
    ColourTable[UnknownCellColour] = Rgb(66, 120, 107);
    ColourTable[SelectedCellColour] = Rgb(54, 162, 253);
    ColourTable[GivenNumberColour] = White;
    ColourTable[UnknownNumberColour] = White;
    ColourTable[PrimaryLineColour] = Black;
    ColourTable[SecondaryLineColour] = Black;
    ColourTable[PencilmarkLineColour] = White;
    ColourTable[HintCellColour] = Rgb(204, 204, 0);
    ColourTable[HintDomainColour] = Rgb(136, 136, 0);
    ColourTable[AlertColour] = Rgb(255, 0, 0);
    ColourTable[MarginColour] = Black;
    GivenTexture = 0;
    UnknownTexture = 0;
    GridTexture = 0;
    PrimaryThickness = 8;
    SecondaryThickness = 0;
    BorderThickness = 10;
    PrimaryGrid3D = False;
    SecondaryGrid3D = False;
    GivenCells3D = True;
    UnknownCells3D = True;
    SelectedCells3D = True;
}

void SetLookDefaults()
{
    SetDefaultLook();
    HighlightColours = {Black,
                        Rgb(255, 128, 128),
                        Rgb(128, 255, 128),
                        Rgb(128, 255, 255),
                        Rgb(255, 255, 0),
                        Rgb(192, 192, 192),
                        Rgb(255, 0, 0),
                        Rgb(0, 255, 0),
                        Rgb(0, 0, 255),
                        Rgb(192, 192, 0),
                        White};
    MarginThickness = 30;
    PencilmarkLayout = 1;
    PencilmarkLines = False;
    StrongLinkMode = 1;
    ToolbarVisible = True;
    ToolTipsVisible = True;
    CoordinatesVisible = True;
}

} // namespace kelvarine
