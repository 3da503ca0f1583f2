#include "configure/setting_table.h"

#include "board/look.h"
#include "configure/configuration.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "print/print_settings.h"

#include <array>

namespace kelvarine {

namespace {

constexpr std::int32_t NeverLinks = 0; // not the default, which is 1
constexpr std::uint32_t LevelFiveInsteadOfNone = 0xFF000000;

constexpr std::array Rows{
    SettingRow{1, 0, Version{}},
    SettingRow{1, 1, Number{&PrimaryThickness, LineThicknessRange}},
    SettingRow{1, 2, Number{&SecondaryThickness, LineThicknessRange}},
    SettingRow{1, 3, Number{&BorderThickness, LineThicknessRange}},
    SettingRow{1, 4, Number{&MarginThickness, MarginThicknessRange}},
    SettingRow{1, 5, Truth{&GivenCells3D}},
    SettingRow{1, 6, Truth{&UnknownCells3D}},
    SettingRow{1, 7, Truth{&SelectedCells3D}},
    SettingRow{1, 8, Number{&ColumnFormat, ColumnFormatRange}},
    SettingRow{1, 9, Number{&RowFormat, RowFormatRange}},

    SettingRow{2, 0, Number{&SolutionsFormat, SolutionsFormatRange}},
    SettingRow{2, 1, Truth{&PencilmarkLines}},
    SettingRow{2, 2, Number{&PencilmarkLayout, PencilmarkLayoutRange}},
    SettingRow{2, 3, Number{&ReservedSetting}},
    SettingRow{2, 4, Number{&CurrentTab, CurrentTabRange}},
    SettingRow{2, 5, Truth{&PrimaryGrid3D}},
    SettingRow{2, 6, Truth{&SecondaryGrid3D}},
    SettingRow{2, 7, Number{&GivenTexture, TextureRange}},
    SettingRow{2, 8, Number{&UnknownTexture, TextureRange}},
    SettingRow{2, 9, Number{&GridTexture, TextureRange}},

    SettingRow{3, 0, BoardColour{&ColourTable[0]}},
    SettingRow{3, 1, BoardColour{&ColourTable[1]}},
    SettingRow{3, 2, BoardColour{&ColourTable[2]}},
    SettingRow{3, 3, BoardColour{&ColourTable[3]}},
    SettingRow{3, 4, BoardColour{&ColourTable[4]}},
    SettingRow{3, 5, BoardColour{&ColourTable[5]}},
    SettingRow{3, 6, BoardColour{&ColourTable[6]}},
    SettingRow{3, 7, BoardColour{&ColourTable[7]}},
    SettingRow{3, 8, BoardColour{&ColourTable[8]}},
    SettingRow{3, 9, BoardColour{&ColourTable[9]}},

    SettingRow{4, 0, BoardColour{&ColourTable[10]}},
    SettingRow{4, 1, BoardColour{&ColourTable[11]}},
    SettingRow{4, 2, Number{&RevealPattern, RevealPatternRange}},
    SettingRow{4, 3, Truth{&FillOnStart}},
    SettingRow{4, 4, Truth{&SolveOnStart}},
    SettingRow{4, 5, Mask{&DifficultySelection}},
    SettingRow{4, 6, Truth{&IncludeSingles}},
    SettingRow{4, 7, Number{&MinGivens}},
    SettingRow{4, 8, Number{&MaxGivens}},

    SettingRow{5, 0, WindowState{&MainMaximised}},
    SettingRow{5, 1, Pixels{&MainPlace.Left}},
    SettingRow{5, 2, Pixels{&MainPlace.Top}},
    SettingRow{5, 3, Pixels{&MainPlace.Width, WindowSideRange}},
    SettingRow{5, 4, Pixels{&MainPlace.Height, WindowSideRange}},

    SettingRow{6, 0, Truth{&ConfigureOpen}},
    SettingRow{6, 1, Pixels{&ConfigurePlace.Left}},
    SettingRow{6, 2, Pixels{&ConfigurePlace.Top}},
    SettingRow{6, 3, Pixels{&ConfigurePlace.Width, WindowSideRange}},
    SettingRow{6, 4, Pixels{&ConfigurePlace.Height, WindowSideRange}},
    SettingRow{6, 5, Truth{&SolutionsOpen}},
    SettingRow{6, 6, Pixels{&SolutionsPlace.Left}},
    SettingRow{6, 7, Pixels{&SolutionsPlace.Top}},
    SettingRow{6, 8, Pixels{&SolutionsPlace.Width, WindowSideRange}},
    SettingRow{6, 9, Pixels{&SolutionsPlace.Height, WindowSideRange}},

    SettingRow{7, 1, Pixels{&FileDialogPlace.Left}},
    SettingRow{7, 2, Pixels{&FileDialogPlace.Top}},
    SettingRow{7, 3, Pixels{&FileDialogPlace.Width, WindowSideRange}},
    SettingRow{7, 4, Pixels{&FileDialogPlace.Height, WindowSideRange}},
    SettingRow{7, 5, Truth{&StatisticsOpen}},
    SettingRow{7, 6, Pixels{&StatisticsPlace.Left}},
    SettingRow{7, 7, Pixels{&StatisticsPlace.Top}},

    SettingRow{8, 0, Mask{&SolveMask}},
    SettingRow{8, 1, Mask{&AlertMask}},
    SettingRow{8, 2, Truth{&PrintAspect}},
    SettingRow{8, 3, Truth{&PrintCentre}},
    SettingRow{8, 4, Truth{&PrintFullPage}},
    SettingRow{8, 5, Inches{&PrintWidth, PrintSizeRange}},
    SettingRow{8, 6, Inches{&PrintHeight, PrintSizeRange}},
    SettingRow{8, 7, Inches{&PrintLeft, PrintPlaceRange}},
    SettingRow{8, 8, Inches{&PrintTop, PrintPlaceRange}},
    SettingRow{8, 9, Truth{&PrintIncludeSolutions}},

    SettingRow{9, 0, Truth{&CoordinatesVisible}},
    SettingRow{9, 1, CorrectedNumber{&StrongLinkMode, StrongLinkModeRange, NeverLinks}},
    SettingRow{9, 2, Truth{&ToolbarVisible}},
    SettingRow{9, 3, Truth{&ToolTipsVisible}},
    SettingRow{9, 4, Number{&CoordSeparator, CoordSeparatorRange}},
    SettingRow{9, 5, Number{&CoordBrackets, CoordBracketsRange}},
    SettingRow{9, 6, Truth{&CoordRowFirst}},

    SettingRow{10, 0, Mask{&LevelTable[1]}},
    SettingRow{10, 1, Mask{&LevelTable[2]}},
    SettingRow{10, 2, Mask{&LevelTable[3]}},
    SettingRow{10, 3, Mask{&LevelTable[4]}},
    SettingRow{10, 4, Mask{&LevelTable[5], LevelFiveInsteadOfNone}},
    SettingRow{10, 5, Mask{&LevelTable[RequiredRow]}},
    SettingRow{10, 6, CorrectedNumber{&MaxSinglesLinks, LinkLimitRange, LinkLimitRange.Most}},
    SettingRow{10, 7, CorrectedNumber{&MaxRPLinks, LinkLimitRange, LinkLimitRange.Most}},
    SettingRow{10, 8, CorrectedNumber{&MaxXYLinks, LinkLimitRange, LinkLimitRange.Most}},

    SettingRow{11, 0, SoundIndex{&AnnouncerSound, &AnnouncerFiles}},
    SettingRow{11, 1, SoundIndex{&AlertSound, &AlertFiles}},
    SettingRow{11, 2, SoundIndex{&WinSound, &WinFiles}},
    SettingRow{11, 4, Number{&SoundVolumes[0], VolumeRange}},
    SettingRow{11, 5, Number{&SoundVolumes[1], VolumeRange}},
    SettingRow{11, 6, Number{&SoundVolumes[2], VolumeRange}},
    SettingRow{11, 7, Number{&SoundVolumes[3], VolumeRange}},
    SettingRow{11, 8, Truth{&SoundDisabled}},
};

} // namespace

const std::span<const SettingRow> SettingTable(Rows);

} // namespace kelvarine
