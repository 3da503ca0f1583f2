// What the player waits for in the windows: the opening of the configuration screen on each tab and
// of the file dialog, a step of dragging a colour, all alerts at a click, keys on the board, a page
// of games on paper, and the start of a sound. Every iteration ends with the event loop at rest.
#include "commands/screen_commands.h"
#include "files/file_dialog.h"
#include "game/lifecycle.h"
#include "game/screens.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "outside/printer.h"
#include "outside/sound.h"
#include "program/defaults.h"
#include "ui/configure/configure_screen.h"
#include "ui/outside/printer_qt.h"
#include "ui/screens/file_dialog_qt.h"
#include "ui/window/board_widget.h"
#include "ui/window/main_window.h"
#include "ui/window/tools_listen.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace kelvarine {
namespace {

// The program on view with an empty game, and the configuration screen on a tab.
class Session {
public:
    explicit Session(std::int32_t tab)
    {
        SetDefaults();
        StartGame(NewGame);
        GameModified = False;
        window_.resize(760, 830);
        window_.show();
        CurrentTab = tab;
        mnuConfigure();
        QCoreApplication::processEvents();
    }

    template <typename Control>
    static Control *Find(const char *name)
    {
        return OpenConfigureScreen()->findChild<Control *>(QString::fromLatin1(name));
    }

private:
    MainWindow window_;
};

void OpenSettings(benchmark::State &state)
{
    const Session session(static_cast<std::int32_t>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        delete OpenConfigureScreen();
        state.ResumeTiming();
        mnuConfigure();
        QCoreApplication::processEvents();
    }
}

// The file dialog on a folder of so many files, from its making to the event loop at rest.
void OpenFileDialog(benchmark::State &state)
{
    const Session session(NewGamesTab);
    const QTemporaryDir folder;
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        std::ofstream(folder.filePath(QString("game %1.sdk").arg(number)).toStdString()) << "game";
    }
    DialogFolder = folder.path().toStdString() + "/";
    DialogCaption = OpenGameCaption;
    for ([[maybe_unused]] auto _ : state) {
        FileDialog dialog(Window(), SudokuFiles);
        dialog.open();
        QCoreApplication::processEvents();
    }
}

void DragColour(benchmark::State &state)
{
    const Session session(ColoursTab);
    FillPencilmarks();
    auto *bar = Session::Find<QScrollBar>("hsbColor1");
    for ([[maybe_unused]] auto _ : state) {
        bar->setValue((bar->value() + 1) % 256);
        QCoreApplication::processEvents();
    }
}

void SelectAndDeselectAllAlerts(benchmark::State &state)
{
    const Session session(LogicTab);
    auto *select = Session::Find<QAbstractButton>("cmdSelectAllAlerts");
    auto *deselect = Session::Find<QAbstractButton>("cmdDeselectAllAlerts");
    for ([[maybe_unused]] auto _ : state) {
        select->click();
        QCoreApplication::processEvents();
        deselect->click();
        QCoreApplication::processEvents();
    }
}

void PrintTwentyFourGrids(benchmark::State &state)
{
    constexpr double side = 1000; // of the printer's pixels
    const Session session(PrintTab);
    const QTemporaryDir folder;
    ChosenPrinter().setOutputFormat(QPrinter::PdfFormat);
    ChosenPrinter().setOutputFileName(folder.filePath("page.pdf"));
    for ([[maybe_unused]] auto _ : state) {
        for (int grid = 0; grid < 24; ++grid) {
            PrintPicture(PrintedPicture::Game,
                         {side * (grid % 4), side * static_cast<int>(grid / 4), side, side});
        }
        EndDocument();
        if (!HandOverDocument().empty()) {
            state.SkipWithError("the document cannot be written");
        }
    }
}

void StartAndStopSound(benchmark::State &state)
{
    const Session session(SoundTab);
    for ([[maybe_unused]] auto _ : state) {
        PlaySound("music box.win", true);
        QCoreApplication::processEvents();
        StopSound();
    }
}

// A step and an entry on the board; with an argument other than 0 a tool listens to it.
void PressKeys(benchmark::State &state)
{
    const Session session(ColoursTab);
    ToolsListen(); // from here on the program learns what follows
    QAccessible::setActive(state.range(0) != 0);
    BoardWidget *board = Window()->Client->Board;
    const auto press = [board](Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(board, &event);
        QCoreApplication::processEvents();
    };
    bool odd = false;
    for ([[maybe_unused]] auto _ : state) {
        press(Qt::Key_Right);
        odd = !odd;
        press(odd ? Qt::Key_1 : Qt::Key_2);
    }
    QAccessible::setActive(false);
}

BENCHMARK(PressKeys)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenSettings)->DenseRange(0, TabCount - 1)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenFileDialog)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(DragColour)->Unit(benchmark::kMillisecond);
BENCHMARK(SelectAndDeselectAllAlerts)->Unit(benchmark::kMillisecond);
BENCHMARK(PrintTwentyFourGrids)->Unit(benchmark::kMillisecond);
BENCHMARK(StartAndStopSound)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kelvarine

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    // The player's own files stay out of it.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath("data").toUtf8());
    std::filesystem::create_directories(home.filePath("data").toStdString());
    std::filesystem::copy(SOUNDS, home.filePath("data/kelvarine").toStdString());
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
