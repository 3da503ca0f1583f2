// How long a full painting of the board takes, by the width of the window, by the device pixels to
// a logical one and by what is on it.
#include "board/geometry.h"
#include "board/look.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "outside/board.h"
#include "paint/board_painter.h"
#include "program/defaults.h"
#include "support/positions.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>

#include <utility>

namespace kelvarine {

// The board is painted for nobody here.
void ShowBoardPicture()
{
}

namespace {

// A window of a width, a little higher than wide, on a screen of so many device pixels to ten
// logical ones, with its board painted over and over.
void PaintWindow(benchmark::State &state)
{
    const auto width = static_cast<int>(state.range(0));
    LayoutBoard(width, width + 50, 0);
    SetBoardPictureSize(BoardPlace.Width, BoardPlace.Height,
                        static_cast<double>(state.range(1)) / 10);
    for (const auto step : state) {
        DrawBoard();
        benchmark::ClobberMemory();
    }
}

void EmptyBoard(benchmark::State &state)
{
    SetDefaults();
    PaintWindow(state);
}

void AllPencilmarks(benchmark::State &state)
{
    SetDefaults();
    FillPencilmarks();
    PaintWindow(state);
}

void AllPencilmarksTexturedAndRuled(benchmark::State &state)
{
    SetDefaults();
    FillPencilmarks();
    GivenTexture = 3;
    UnknownTexture = 7;
    GridTexture = 12;
    SecondaryThickness = 2;
    PencilmarkLines = True;
    PaintWindow(state);
}

void LargeNumbersTextured(benchmark::State &state)
{
    SetDefaults();
    testing::SetGame(
        "534678912672195348198342567859761423426853791713924856961537284287419635345286179");
    GivenTexture = 3;
    GridTexture = 12;
    PaintWindow(state);
}

// The stage of random colours, which is painted most often.
void WinDisplay(benchmark::State &state)
{
    SetDefaults();
    testing::SetGame(
        "534678912672195348198342567859761423426853791713924856961537284287419635345286179");
    WinDisplayRunning = True;
    PaintWindow(state);
    WinDisplayRunning = False;
}

void Windows(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"width", "tenths"});
    for (const auto &window : {std::pair{600, 10},
                               {900, 10},
                               {1600, 10},
                               {600, 15},
                               {1200, 15},
                               {450, 20},
                               {900, 20},
                               {1600, 20}}) {
        benchmark->Args({window.first, window.second});
    }
    benchmark->Unit(benchmark::kMicrosecond);
}

BENCHMARK(EmptyBoard)->Apply(Windows);
BENCHMARK(AllPencilmarks)->Apply(Windows);
BENCHMARK(AllPencilmarksTexturedAndRuled)->Apply(Windows);
BENCHMARK(LargeNumbersTextured)->Apply(Windows);
BENCHMARK(WinDisplay)->Apply(Windows);

} // namespace

} // namespace kelvarine

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
