// The keys of the board: one table from key code and modifier state to command.
#pragma once

#include <cstdint>
#include <span>

namespace kelvarine {

// Key codes by key, not by character: the digit row gives 48..57 whatever the layout and Shift
// make of it, the keypad 96..105, a letter its Latin capital.
inline constexpr std::int32_t ShiftCode = 16;
inline constexpr std::int32_t CtrlCode = 17;
inline constexpr std::int32_t EscapeCode = 27;
inline constexpr std::int32_t PageUpCode = 33;
inline constexpr std::int32_t PageDownCode = 34;
inline constexpr std::int32_t LeftCode = 37;
inline constexpr std::int32_t UpCode = 38;
inline constexpr std::int32_t RightCode = 39;
inline constexpr std::int32_t DownCode = 40;
inline constexpr std::int32_t InsertCode = 45;
inline constexpr std::int32_t DeleteCode = 46;
inline constexpr std::int32_t DigitCode = 48;  // of 0; the other digits follow
inline constexpr std::int32_t KeypadCode = 96; // of keypad 0; the other digits follow
inline constexpr std::int32_t KeypadMinusCode = 109;
inline constexpr std::int32_t MinusCode = 189;

// In a row of the table: any modifier state that no earlier row of the same key names.
inline constexpr std::int32_t AnyShift = -1;

struct KeyRow {
    std::int32_t Code;
    std::int32_t Shift; // exact modifier sum, or AnyShift
    void (*Run)(std::int32_t shift);
};

// The table, digits aside. The first row that fits a key is the one that acts.
extern const std::span<const KeyRow> KeyTable;

// A key goes down on the board, with the modifier sum 1 Shift, 2 Ctrl, 4 Alt. A combination that
// has no meaning does nothing. While a search runs, only the question whether to stop it comes.
void KeyDown(std::int32_t code, std::int32_t shift);

// A key comes up. Only the modifiers mean anything: the toolbar shows its plain numbers again.
void KeyUp(std::int32_t code);

} // namespace kelvarine
