#include "ui/window/key_decoder.h"

#include "input/keys.h"
#include "input/mouse.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kelvarine {

namespace {

struct PlacedKey {
    std::uint32_t ScanCode;
    std::int32_t Code;
};

// Keys that mean the same on every layout.
constexpr std::array PlacedKeys{
    PlacedKey{10, DigitCode + 1},  PlacedKey{11, DigitCode + 2},   PlacedKey{12, DigitCode + 3},
    PlacedKey{13, DigitCode + 4},  PlacedKey{14, DigitCode + 5},   PlacedKey{15, DigitCode + 6},
    PlacedKey{16, DigitCode + 7},  PlacedKey{17, DigitCode + 8},   PlacedKey{18, DigitCode + 9},
    PlacedKey{19, DigitCode},      PlacedKey{79, KeypadCode + 7},  PlacedKey{80, KeypadCode + 8},
    PlacedKey{81, KeypadCode + 9}, PlacedKey{82, KeypadMinusCode}, PlacedKey{83, KeypadCode + 4},
    PlacedKey{84, KeypadCode + 5}, PlacedKey{85, KeypadCode + 6},  PlacedKey{87, KeypadCode + 1},
    PlacedKey{88, KeypadCode + 2}, PlacedKey{89, KeypadCode + 3},  PlacedKey{90, KeypadCode},
};

struct NamedKey {
    int Key;
    std::int32_t Code;
};

constexpr std::array NamedKeys{
    NamedKey{Qt::Key_PageUp, PageUpCode}, NamedKey{Qt::Key_PageDown, PageDownCode},
    NamedKey{Qt::Key_Left, LeftCode},     NamedKey{Qt::Key_Up, UpCode},
    NamedKey{Qt::Key_Right, RightCode},   NamedKey{Qt::Key_Down, DownCode},
    NamedKey{Qt::Key_Insert, InsertCode}, NamedKey{Qt::Key_Delete, DeleteCode},
    NamedKey{Qt::Key_Shift, ShiftCode},   NamedKey{Qt::Key_Control, CtrlCode},
    NamedKey{Qt::Key_Minus, MinusCode},   NamedKey{Qt::Key_Escape, EscapeCode},
};

// The letters by place, for layouts that write no Latin ones.
constexpr std::uint32_t FirstLetterScanCode = 24;
constexpr std::string_view LettersByPlace = "QWERTYUIOP    ASDFGHJKL     ZXCVBNM";

constexpr int FirstForeignKey = 0x100;
constexpr int FirstNamelessKey = 0x01000000; // from here on keys without a character

std::int32_t LetterAt(std::uint32_t scanCode)
{
    const std::size_t place = scanCode - FirstLetterScanCode;
    if (place >= LettersByPlace.size() || LettersByPlace[place] == ' ') {
        return 0;
    }
    return LettersByPlace[place];
}

} // namespace

std::int32_t DecodeKey(std::uint32_t scanCode, int key, bool keypad)
{
    for (const PlacedKey &placed : PlacedKeys) {
        if (placed.ScanCode == scanCode) {
            return placed.Code;
        }
    }
    // Without a scan code, as with events made by assistive tools, the character has to do.
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        return key - Qt::Key_0 + (keypad ? KeypadCode : DigitCode);
    }
    for (const NamedKey &named : NamedKeys) {
        if (named.Key == key) {
            return named.Code;
        }
    }
    if (key >= Qt::Key_A && key <= Qt::Key_Z) {
        return key;
    }
    const bool foreign = key >= FirstForeignKey && key < FirstNamelessKey;
    return foreign ? LetterAt(scanCode) : 0;
}

std::int32_t KeyCodeOf(const QKeyEvent &event)
{
    return DecodeKey(event.nativeScanCode(), event.key(),
                     event.modifiers().testFlag(Qt::KeypadModifier));
}

std::int32_t ModifiersOf(Qt::KeyboardModifiers modifiers)
{
    std::int32_t sum = 0;
    sum += modifiers.testFlag(Qt::ShiftModifier) ? ShiftKey : 0;
    sum += modifiers.testFlag(Qt::ControlModifier) ? CtrlKey : 0;
    sum += modifiers.testFlag(Qt::AltModifier) ? AltKey : 0;
    return sum;
}

bool IsModifierOrTab(int key)
{
    constexpr std::array keys{Qt::Key_Shift,   Qt::Key_Control, Qt::Key_Alt,
                              Qt::Key_AltGr,   Qt::Key_Meta,    Qt::Key_Super_L,
                              Qt::Key_Super_R, Qt::Key_Tab,     Qt::Key_Backtab};
    return std::ranges::find(keys, key) != keys.end();
}

bool IsDesktopKey(int key)
{
    constexpr std::array keys{Qt::Key_Alt,     Qt::Key_AltGr,   Qt::Key_Meta,
                              Qt::Key_Super_L, Qt::Key_Super_R, Qt::Key_Menu};
    return std::ranges::find(keys, key) != keys.end();
}

} // namespace kelvarine
