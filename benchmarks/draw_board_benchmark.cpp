// How long a full painting of the board takes, by the width of the window and by what is on it.
#include "board/geometry.h"
#include "board/look.h"
#include "grid/grid.h"
#include "outside/board.h"
#include "paint/board_painter.h"
#include "program/defaults.h"

#include <QGuiApplication>
#include <benchmark/benchmark.h>

namespace kelvarine {

// The board is painted for nobody here.
void ShowBoardPicture()
{
}

namespace {

// A window of a width, a little higher than wide, with its board painted over and over.
void PaintWindow(benchmark::State &state)
{
    const auto width = static_cast<int>(state.range(0));
    LayoutBoard(width, width + 50, 0);
    SetBoardPictureSize(BoardPlace.Width, BoardPlace.Height, 1);
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

void Widths(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(600)->Arg(900)->Arg(1600)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(EmptyBoard)->Apply(Widths);
BENCHMARK(AllPencilmarks)->Apply(Widths);
BENCHMARK(AllPencilmarksTexturedAndRuled)->Apply(Widths);

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
