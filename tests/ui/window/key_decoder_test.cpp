#include "input/keys.h"
#include "input/mouse.h"
#include "ui/window/key_decoder.h"

#include <gtest/gtest.h>

#include <map>

namespace kelvarine::testing {
namespace {

TEST(KeyDecoder, ModifiersAreSummedWhoeverElseIsHeld)
{
    EXPECT_EQ(ModifiersOf(Qt::NoModifier), 0);
    EXPECT_EQ(ModifiersOf(Qt::ShiftModifier), ShiftKey);
    EXPECT_EQ(ModifiersOf(Qt::ControlModifier), CtrlKey);
    EXPECT_EQ(ModifiersOf(Qt::AltModifier), AltKey);
    EXPECT_EQ(ModifiersOf(Qt::AltModifier | Qt::ShiftModifier), AltKey + ShiftKey);
    EXPECT_EQ(ModifiersOf(Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier),
              CtrlKey + AltKey + ShiftKey);
    EXPECT_EQ(ModifiersOf(Qt::MetaModifier | Qt::KeypadModifier), 0);
}

TEST(KeyDecoder, PlaceOfAKeyGoesBeforeWhatItWrites)
{
    for (std::uint32_t digit = 1; digit <= 9; ++digit) {
        EXPECT_EQ(DecodeKey(9 + digit, Qt::Key_Ampersand, false),
                  DigitCode + static_cast<std::int32_t>(digit));
    }
    EXPECT_EQ(DecodeKey(19, Qt::Key_Agrave, false), DigitCode);
    const std::map<std::uint32_t, std::int32_t> keypad{{79, 7}, {80, 8}, {81, 9}, {83, 4}, {84, 5},
                                                       {85, 6}, {87, 1}, {88, 2}, {89, 3}, {90, 0}};
    for (const auto &[place, digit] : keypad) {
        EXPECT_EQ(DecodeKey(place, Qt::Key_Home, true), KeypadCode + digit);
    }
    EXPECT_EQ(DecodeKey(82, Qt::Key_Minus, true), KeypadMinusCode);
    EXPECT_EQ(DecodeKey(86, Qt::Key_Plus, true), 0);
}

TEST(KeyDecoder, WithoutAPlaceTheCharacterTells)
{
    EXPECT_EQ(DecodeKey(0, Qt::Key_0, false), DigitCode);
    EXPECT_EQ(DecodeKey(0, Qt::Key_9, false), DigitCode + 9);
    EXPECT_EQ(DecodeKey(0, Qt::Key_9, true), KeypadCode + 9);
    EXPECT_EQ(DecodeKey(0, Qt::Key_A, false), 'A');
    EXPECT_EQ(DecodeKey(0, Qt::Key_Z, false), 'Z');
    EXPECT_EQ(DecodeKey(0, Qt::Key_PageUp, false), PageUpCode);
    EXPECT_EQ(DecodeKey(0, Qt::Key_Semicolon, false), 0);
    EXPECT_EQ(DecodeKey(0, Qt::Key_BracketLeft, false), 0);
}

TEST(KeyDecoder, LettersOfOtherScriptsAreToldByTheirPlace)
{
    constexpr int letter = 0x0419; // Cyrillic, where Latin layouts have Q
    EXPECT_EQ(DecodeKey(24, letter, false), 'Q');
    EXPECT_EQ(DecodeKey(33, letter, false), 'P');
    EXPECT_EQ(DecodeKey(38, letter, false), 'A');
    EXPECT_EQ(DecodeKey(58, letter, false), 'M');
    EXPECT_EQ(DecodeKey(59, letter, false), 0);
    EXPECT_EQ(DecodeKey(34, letter, false), 0) << "between the rows";
    EXPECT_EQ(DecodeKey(23, letter, false), 0);
}

TEST(KeyDecoder, KeysWithoutACharacterAreNoLettersWhereverTheyLie)
{
    EXPECT_EQ(DecodeKey(38, Qt::Key_F1, false), 0);
    EXPECT_EQ(DecodeKey(38, Qt::Key_Menu, false), 0);
}

} // namespace
} // namespace kelvarine::testing
