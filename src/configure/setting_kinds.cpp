#include "configure/setting_kinds.h"

#include "configure/configuration.h"
#include "game/screens.h"
#include "grid/rounding.h"

#include <algorithm>
#include <cmath>

namespace kelvarine {

namespace {

std::uint32_t WordOf(const Version & /*setting*/)
{
    return ConfigurationVersion;
}

void Take(const Version & /*setting*/, std::uint32_t /*word*/)
{
}

std::uint32_t WordOf(const Number &number)
{
    return static_cast<std::uint32_t>(*number.Setting);
}

void Take(const Number &number, std::uint32_t word)
{
    const auto value = static_cast<std::int32_t>(word);
    if (IsIn(number.Values, value)) {
        *number.Setting = value;
    }
}

std::uint32_t WordOf(const CorrectedNumber &number)
{
    return static_cast<std::uint32_t>(*number.Setting);
}

void Take(const CorrectedNumber &number, std::uint32_t word)
{
    const auto value = static_cast<std::int32_t>(word);
    *number.Setting = IsIn(number.Values, value) ? value : number.Otherwise;
}

std::uint32_t WordOf(const Truth &truth)
{
    return static_cast<std::uint32_t>(*truth.Setting);
}

void Take(const Truth &truth, std::uint32_t word)
{
    *truth.Setting = FlagOf(word != 0);
}

std::uint32_t WordOf(const Mask &mask)
{
    return *mask.Setting;
}

void Take(const Mask &mask, std::uint32_t word)
{
    *mask.Setting = word == 0 ? mask.InsteadOfNone : word;
}

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

std::uint32_t WordOf(const Pixels &pixels)
{
    return static_cast<std::uint32_t>(*pixels.Setting) * static_cast<std::uint32_t>(TwipsPerPixel);
}

void Take(const Pixels &pixels, std::uint32_t word)
{
    const std::int32_t value = static_cast<std::int32_t>(word) / TwipsPerPixel;
    if (IsIn(pixels.Values, value)) {
        *pixels.Setting = value;
    }
}

std::uint32_t WordOf(const Inches &inches)
{
    const double hundredths = RoundHalfEven(*inches.Setting * 100);
    if (std::isnan(hundredths)) {
        return 0;
    }
    const double lowest = inches.Values.Least;
    const double highest = inches.Values.Most;
    return static_cast<std::uint32_t>(
        static_cast<std::int32_t>(std::clamp(hundredths, lowest, highest)));
}

void Take(const Inches &inches, std::uint32_t word)
{
    const auto value = static_cast<std::int32_t>(word);
    if (IsIn(inches.Values, value)) {
        *inches.Setting = value / 100.0;
    }
}

constexpr std::uint32_t MaximisedState = 2;

std::uint32_t WordOf(const WindowState &state)
{
    return *state.Maximised != False ? MaximisedState : 0;
}

void Take(const WindowState &state, std::uint32_t word)
{
    *state.Maximised = FlagOf(word == MaximisedState);
}

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

} // namespace

std::uint32_t WordOfSetting(const Setting &setting)
{
    return std::visit([](const auto &kind) { return WordOf(kind); }, setting);
}

void TakeSetting(const Setting &setting, std::uint32_t word)
{
    std::visit([word](const auto &kind) { Take(kind, word); }, setting);
}

} // namespace kelvarine
