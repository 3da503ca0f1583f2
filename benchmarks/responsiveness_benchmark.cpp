// The longest time for which the window does not answer: keys are sent to the real window on the
// positions that are hardest for the logic, while a timer of the event loop notes its turns. A run
// of the logic that goes on for more than three seconds is stopped, as the player may.
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "outside/clipboard.h"
#include "program/defaults.h"
#include "ui/window/board_widget.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTimer>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <random>
#include <string>

namespace kelvarine {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds StopAfter{3};

// Notes how long the event loop is away, puts message boxes off and stops what takes too long.
class Watch : public QTimer {
public:
    Watch()
    {
        callOnTimeout(this, [this] { Turn(); });
        start(0);
    }

    double Longest = 0; // milliseconds

    void Turn()
    {
        const Clock::time_point now = Clock::now();
        const std::chrono::duration<double, std::milli> away = now - last_;
        Longest = std::max(Longest, away.count());
        last_ = now;
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            box->accept();
        }
        if (SearchActive != False && now - start_ > StopAfter) {
            SearchActive = False;
        }
    }

private:
    Clock::time_point start_ = Clock::now();
    Clock::time_point last_ = start_;
};

struct Trouble {
    const char *Name;
    std::string Position; // 81 marks, or nothing for contradictory pairs
    void (*Act)(QWidget &board);
};

// Two of the numbers 1..3 in most cells, and a cell to type into.
void SetContradictoryPairs()
{
    std::mt19937 random(10);
    for (const Cell cell : Cells) {
        const auto one = static_cast<std::int32_t>(random() % 3) + 1;
        const std::int32_t other = (one + static_cast<std::int32_t>(random() % 2)) % 3 + 1;
        WordAt(cell) = BitOf(one) | BitOf(other);
    }
    Grid[1][1] = SelectedBit;
}

void Prepare(const Trouble &trouble)
{
    if (trouble.Position.empty()) {
        SetContradictoryPairs();
        return;
    }
    for (std::size_t place = 0; place < trouble.Position.size(); ++place) {
        const char mark = trouble.Position[place];
        Grid[place % 9 + 1][place / 9 + 1] = mark == '.' ? 0 : BitOf(mark - '0') | GivenBit;
    }
    FillPencilmarks();
    SetClipboardText(trouble.Position);
}

// Leaves a key in the event queue of the board.
void Press(QWidget &board, int key, Qt::KeyboardModifiers held)
{
    const QString text = held == Qt::NoModifier ? QString(QChar(key)) : QString();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QApplication::postEvent(&board, new QKeyEvent(type, key, held, text));
    }
}

void Paste(QWidget &board)
{
    Press(board, Qt::Key_V, Qt::ControlModifier);
}

void Apply(QWidget &board)
{
    Press(board, Qt::Key_L, Qt::ControlModifier);
}

void List(QWidget &board)
{
    QTimer::singleShot(0, &board, mnuShowSolution);
}

void TypeTwenty(QWidget &board)
{
    for (int time = 0; time < 20; ++time) {
        Press(board, Qt::Key_3, Qt::NoModifier);
    }
}

void Measure(benchmark::State &state, const Trouble &trouble)
{
    SetDefaults();
    MainWindow window;
    window.resize(760, 830);
    window.show();
    AlertMask = RatingMask;
    SolveMask = RatingMask;
    Prepare(trouble);
    QCoreApplication::processEvents();
    double longest = 0;
    for ([[maybe_unused]] auto _ : state) {
        Watch watch;
        QCoreApplication::processEvents();
        trouble.Act(*window.Client->Board);
        QCoreApplication::processEvents();
        watch.Turn();
        longest = watch.Longest;
    }
    GameModified = False;
    state.counters["longest_ms"] = longest;
}

const std::array Troubles{
    Trouble{"paste, many solutions far apart",
            "......8...........5.3.....49.......................7..........5....8......97.....",
            Paste},
    Trouble{"paste, its neighbour",
            "......8...........5.3.....49...........3...........7..........5....8......97.....",
            Paste},
    Trouble{"paste, few givens",
            "....26..................4.3......69.........5......1.4.....534......4..1....1...6",
            Paste},
    Trouble{"apply all logic, no solution",
            "..7.854.6.36.1.8..8..4...1...37........623...7.1.....3..8..4..2.72...96..64......",
            Apply},
    Trouble{"list, no solution",
            ".......45......631.....4.........3.9...79...4....257........4......6.27..........",
            List},
    Trouble{"twenty keys, contradictory pairs", "", TypeTwenty},
};

} // namespace
} // namespace kelvarine

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    for (const kelvarine::Trouble &trouble : kelvarine::Troubles) {
        benchmark::RegisterBenchmark(
            trouble.Name, [&trouble](benchmark::State &state) { Measure(state, trouble); })
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
