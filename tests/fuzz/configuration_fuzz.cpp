// Any bytes as the configuration file, followed by a start of the engine and a painted board:
// nothing may read or write outside a table, and no start may hang.
#include "board/geometry.h"
#include "board/look.h"
#include "board/margin.h"
#include "configure/configuration.h"
#include "fuzz/fuzz.h"
#include "game/alert_scan.h"
#include "game/event_sound.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "grid/grid.h"
#include "grid/names.h"
#include "logic/rating.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace kelvarine;

// A game that needs more than singles, one cell after the other, row by row.
constexpr std::string_view Game =
    "000000010400000000020000000000050407008000300001090000300400200050100000000806000";

constexpr std::size_t FileSize = ConfigurationSize;

void Require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void PutGame()
{
    for (std::size_t place = 0; place < Game.size(); ++place) {
        const auto number = static_cast<std::size_t>(Game[place] - '0');
        Grid.at(place % 9 + 1).at(place / 9 + 1) = number == 0 ? 0 : GivenBit | BitTable.at(number);
    }
}

void UseSettings(std::uint8_t column, std::uint8_t row)
{
    const int c = column % 9 + 1;
    const int r = row % 9 + 1;
    Require(!CellName(c, r).empty());
    Require(!ColumnLabel(c).empty() && !RowLabel(r).empty());
    LayoutBoard(MainPlace.Width, MainPlace.Height, 54);
    Require(CellWidth >= 1 && CellHeight >= 1);
    Require(CellAt(CellX(c), CellY(r)).has_value());
    Require(PartnersOf(RevealPattern, MakeCell(c, r)).size() <= 8);
    for (const std::int32_t texture : {GivenTexture, UnknownTexture, GridTexture}) {
        Require(IsIn(TextureRange, texture));
    }
    for (std::size_t event = 0; event < SoundVolumes.size(); ++event) {
        PlayEventSound(SoundFile(AlertFiles, AlertSound), event, false);
    }
    const WindowPlace place = ReachablePlace(MainPlace, 1920, 1080);
    Require(place.Left < 1920 && place.Top < 1080);
}

} // namespace

// The kept inputs are short enough.
std::vector<std::string> kelvarine::testing::LongSeeds()
{
    return {};
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    testing::RestartWithBoard();
    AlertFiles = {"", "a.alr", "b.alr"};
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    TakeConfiguration(bytes);
    // What is of our version was taken and stays the same from now on.
    const std::string taken = ConfigurationBytes();
    TakeConfiguration(taken);
    Require(ConfigurationBytes() == taken && taken.size() == FileSize);

    StartGame(NewGame);
    PutGame();
    StartGame(NewGame);
    RateGame();
    FillPencilmarks();
    for (const std::int32_t mode : {1, 2, 3, 4, 5}) {
        ScanAlerts(mode);
    }
    testing::RequireSoundState();
    testing::LookAtBoard();
    UseSettings(size > 0 ? data[0] : 0, size > 1 ? data[size - 1] : 0);
    return 0;
}
