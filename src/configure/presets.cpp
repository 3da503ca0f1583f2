#include "configure/presets.h"

#include "board/look.h"
#include "board/margin.h"
#include "grid/colour.h"
#include "outside/window.h"

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

struct Colours {
    Colour GivenCells;
    Colour UnknownCells;
    Colour SelectedCells;
    Colour GivenNumbers;
    Colour UnknownNumbers;
    Colour PrimaryLines;
    Colour SecondaryLines;
    Colour PencilmarkLines;
    Colour HintCells;
    Colour HintDomains;
    Colour Alerts; // also links and chains
    Colour Margin;
};

struct Textures {
    std::int32_t Given;
    std::int32_t Unknown;
    std::int32_t Grid;
};

struct Thicknesses {
    std::int32_t Primary;
    std::int32_t Secondary;
    std::int32_t Border;
};

struct Effects {
    Flag Cells; // given, unknown and selected ones alike
    Flag Primary;
    Flag Secondary;
};

struct Preset {
    std::int32_t Number;
    Colours In;
    Textures Tiles;
    Thicknesses Lines;
    Effects In3D;
};

// The look of a start, which stands with the other defaults and not in the table.
constexpr std::int32_t DefaultPreset = 2;

constexpr std::array Presets{
    Preset{.Number = 0,
           .In = {.GivenCells = 0x7875FA,
                  .UnknownCells = 0xFFFFFF,
                  .SelectedCells = 0xFE86C4,
                  .GivenNumbers = 0xF6F4F7,
                  .UnknownNumbers = 0x000000,
                  .PrimaryLines = 0x000000,
                  .SecondaryLines = 0x5D5D5D,
                  .PencilmarkLines = 0x0067BB,
                  .HintCells = 0x03FB04,
                  .HintDomains = 0x00BB46,
                  .Alerts = 0xFF0000,
                  .Margin = 0x89C7FF},
           .Tiles = {.Given = 4, .Unknown = 0, .Grid = 0},
           .Lines = {.Primary = 8, .Secondary = 1, .Border = 10},
           .In3D = {.Cells = True, .Primary = False, .Secondary = False}},
    Preset{.Number = 1,
           .In = {.GivenCells = 0xFFFFFF,
                  .UnknownCells = 0xFFFFFF,
                  .SelectedCells = 0xCDCDCD,
                  .GivenNumbers = 0x000000,
                  .UnknownNumbers = 0x6E6E6E,
                  .PrimaryLines = 0x000000,
                  .SecondaryLines = 0x000000,
                  .PencilmarkLines = 0x888888,
                  .HintCells = 0x00FE00,
                  .HintDomains = 0x87FC87,
                  .Alerts = 0xFF0000,
                  .Margin = 0x89C7FF},
           .Tiles = {.Given = 0, .Unknown = 0, .Grid = 0},
           .Lines = {.Primary = 4, .Secondary = 1, .Border = 10},
           .In3D = {.Cells = False, .Primary = False, .Secondary = False}},
    Preset{.Number = 3,
           .In = {.GivenCells = 0x2B262A,
                  .UnknownCells = 0x2B262A,
                  .SelectedCells = 0x038AFF,
                  .GivenNumbers = 0xFEFE00,
                  .UnknownNumbers = 0xF6F6F6,
                  .PrimaryLines = 0xFFFF77,
                  .SecondaryLines = 0xFFFF77,
                  .PencilmarkLines = 0x6E6E6E,
                  .HintCells = 0xFF7F00,
                  .HintDomains = 0xC76504,
                  .Alerts = 0xFF0000,
                  .Margin = 0x000000},
           .Tiles = {.Given = 0, .Unknown = 0, .Grid = 0},
           .Lines = {.Primary = 16, .Secondary = 6, .Border = 0},
           .In3D = {.Cells = False, .Primary = True, .Secondary = True}},
    Preset{.Number = 4,
           .In = {.GivenCells = 0xB9B9BB,
                  .UnknownCells = 0xB9B9BB,
                  .SelectedCells = 0x77FFFF,
                  .GivenNumbers = 0x0200D3,
                  .UnknownNumbers = 0x000000,
                  .PrimaryLines = 0xFF5555,
                  .SecondaryLines = 0x000000,
                  .PencilmarkLines = 0x6E6E6E,
                  .HintCells = 0xFFFF00,
                  .HintDomains = 0xAAAA00,
                  .Alerts = 0xFF0000,
                  .Margin = 0x036ECC},
           .Tiles = {.Given = 9, .Unknown = 9, .Grid = 8},
           .Lines = {.Primary = 16, .Secondary = 0, .Border = 0},
           .In3D = {.Cells = True, .Primary = True, .Secondary = True}},
    Preset{.Number = 5,
           .In = {.GivenCells = 0x770000,
                  .UnknownCells = 0xFFB366,
                  .SelectedCells = 0xFF4444,
                  .GivenNumbers = 0xFFFF11,
                  .UnknownNumbers = 0x000000,
                  .PrimaryLines = 0x773C00,
                  .SecondaryLines = 0x994D00,
                  .PencilmarkLines = 0x000000,
                  .HintCells = 0x4444FF,
                  .HintDomains = 0x55B3FF,
                  .Alerts = 0xFFFFFF,
                  .Margin = 0xBBBBBB},
           .Tiles = {.Given = 7, .Unknown = 7, .Grid = 7},
           .Lines = {.Primary = 20, .Secondary = 6, .Border = 0},
           .In3D = {.Cells = False, .Primary = True, .Secondary = True}},
    Preset{.Number = 6,
           .In = {.GivenCells = 0x1194FF,
                  .UnknownCells = 0x55B3FF,
                  .SelectedCells = 0xFFFFFF,
                  .GivenNumbers = 0x000000,
                  .UnknownNumbers = 0x000000,
                  .PrimaryLines = 0x000000,
                  .SecondaryLines = 0x000000,
                  .PencilmarkLines = 0x6E6E6E,
                  .HintCells = 0xFFFF00,
                  .HintDomains = 0xAAAA00,
                  .Alerts = 0xFF0000,
                  .Margin = 0x838383},
           .Tiles = {.Given = 0, .Unknown = 0, .Grid = 0},
           .Lines = {.Primary = 14, .Secondary = 4, .Border = 8},
           .In3D = {.Cells = True, .Primary = False, .Secondary = False}},
    Preset{.Number = 7,
           .In = {.GivenCells = 0xC0C0C0,
                  .UnknownCells = 0xC0C0C0,
                  .SelectedCells = 0x77FFFF,
                  .GivenNumbers = 0x000000,
                  .UnknownNumbers = 0x0000EE,
                  .PrimaryLines = 0xC0C0C0,
                  .SecondaryLines = 0xC0C0C0,
                  .PencilmarkLines = 0x6E6E6E,
                  .HintCells = 0xFF77FF,
                  .HintDomains = 0xBE66FF,
                  .Alerts = 0xFF0000,
                  .Margin = 0x4C0086},
           .Tiles = {.Given = 0, .Unknown = 0, .Grid = 1},
           .Lines = {.Primary = 12, .Secondary = 4, .Border = 12},
           .In3D = {.Cells = True, .Primary = False, .Secondary = False}},
    Preset{.Number = 8,
           .In = {.GivenCells = 0x000000,
                  .UnknownCells = 0xFF00FF,
                  .SelectedCells = 0xFF0086,
                  .GivenNumbers = 0x77003F,
                  .UnknownNumbers = 0x333333,
                  .PrimaryLines = 0x0000FF,
                  .SecondaryLines = 0x0000FF,
                  .PencilmarkLines = 0x0000FF,
                  .HintCells = 0x00BB46,
                  .HintDomains = 0x00FF00,
                  .Alerts = 0xFF0000,
                  .Margin = 0x000000},
           .Tiles = {.Given = 0, .Unknown = 9, .Grid = 5},
           .Lines = {.Primary = 20, .Secondary = 10, .Border = 0},
           .In3D = {.Cells = True, .Primary = True, .Secondary = True}},
    Preset{.Number = 9,
           .In = {.GivenCells = 0xC0C0C0,
                  .UnknownCells = 0xBBFFD5,
                  .SelectedCells = 0x77FFFF,
                  .GivenNumbers = 0x000000,
                  .UnknownNumbers = 0x000000,
                  .PrimaryLines = 0xBBBBBB,
                  .SecondaryLines = 0x000000,
                  .PencilmarkLines = 0x6E6E6E,
                  .HintCells = 0x00BB46,
                  .HintDomains = 0x00FF00,
                  .Alerts = 0xFF0000,
                  .Margin = 0xC0C0C0},
           .Tiles = {.Given = 0, .Unknown = 9, .Grid = 5},
           .Lines = {.Primary = 20, .Secondary = 10, .Border = 0},
           .In3D = {.Cells = True, .Primary = True, .Secondary = True}},
    Preset{.Number = 10,
           .In = {.GivenCells = 0x000000,
                  .UnknownCells = 0x000000,
                  .SelectedCells = 0xAAAAAA,
                  .GivenNumbers = 0xFFFF00,
                  .UnknownNumbers = 0xFFFFFF,
                  .PrimaryLines = 0x008CFF,
                  .SecondaryLines = 0xBBBBBB,
                  .PencilmarkLines = 0xBBBBBB,
                  .HintCells = 0x0079DD,
                  .HintDomains = 0x00FFFF,
                  .Alerts = 0xFF0000,
                  .Margin = 0xFFFFFF},
           .Tiles = {.Given = 0, .Unknown = 0, .Grid = 7},
           .Lines = {.Primary = 10, .Secondary = 1, .Border = 0},
           .In3D = {.Cells = False, .Primary = True, .Secondary = False}},
    Preset{.Number = 100,
           .In = {.GivenCells = 0xEE0000,
                  .UnknownCells = 0xF6F6F6,
                  .SelectedCells = 0x77FFFF,
                  .GivenNumbers = 0x000000,
                  .UnknownNumbers = 0x000000,
                  .PrimaryLines = 0x0079DD,
                  .SecondaryLines = 0x000000,
                  .PencilmarkLines = 0x6E6E6E,
                  .HintCells = 0x00BB46,
                  .HintDomains = 0x00FF00,
                  .Alerts = 0xFF0000,
                  .Margin = 0xC0C0C0},
           .Tiles = {.Given = 9, .Unknown = 9, .Grid = 5},
           .Lines = {.Primary = 20, .Secondary = 0, .Border = 0},
           .In3D = {.Cells = True, .Primary = True, .Secondary = True}},
};

void Load(const Colours &colours)
{
    ColourTable[GivenCellColour] = colours.GivenCells;
    ColourTable[UnknownCellColour] = colours.UnknownCells;
    ColourTable[SelectedCellColour] = colours.SelectedCells;
    ColourTable[GivenNumberColour] = colours.GivenNumbers;
    ColourTable[UnknownNumberColour] = colours.UnknownNumbers;
    ColourTable[PrimaryLineColour] = colours.PrimaryLines;
    ColourTable[SecondaryLineColour] = colours.SecondaryLines;
    ColourTable[PencilmarkLineColour] = colours.PencilmarkLines;
    ColourTable[HintCellColour] = colours.HintCells;
    ColourTable[HintDomainColour] = colours.HintDomains;
    ColourTable[AlertColour] = colours.Alerts;
    ColourTable[MarginColour] = colours.Margin;
}

void Load(const Preset &preset)
{
    Load(preset.In);
    GivenTexture = preset.Tiles.Given;
    UnknownTexture = preset.Tiles.Unknown;
    GridTexture = preset.Tiles.Grid;
    GivenCells3D = preset.In3D.Cells;
    UnknownCells3D = preset.In3D.Cells;
    SelectedCells3D = preset.In3D.Cells;
    PrimaryThickness = preset.Lines.Primary;
    SecondaryThickness = preset.Lines.Secondary;
    PrimaryGrid3D = preset.In3D.Primary;
    SecondaryGrid3D = preset.In3D.Secondary;
    BorderThickness = preset.Lines.Border;
}

} // namespace

bool LoadPreset(std::int32_t number)
{
    if (number == DefaultPreset) {
        SetDefaultLook();
        return true;
    }
    const auto *preset = std::ranges::find(Presets, number, &Preset::Number);
    if (preset == Presets.end()) {
        return false;
    }
    Load(*preset);
    return true;
}

void ApplyPreset(std::int32_t number)
{
    if (LoadPreset(number)) {
        // Before the refresh, which writes the margin's texts in the colour that this picks.
        PickMarginTextColour();
        ResizeWindow();
    }
}

} // namespace kelvarine
