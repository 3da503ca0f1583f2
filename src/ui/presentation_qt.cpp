// The seam to the world, over the toolkit.
#include "board/board_painter.h"
#include "outside/board.h"
#include "outside/clipboard.h"
#include "outside/events.h"
#include "outside/messages.h"
#include "outside/timers.h"
#include "outside/window.h"
#include "ui/board_accessible.h"
#include "ui/board_widget.h"
#include "ui/box_place.h"
#include "ui/main_window.h"
#include "ui/print_tab.h"
#include "ui/toolbar_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTime>
#include <QTimer>

#include <chrono>

namespace kelvarine {

namespace {

constexpr int ClockInterval = 1000; // milliseconds
constexpr std::chrono::milliseconds YieldInterval{10};

QString Text(std::string_view text)
{
    QString converted = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return converted.replace(u'\r', u'\n');
}

// Size of a box with its frame, as it will be on view.
QSize SizeOnView(QMessageBox &box)
{
    // A box works out its size when it is shown, and it has to stand in its place before that.
    box.setAttribute(Qt::WA_DontShowOnScreen);
    box.show();
    const QSize inner = box.size();
    box.hide();
    box.setAttribute(Qt::WA_DontShowOnScreen, false);
    return inner + (Window()->frameSize() - Window()->size());
}

// Beside the whole window, so that the coordinates stay in view as well, or else beside the board.
void MoveBesideBoard(QMessageBox &box)
{
    const QWidget &board = *Window()->Client->Board;
    const QRect cells(board.mapToGlobal(QPoint(0, 0)), board.size());
    const QRect screen = Window()->screen()->availableGeometry();
    const QSize size = SizeOnView(box);
    for (const QRect &area : {Window()->frameGeometry(), cells}) {
        if (const std::optional<QPoint> corner = BoxBeside(area, size, screen)) {
            box.move(*corner);
            return;
        }
    }
}

QMessageBox::StandardButton RunBox(QMessageBox::Icon icon, const QString &text,
                                   std::string_view title, QMessageBox::StandardButtons buttons,
                                   QMessageBox::StandardButton defaultButton)
{
    QWidget *above = QApplication::activeModalWidget();
    QMessageBox box(icon, Text(title.empty() ? ProgramName : title), text, buttons,
                    above != nullptr ? above : Window());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(defaultButton);
    if (above == nullptr) {
        MoveBesideBoard(box);
    }
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

void SwitchTimer(QTimer &timer, bool on, int milliseconds)
{
    if (on) {
        timer.start(milliseconds);
    } else {
        timer.stop();
    }
}

} // namespace

void ShowMessage(std::string_view text, std::string_view title)
{
    RunBox(QMessageBox::NoIcon, Text(text), title, QMessageBox::Ok, QMessageBox::Ok);
}

bool AskYesNo(std::string_view text, std::string_view title)
{
    // Questions are worded for boxes that show a doubled "&" as one.
    const QString shown = Text(text).replace(QStringLiteral("&&"), QStringLiteral("&"));
    return RunBox(QMessageBox::Question, shown, title, QMessageBox::Yes | QMessageBox::No,
                  QMessageBox::No) == QMessageBox::Yes;
}

Answer AskYesNoCancel(std::string_view text)
{
    switch (RunBox(QMessageBox::Question, Text(text), ProgramName,
                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::string AskText(std::string_view prompt)
{
    return QInputDialog::getText(Window(), Text(ProgramName), Text(prompt)).toStdString();
}

void YieldToEvents()
{
    static std::chrono::steady_clock::time_point last;
    const auto now = std::chrono::steady_clock::now();
    if (now - last >= YieldInterval) {
        QCoreApplication::processEvents();
        last = std::chrono::steady_clock::now();
    }
}

void RunPendingEvents()
{
    QCoreApplication::processEvents();
}

void SetWaitCursor(bool on)
{
    if (on) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

double SecondsSinceMidnight()
{
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void SetClockTimer(bool on)
{
    SwitchTimer(Window()->ClockTimer, on, ClockInterval);
}

void SetWinTimer(bool on, int milliseconds)
{
    SwitchTimer(Window()->WinTimer, on, milliseconds);
}

std::string ClipboardText()
{
    return QGuiApplication::clipboard()->text().toStdString();
}

void SetClipboardText(std::string_view text)
{
    QGuiApplication::clipboard()->setText(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void SetWindowTitle(std::string_view title)
{
    Window()->setWindowTitle(Text(title));
}

void UpdateCaptions()
{
    Window()->UpdateMenuCaptions();
}

void RefreshWindow()
{
    Window()->Client->update();
}

void UpdateToolbar()
{
    Window()->Client->Toolbar->Update();
}

void FocusBoard()
{
    Window()->Client->Board->setFocus();
}

void ResizeWindow()
{
    Window()->Client->Layout();
    DrawBoard();
    RefreshWindow();
}

void ShowBoardPicture()
{
    Window()->Client->Board->update();
    AnnounceBoard();
    RefreshPrintPreview();
}

} // namespace kelvarine
