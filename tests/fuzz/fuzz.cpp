#include "fuzz/fuzz.h"

#include "board/geometry.h"
#include "game/check_state.h"
#include "grid/grid.h"
#include "outside/board.h"
#include "paint/board_painter.h"
#include "support/outside_double.h"

#include <QGuiApplication>

#include <cstdlib>
#include <iostream>

namespace kelvarine {

// The board is painted for nobody here.
void ShowBoardPicture()
{
}

namespace testing {

namespace {

// Some grids without a solution keep trial and error going for longer than a fuzzer can wait, so a
// run of the driver is stopped where the count of passes comes round.
void StopLongRuns()
{
    constexpr int patience = 10; // passes
    Seen.OnYield = [passes = 0]() mutable {
        if (++passes % patience == 0) {
            SearchActive = False;
        }
    };
}

} // namespace

void RestartWithBoard()
{
    constexpr int width = 300;
    constexpr int height = 340;
    Restart();
    StopLongRuns();
    LayoutBoard(width, height, 0);
    SetBoardPictureSize(1, 1, 1);
}

void LookAtBoard()
{
    SetBoardPictureSize(BoardPlace.Width, BoardPlace.Height, 1);
    DrawBoard();
    SetBoardPictureSize(1, 1, 1);
}

void Require(bool kept, const char *promise)
{
    if (!kept) {
        std::cerr << "broken: " << promise << std::endl;
        std::abort();
    }
}

void RequireSoundState()
{
    const std::string_view broken = CheckState();
    Require(broken.empty(), broken.data());
}

} // namespace testing

} // namespace kelvarine

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Stands until the end of the process, as fonts do.
    [[maybe_unused]] static const auto *application = new QGuiApplication(*argc, *argv);
    return 0;
}
