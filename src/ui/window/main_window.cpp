#include "ui/window/main_window.h"

#include "board/geometry.h"
#include "board/look.h"
#include "commands/file_commands.h"
#include "files/file_address.h"
#include "game/clock.h"
#include "game/screens.h"
#include "game/win_display.h"
#include "grid/grid.h"
#include "input/mouse.h"
#include "input/toolbar.h"
#include "outside/board.h"
#include "outside/events.h"
#include "outside/window.h"
#include "paint/board_painter.h"
#include "paint/margin_painter.h"
#include "program/program.h"
#include "ui/window/board_widget.h"
#include "ui/window/key_decoder.h"
#include "ui/window/menu_bar.h"
#include "ui/window/menus.h"
#include "ui/window/notices.h"
#include "ui/window/placing.h"
#include "ui/window/session.h"
#include "ui/window/toolbar_widget.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSysInfo>

#include <algorithm>
#include <utility>

namespace kelvarine {

namespace {

constexpr QSize StartSize{760, 830};
constexpr QSize SmallestSize{160, 160};

MainWindow *mainWindow = nullptr;

// Full path of the one file that is dragged, in the very bytes of its name; empty for anything
// else.
std::string DroppedFile(const QMimeData &dragged)
{
    const std::string list = dragged.data(QStringLiteral("text/uri-list")).toStdString();
    return PathOfAddress(OneAddressIn(list), QSysInfo::machineHostName().toStdString());
}

} // namespace

MainWindow *Window()
{
    return mainWindow;
}

// ---- Client area ---------------------------------------------------------------------------

ClientArea::ClientArea(QWidget *parent)
    : QWidget(parent), Toolbar(new ToolbarWidget(this)), Board(new BoardWidget(this))
{
    DescribeNoticesToTools(); // before anything asks for the description, because that is kept
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusProxy(Board);
}

void ClientArea::Layout()
{
    const bool toolbar = ToolbarVisible != False;
    Toolbar->setVisible(toolbar);
    Toolbar->setGeometry(1, 0, std::max(1, width() - 2), ToolbarHeight);
    LayoutToolbar(Toolbar->width());
    Toolbar->Update();
    LayoutBoard(width(), height(), toolbar ? ToolbarHeight : 0);
    Board->setGeometry(BoardPlace.X, BoardPlace.Y, BoardPlace.Width, BoardPlace.Height);
    SetBoardPictureSize(BoardPlace.Width, BoardPlace.Height, devicePixelRatioF());
}

void ClientArea::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    PaintWindowTexts(painter, width(), height());
}

void ClientArea::resizeEvent(QResizeEvent * /*event*/)
{
    Layout();
    DrawBoard();
}

void ClientArea::mousePressEvent(QMouseEvent *event)
{
    BoardPressed(NoButton, ModifiersOf(event->modifiers()), -1, -1);
    Board->setFocus(Qt::MouseFocusReason);
}

// ---- Main window ---------------------------------------------------------------------------

MainWindow::MainWindow() : Client(new ClientArea(this))
{
    mainWindow = this;
    // The texts are English, whichever way the desktop writes.
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    setAcceptDrops(true);
    connect(&tmrSolveTime, &QTimer::timeout, this, ClockTick);
    connect(&tmrGameWon, &QTimer::timeout, this, WinDisplayTick);
    setCentralWidget(Client);
    auto *bar = new MenuBar(this);
    setMenuBar(bar);
    BuildMenus(bar);
    setMinimumSize(SmallestSize);
    resize(StartSize);
    Client->Board->setFocus();
}

MainWindow::~MainWindow()
{
    hide(); // while all that follows the focus still stands
    mainWindow = nullptr;
}

void MainWindow::UpdateMenuCaptions()
{
    UpdateMenus(menuBar());
}

bool MainWindow::CloseUnlessAsking()
{
    if (!wasShown) {
        closesWhenShown = true;
        return false;
    }
    // The toolkit would take a second closing for agreed and close the window under the question.
    if (isVisible() && !asking) {
        close();
    }
    return !isVisible();
}

bool MainWindow::AskAsClosingDoes(bool (*ask)())
{
    const QScopedValueRollback nowAsking(asking, true);
    return ask();
}

bool MainWindow::IsClosing() const
{
    return asking;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    const QScopedValueRollback nowAsking(asking, true);
    event->ignore();
    if (EndAsAgreed() || EndProgram()) {
        event->accept();
    }
}

void MainWindow::ShowAtItsPlace()
{
    if (MainPlace.Width > 0 && MainPlace.Height > 0) {
        const QSize screens = screen()->virtualSize();
        const WindowPlace place =
            MainMaximised != False ? MainPlace
                                   : ReachablePlace(MainPlace, screens.width(), screens.height());
        resize(place.Width, place.Height);
        move(place.Left, place.Top);
    } else {
        const QRect room = screen()->availableGeometry();
        move(FirstPlace(SizeWithin(size(), room.size()), room));
    }
    if (MainMaximised != False) {
        showMaximized();
    } else {
        show();
    }
}

QSize MainWindow::SizeWithin(const QSize &wanted, const QSize &room) const
{
    // The board's cells shrink alike in both directions; what stands round them keeps its size.
    const int edges = LinesAcross() + 2 * (MarginThickness + BorderThickness);
    const int above =
        menuBar()->sizeHint().height() + (ToolbarVisible != False ? ToolbarHeight : 0);
    const QSize around(edges, edges + above);
    const QSize cells = wanted - around;
    const QSize roomForCells = room - around;
    if (cells.isEmpty() || roomForCells.isEmpty()) {
        return wanted.boundedTo(room);
    }
    const double across = static_cast<double>(roomForCells.width()) / cells.width();
    const double down = static_cast<double>(roomForCells.height()) / cells.height();
    const double scale = std::min({1.0, across, down});
    return around +
           QSize(static_cast<int>(cells.width() * scale), static_cast<int>(cells.height() * scale));
}

void MainWindow::KeepPlace()
{
    if (!isVisible() || isMinimized()) {
        return;
    }
    MainMaximised = FlagOf(isMaximized());
    if (!isMaximized() && !isFullScreen()) {
        kelvarine::KeepPlace(*this, MainPlace);
    }
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    wasShown = true;
    if (std::exchange(closesWhenShown, false)) {
        CallFromEventLoop(CloseMainWindow);
    }
}

void MainWindow::moveEvent(QMoveEvent * /*event*/)
{
    KeepPlace();
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    KeepPlace();
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        KeepPlace();
    } else if (event->type() == QEvent::ActivationChange && !isActiveWindow()) {
        Client->Board->LetModifiersGo();
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!DroppedFile(*event->mimeData()).empty()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    // The program that it comes from waits until this is over, and a question may come up.
    CallFromEventLoop([file = DroppedFile(*event->mimeData())] { OpenDroppedGame(file); });
    activateWindow();
}

void MainWindow::keyPressEvent(QKeyEvent *event)
{
    Client->Board->TakeKeyPress(event);
}

void MainWindow::keyReleaseEvent(QKeyEvent *event)
{
    Client->Board->TakeKeyRelease(*event);
}

} // namespace kelvarine
