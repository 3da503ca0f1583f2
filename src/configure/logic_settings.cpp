#include "configure/logic_settings.h"

#include "game/alert_scan.h"
#include "grid/grid.h"
#include "logic/rating.h"
#include "logic/technique.h"
#include "logic/technique_table.h"
#include "outside/board.h"
#include "outside/window.h"

namespace kelvarine {

namespace {

void SetBit(std::uint32_t &mask, std::int32_t k, bool on)
{
    mask = on ? mask | BitOf(k) : mask & ~BitOf(k);
}

void ScanAndPaint()
{
    ScanAlerts(ModeAlert);
    DrawBoard();
}

} // namespace

bool UsesLogic(std::int32_t k)
{
    return (SolveMask & BitOf(k)) != 0;
}

bool ShowsAlerts(std::int32_t k)
{
    return (AlertMask & BitOf(k)) != 0;
}

void SetUseLogic(std::int32_t k, bool on)
{
    SetBit(SolveMask, k, on);
}

void SetShowAlerts(std::int32_t k, bool on)
{
    SetBit(AlertMask, k, on);
    ScanAndPaint();
}

void SelectAllAlerts()
{
    AlertMask |= TechniqueRowsMask;
    ScanAndPaint();
}

void DeselectAllAlerts()
{
    AlertMask = 0;
    ClearCellBits(AlertBit);
    DrawBoard();
}

void SetIncludeSingles(bool on)
{
    IncludeSingles = FlagOf(on);
    ScanAndPaint();
}

void SetLinkLimit(std::int32_t &limit, std::int32_t links)
{
    limit = links;
    ScanAndPaint();
}

std::string LevelCaption(std::int32_t k)
{
    std::string caption;
    if ((LevelTable[RequiredRow] & BitOf(k)) != 0) {
        caption = RequiredMark;
    }
    for (std::int32_t level = RatedEasy; level <= Levels; ++level) {
        if ((LevelTable[static_cast<std::size_t>(level)] & BitOf(k)) != 0) {
            return caption.append(WordsOfRating(level).Capital);
        }
    }
    return caption;
}

void SetLevel(std::int32_t k, std::int32_t level)
{
    for (std::size_t row = 1; row <= RequiredRow; ++row) {
        SetBit(LevelTable[row], k, row == static_cast<std::size_t>(level));
    }
    RateGame();
    RefreshWindow();
}

void ToggleRequired(std::int32_t k)
{
    LevelTable[RequiredRow] ^= BitOf(k);
}

bool AnyRequired()
{
    return LevelTable[RequiredRow] != 0;
}

} // namespace kelvarine
