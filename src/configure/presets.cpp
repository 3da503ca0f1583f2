#include "configure/presets.h"

#include "board/look.h"
#include "board/margin.h"
#include "grid/colour.h"
#include "outside/window.h"

#include <algorithm>
#include <array>

namespace kelvarine {

namespace {

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
    std::array<Colour, ColourCount> Colours;
    Textures Tiles;
    Thicknesses Lines;
    Effects In3D;
};

// The look of a start, which stands with the other defaults and not in the table.
constexpr std::int32_t DefaultPreset = 2;

constexpr std::array<Preset, 11> Presets{{
    {0,
     {0x7875FA, 0xFFFFFF, 0xFE86C4, 0xF6F4F7, 0x000000, 0x000000, 0x5D5D5D, 0x0067BB, 0x03FB04,
      0x00BB46, 0xFF0000, 0x89C7FF},
     {4, 0, 0},
     {8, 1, 10},
     {True, False, False}},
    {1,
     {0xFFFFFF, 0xFFFFFF, 0xCDCDCD, 0x000000, 0x6E6E6E, 0x000000, 0x000000, 0x888888, 0x00FE00,
      0x87FC87, 0xFF0000, 0x89C7FF},
     {0, 0, 0},
     {4, 1, 10},
     {False, False, False}},
    {3,
     {0x2B262A, 0x2B262A, 0x038AFF, 0xFEFE00, 0xF6F6F6, 0xFFFF77, 0xFFFF77, 0x6E6E6E, 0xFF7F00,
      0xC76504, 0xFF0000, 0x000000},
     {0, 0, 0},
     {16, 6, 0},
     {False, True, True}},
    {4,
     {0xB9B9BB, 0xB9B9BB, 0x77FFFF, 0x0200D3, 0x000000, 0xFF5555, 0x000000, 0x6E6E6E, 0xFFFF00,
      0xAAAA00, 0xFF0000, 0x036ECC},
     {9, 9, 8},
     {16, 0, 0},
     {True, True, True}},
    {5,
     {0x770000, 0xFFB366, 0xFF4444, 0xFFFF11, 0x000000, 0x773C00, 0x994D00, 0x000000, 0x4444FF,
      0x55B3FF, 0xFFFFFF, 0xBBBBBB},
     {7, 7, 7},
     {20, 6, 0},
     {False, True, True}},
    {6,
     {0x1194FF, 0x55B3FF, 0xFFFFFF, 0x000000, 0x000000, 0x000000, 0x000000, 0x6E6E6E, 0xFFFF00,
      0xAAAA00, 0xFF0000, 0x838383},
     {0, 0, 0},
     {14, 4, 8},
     {True, False, False}},
    {7,
     {0xC0C0C0, 0xC0C0C0, 0x77FFFF, 0x000000, 0x0000EE, 0xC0C0C0, 0xC0C0C0, 0x6E6E6E, 0xFF77FF,
      0xBE66FF, 0xFF0000, 0x4C0086},
     {0, 0, 1},
     {12, 4, 12},
     {True, False, False}},
    {8,
     {0x000000, 0xFF00FF, 0xFF0086, 0x77003F, 0x333333, 0x0000FF, 0x0000FF, 0x0000FF, 0x00BB46,
      0x00FF00, 0xFF0000, 0x000000},
     {0, 9, 5},
     {20, 10, 0},
     {True, True, True}},
    {9,
     {0xC0C0C0, 0xBBFFD5, 0x77FFFF, 0x000000, 0x000000, 0xBBBBBB, 0x000000, 0x6E6E6E, 0x00BB46,
      0x00FF00, 0xFF0000, 0xC0C0C0},
     {0, 9, 5},
     {20, 10, 0},
     {True, True, True}},
    {10,
     {0x000000, 0x000000, 0xAAAAAA, 0xFFFF00, 0xFFFFFF, 0x008CFF, 0xBBBBBB, 0xBBBBBB, 0x0079DD,
      0x00FFFF, 0xFF0000, 0xFFFFFF},
     {0, 0, 7},
     {10, 1, 0},
     {False, True, False}},
    {100,
     {0xEE0000, 0xF6F6F6, 0x77FFFF, 0x000000, 0x000000, 0x0079DD, 0x000000, 0x6E6E6E, 0x00BB46,
      0x00FF00, 0xFF0000, 0xC0C0C0},
     {9, 9, 5},
     {20, 0, 0},
     {True, True, True}},
}};

void Load(const Preset &preset)
{
    ColourTable = preset.Colours;
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
