#include "configure/configuration.h"

#include "board/look.h"
#include "board/margin.h"
#include "game/event_sound.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/colour.h"
#include "grid/grid.h"
#include "grid/little_endian.h"
#include "grid/names.h"
#include "grid/rounding.h"
#include "logic/technique_masks.h"
#include "outside/folders.h"
#include "outside/messages.h"
#include "outside/whole_file.h"
#include "print/print_settings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>
#include <variant>

namespace kelvarine {

std::int32_t ReservedSetting;

namespace {

constexpr std::string_view FileName = "config.sdu";

// ---- The kinds of settings: how each is corrected when read, and how it stands in the file ------

// The version, which is looked at before all others.
struct Version {};

std::uint32_t WordOf(const Version & /*setting*/)
{
    return ConfigurationVersion;
}

void Take(const Version & /*setting*/, std::uint32_t /*word*/)
{
}

// A number of which a value outside its range is not taken.
struct Number {
    std::int32_t *Setting;
    std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
    std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
};

std::uint32_t WordOf(const Number &number)
{
    return static_cast<std::uint32_t>(*number.Setting);
}

void Take(const Number &number, std::uint32_t word)
{
    const auto value = static_cast<std::int32_t>(word);
    if (value >= number.Lowest && value <= number.Highest) {
        *number.Setting = value;
    }
}

// A number of which a value outside 0 and its highest becomes another one.
struct CorrectedNumber {
    std::int32_t *Setting;
    std::int32_t Highest;
    std::int32_t Otherwise;
};

std::uint32_t WordOf(const CorrectedNumber &number)
{
    return static_cast<std::uint32_t>(*number.Setting);
}

void Take(const CorrectedNumber &number, std::uint32_t word)
{
    const auto value = static_cast<std::int32_t>(word);
    *number.Setting = value >= 0 && value <= number.Highest ? value : number.Otherwise;
}

struct Truth {
    Flag *Setting;
};

std::uint32_t WordOf(const Truth &truth)
{
    return static_cast<std::uint32_t>(*truth.Setting);
}

void Take(const Truth &truth, std::uint32_t word)
{
    *truth.Setting = word != 0 ? True : False;
}

// A mask, of which no bits at all become others.
struct Mask {
    std::uint32_t *Setting;
    std::uint32_t InsteadOfNone = 0;
};

std::uint32_t WordOf(const Mask &mask)
{
    return *mask.Setting;
}

void Take(const Mask &mask, std::uint32_t word)
{
    *mask.Setting = word == 0 ? mask.InsteadOfNone : word;
}

// The file has red in the lowest byte, the program in the third.
struct BoardColour {
    Colour *Setting;
};

constexpr std::uint32_t SwapRedAndBlue(std::uint32_t colour)
{
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

std::uint32_t WordOf(const BoardColour &colour)
{
    return SwapRedAndBlue(*colour.Setting);
}

void Take(const BoardColour &colour, std::uint32_t word)
{
    *colour.Setting = SwapRedAndBlue(word);
}

// A place or a side of a window: pixels here, twips in the file.
struct Pixels {
    std::int32_t *Setting;
    std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
    std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
};

std::uint32_t WordOf(const Pixels &pixels)
{
    return static_cast<std::uint32_t>(*pixels.Setting) * static_cast<std::uint32_t>(TwipsPerPixel);
}

void Take(const Pixels &pixels, std::uint32_t word)
{
    const std::int32_t value = static_cast<std::int32_t>(word) / TwipsPerPixel;
    if (value >= pixels.Lowest && value <= pixels.Highest) {
        *pixels.Setting = value;
    }
}

// Inches here, hundredths in the file.
struct Inches {
    double *Setting;
    std::int32_t Lowest; // hundredths
    std::int32_t Highest;
};

std::uint32_t WordOf(const Inches &inches)
{
    const double hundredths = RoundHalfEven(*inches.Setting * 100);
    if (std::isnan(hundredths)) {
        return 0;
    }
    const double lowest = inches.Lowest;
    const double highest = inches.Highest;
    return static_cast<std::uint32_t>(
        static_cast<std::int32_t>(std::clamp(hundredths, lowest, highest)));
}

void Take(const Inches &inches, std::uint32_t word)
{
    const auto value = static_cast<std::int32_t>(word);
    if (value >= inches.Lowest && value <= inches.Highest) {
        *inches.Setting = value / 100.0;
    }
}

// The state of the main window; the others are as good as the usual one.
struct WindowState {
    Flag *Maximised;
};

constexpr std::uint32_t MaximisedState = 2;

std::uint32_t WordOf(const WindowState &state)
{
    return *state.Maximised != False ? MaximisedState : 0;
}

void Take(const WindowState &state, std::uint32_t word)
{
    *state.Maximised = word == MaximisedState ? True : False;
}

// An index into a list of sound files.
struct SoundIndex {
    std::int32_t *Setting;
    const SoundList *Files;
};

std::uint32_t WordOf(const SoundIndex &index)
{
    return static_cast<std::uint32_t>(*index.Setting);
}

// An index above the number of files leaves the one of the start; a negative one means none.
void Take(const SoundIndex &index, std::uint32_t word)
{
    const std::int32_t value = std::max(0, static_cast<std::int32_t>(word));
    const std::size_t entries = std::max<std::size_t>(1, index.Files->size());
    if (static_cast<std::size_t>(value) < entries) {
        *index.Setting = value;
    }
}

using Setting = std::variant<Version, Number, CorrectedNumber, Truth, Mask, BoardColour, Pixels,
                             Inches, WindowState, SoundIndex>;

// ---- The table ---------------------------------------------------------------------------------

struct Row {
    std::size_t Record; // 1..11
    std::size_t Element;
    Setting Target;
};

constexpr std::int32_t ThickestLine = 50;
constexpr std::int32_t WidestMargin = 100;
constexpr std::int32_t LastTexture = 12;
constexpr std::int32_t LastAccessKey = 9; // the tabs end at 7; 8 and 9 show none
constexpr std::int32_t MostLinks = 81;
constexpr std::int32_t LoudestVolume = 65280;
constexpr std::int32_t NeverLinks = 0; // not the default, which is 1
constexpr std::uint32_t LevelFiveInsteadOfNone = 0xFF000000;
constexpr std::int32_t FarthestInch = 100000; // in hundredths: no paper is so large

// Where each setting stands. Elements that are not listed are written as 0 and not read.
const std::array Layout{
    Row{1, 0, Version{}},
    Row{1, 1, Number{&PrimaryThickness, 0, ThickestLine}},
    Row{1, 2, Number{&SecondaryThickness, 0, ThickestLine}},
    Row{1, 3, Number{&BorderThickness, 0, ThickestLine}},
    Row{1, 4, Number{&MarginThickness, 0, WidestMargin}},
    Row{1, 5, Truth{&GivenCells3D}},
    Row{1, 6, Truth{&UnknownCells3D}},
    Row{1, 7, Truth{&SelectedCells3D}},
    Row{1, 8, Number{&ColumnFormat, 0, 4}},
    Row{1, 9, Number{&RowFormat, 0, 4}},

    Row{2, 0, Number{&SolutionsFormat, 0, 1}},
    Row{2, 1, Truth{&PencilmarkLines}},
    Row{2, 2, Number{&PencilmarkLayout, 0, 1}},
    Row{2, 3, Number{&ReservedSetting}},
    Row{2, 4, Number{&CurrentTab, 0, LastAccessKey}},
    Row{2, 5, Truth{&PrimaryGrid3D}},
    Row{2, 6, Truth{&SecondaryGrid3D}},
    Row{2, 7, Number{&GivenTexture, 0, LastTexture}},
    Row{2, 8, Number{&UnknownTexture, 0, LastTexture}},
    Row{2, 9, Number{&GridTexture, 0, LastTexture}},

    Row{3, 0, BoardColour{&ColourTable[0]}},
    Row{3, 1, BoardColour{&ColourTable[1]}},
    Row{3, 2, BoardColour{&ColourTable[2]}},
    Row{3, 3, BoardColour{&ColourTable[3]}},
    Row{3, 4, BoardColour{&ColourTable[4]}},
    Row{3, 5, BoardColour{&ColourTable[5]}},
    Row{3, 6, BoardColour{&ColourTable[6]}},
    Row{3, 7, BoardColour{&ColourTable[7]}},
    Row{3, 8, BoardColour{&ColourTable[8]}},
    Row{3, 9, BoardColour{&ColourTable[9]}},

    Row{4, 0, BoardColour{&ColourTable[10]}},
    Row{4, 1, BoardColour{&ColourTable[11]}},
    Row{4, 2, Number{&RevealPattern, 0, PatternCount - 1}},
    Row{4, 3, Truth{&FillOnStart}},
    Row{4, 4, Truth{&SolveOnStart}},
    Row{4, 5, Mask{&DifficultySelection}},
    Row{4, 6, Truth{&IncludeSingles}},
    Row{4, 7, Number{&MinGivens}},
    Row{4, 8, Number{&MaxGivens}},

    Row{5, 0, WindowState{&MainMaximised}},
    Row{5, 1, Pixels{&MainPlace.Left}},
    Row{5, 2, Pixels{&MainPlace.Top}},
    Row{5, 3, Pixels{&MainPlace.Width, 0, LongestSide}},
    Row{5, 4, Pixels{&MainPlace.Height, 0, LongestSide}},

    Row{6, 0, Truth{&ConfigureOpen}},
    Row{6, 1, Pixels{&ConfigurePlace.Left}},
    Row{6, 2, Pixels{&ConfigurePlace.Top}},
    Row{6, 3, Pixels{&ConfigurePlace.Width, 0, LongestSide}},
    Row{6, 4, Pixels{&ConfigurePlace.Height, 0, LongestSide}},
    Row{6, 5, Truth{&SolutionsOpen}},
    Row{6, 6, Pixels{&SolutionsPlace.Left}},
    Row{6, 7, Pixels{&SolutionsPlace.Top}},
    Row{6, 8, Pixels{&SolutionsPlace.Width, 0, LongestSide}},
    Row{6, 9, Pixels{&SolutionsPlace.Height, 0, LongestSide}},

    Row{7, 1, Pixels{&FileDialogPlace.Left}},
    Row{7, 2, Pixels{&FileDialogPlace.Top}},
    Row{7, 3, Pixels{&FileDialogPlace.Width, 0, LongestSide}},
    Row{7, 4, Pixels{&FileDialogPlace.Height, 0, LongestSide}},
    Row{7, 5, Truth{&StatisticsOpen}},
    Row{7, 6, Pixels{&StatisticsPlace.Left}},
    Row{7, 7, Pixels{&StatisticsPlace.Top}},

    Row{8, 0, Mask{&SolveMask}},
    Row{8, 1, Mask{&AlertMask}},
    Row{8, 2, Truth{&PrintAspect}},
    Row{8, 3, Truth{&PrintCentre}},
    Row{8, 4, Truth{&PrintFullPage}},
    Row{8, 5, Inches{&PrintWidth, 0, FarthestInch}},
    Row{8, 6, Inches{&PrintHeight, 0, FarthestInch}},
    // Centring a picture that is larger than its page puts it beyond the page's edge.
    Row{8, 7, Inches{&PrintLeft, -FarthestInch, FarthestInch}},
    Row{8, 8, Inches{&PrintTop, -FarthestInch, FarthestInch}},
    Row{8, 9, Truth{&PrintIncludeSolutions}},

    Row{9, 0, Truth{&CoordinatesVisible}},
    Row{9, 1, CorrectedNumber{&StrongLinkMode, 2, NeverLinks}},
    Row{9, 2, Truth{&ToolbarVisible}},
    Row{9, 3, Truth{&ToolTipsVisible}},
    Row{9, 4, Number{&CoordSeparator, 0, 3}},
    Row{9, 5, Number{&CoordBrackets, 0, 4}},
    Row{9, 6, Truth{&CoordRowFirst}},

    Row{10, 0, Mask{&LevelTable[1]}},
    Row{10, 1, Mask{&LevelTable[2]}},
    Row{10, 2, Mask{&LevelTable[3]}},
    Row{10, 3, Mask{&LevelTable[4]}},
    Row{10, 4, Mask{&LevelTable[5], LevelFiveInsteadOfNone}},
    Row{10, 5, Mask{&LevelTable[RequiredRow]}},
    Row{10, 6, CorrectedNumber{&MaxSinglesLinks, MostLinks, MostLinks}},
    Row{10, 7, CorrectedNumber{&MaxRPLinks, MostLinks, MostLinks}},
    Row{10, 8, CorrectedNumber{&MaxXYLinks, MostLinks, MostLinks}},

    Row{11, 0, SoundIndex{&AnnouncerSound, &AnnouncerFiles}},
    Row{11, 1, SoundIndex{&AlertSound, &AlertFiles}},
    Row{11, 2, SoundIndex{&WinSound, &WinFiles}},
    Row{11, 4, Number{&SoundVolumes[0], 0, LoudestVolume}},
    Row{11, 5, Number{&SoundVolumes[1], 0, LoudestVolume}},
    Row{11, 6, Number{&SoundVolumes[2], 0, LoudestVolume}},
    Row{11, 7, Number{&SoundVolumes[3], 0, LoudestVolume}},
    Row{11, 8, Truth{&SoundDisabled}},
};

// ---- Words and bytes ---------------------------------------------------------------------------

std::size_t OffsetOf(const Row &row)
{
    return (row.Record - 1) * BytesInRecord + 4 * row.Element;
}

// The singles stand in a level whatever the file says. On the configuration screen a technique only
// ever goes from level to level, and without these two no count of solutions comes to an end.
void KeepSinglesInALevel()
{
    const std::uint32_t inLevels = std::accumulate(LevelTable.begin() + 1, LevelTable.begin() + 6,
                                                   std::uint32_t{0}, std::bit_or());
    LevelTable[1] |= SinglesMask & ~inLevels;
}

} // namespace

void SetConfigurationDefaults()
{
    ReservedSetting = 0;
}

void TakeConfiguration(std::string_view bytes)
{
    const std::size_t whole = bytes.size() / BytesInRecord * BytesInRecord;
    if (whole == 0 || NumberAt<std::uint32_t>(bytes, 0) != ConfigurationVersion) {
        return;
    }
    for (const Row &row : Layout) {
        if (const std::size_t offset = OffsetOf(row); offset < whole) {
            const std::uint32_t word = NumberAt<std::uint32_t>(bytes, offset);
            std::visit([word](const auto &setting) { Take(setting, word); }, row.Target);
        }
    }
    KeepSinglesInALevel();
    PickMarginTextColour();
}

std::string ConfigurationBytes()
{
    std::string bytes(ConfigurationSize, '\0');
    for (const Row &row : Layout) {
        PutNumber(bytes, OffsetOf(row),
                  std::visit([](const auto &setting) { return WordOf(setting); }, row.Target));
    }
    return bytes;
}

void ReadConfiguration()
{
    std::string bytes;
    std::string unread;
    if (ReadWholeFile(SettingsFolder() + std::string(FileName), bytes, unread, ConfigurationSize)) {
        TakeConfiguration(bytes);
    }
}

void WriteConfiguration()
{
    std::string error;
    if (!ReplaceWholeFile(SettingsFolder() + std::string(FileName), ConfigurationBytes(), error)) {
        ShowMessage("Unable to save settings.\r\r" + error);
    }
}

} // namespace kelvarine
