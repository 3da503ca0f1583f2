// The kinds of settings that the configuration file holds: how each is corrected when it is read,
// and how it stands in the file.
#pragma once

#include "game/event_sound.h"
#include "grid/cell_word.h"
#include "grid/colour.h"
#include "grid/range.h"

#include <cstdint>
#include <limits>
#include <variant>

namespace kelvarine {

// Whatever a word can hold.
inline constexpr Range AnyNumber{std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max()};

// The version, which is looked at before all others.
struct Version {};

// A number of which a value outside its range is not taken.
struct Number {
    std::int32_t *Setting;
    Range Values = AnyNumber;
};

// A number of which a value outside its range becomes another one.
struct CorrectedNumber {
    std::int32_t *Setting;
    Range Values;
    std::int32_t Otherwise;
};

struct Truth {
    Flag *Setting;
};

// A mask, of which no bits at all become others.
struct Mask {
    std::uint32_t *Setting;
    std::uint32_t InsteadOfNone = 0;
};

// The file has red in the lowest byte, the program in the third.
struct BoardColour {
    Colour *Setting;
};

// A place or a side of a window: pixels here, twips in the file. What is outside the range of
// pixels is not taken.
struct Pixels {
    std::int32_t *Setting;
    Range Values = AnyNumber;
};

// Inches here, hundredths in the file. What is outside the range of hundredths is not taken, and
// written as its nearest end.
struct Inches {
    double *Setting;
    Range Values;
};

// The state of the main window; the others are as good as the usual one.
struct WindowState {
    Flag *Maximised;
};

// An index into a list of sound files. One above the number of files leaves the one of the start; a
// negative one means none.
struct SoundIndex {
    std::int32_t *Setting;
    const SoundList *Files;
};

using Setting = std::variant<Version, Number, CorrectedNumber, Truth, Mask, BoardColour, Pixels,
                             Inches, WindowState, SoundIndex>;

// The word that stands in the file for a setting as it is.
std::uint32_t WordOfSetting(const Setting &setting);

// Takes a setting from its word in the file, as its kind says.
void TakeSetting(const Setting &setting, std::uint32_t word);

} // namespace kelvarine
