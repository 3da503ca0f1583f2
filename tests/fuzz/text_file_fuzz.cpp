// Any bytes as a text: through every reader, and what they read through every writer and back.
#include "files/game_file.h"
#include "files/text_case.h"
#include "files/text_format.h"
#include "fuzz/fuzz.h"
#include "game/lifecycle.h"
#include "grid/grid.h"
#include "support/play.h"
#include "support/positions.h"

#include <string>

namespace kelvarine::testing {

namespace {

// Writes a position and reads it back; whatever a text keeps must be kept.
template <typename Write, typename Read>
void WriteAndRead(Write write, Read read, const char *promise)
{
    const GridTable before = Grid;
    const std::string text = write();
    Grid = {};
    Require(read(text), promise);
    Require(SameCells(Grid, before, CandidateMask), promise);
    Grid = before;
}

bool ReadsWhole(std::string_view text)
{
    return ReadPosition(text) == 81;
}

void OpenAndSave(std::string_view text)
{
    SetGivens(EasyGame);
    StartGame(NewGame);
    GameFilePath = "any.txt";
    const GridTable before = Grid;
    if (!ReadGame(text)) {
        Require(Grid == before, "what is no game leaves the grid alone");
        return;
    }
    RequireSoundState();
    LookAtBoard();
    NumberFilter = CandidateMask;
    WriteAndRead(TextFileText, ReadGame, "a text file comes back");
}

void PasteAndCopy(std::string_view text)
{
    const int cells = ReadPosition(text);
    Require(cells >= 0 && cells <= 81, "no more cells are read than there are");
    WriteAndRead(GridFormatText, ReadsWhole, "a framed drawing comes back");
    // A single line need not come back: without a blank in it, each digit reads as a cell.
    ReadPosition(SingleLineText());
}

} // namespace

std::vector<std::string> LongSeeds()
{
    std::vector<std::string> seeds;
    RestartWithBoard();
    SetGame(EasyGame);
    seeds.push_back(TextFileText());
    seeds.push_back(SingleLineText());
    SetGivens(EasySolution);
    seeds.push_back(GridFormatText());
    return seeds;
}

} // namespace kelvarine::testing

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace kelvarine;
    using namespace kelvarine::testing;
    const std::string_view text = TextOf(data, size);
    RestartWithBoard();
    OpenAndSave(text);
    RestartWithBoard();
    PasteAndCopy(text);
    LowerCase(text);
    return 0;
}
