#include "ui/screens/solutions_screen.h"

#include "commands/solutions_file.h"
#include "game/screens.h"
#include "game/search.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "outside/clipboard.h"
#include "outside/screens.h"
#include "paint/text.h"
#include "ui/window/main_window.h"
#include "ui/window/notices.h"
#include "ui/window/placing.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr QSize StartSize{330, 580};

// What the text leaves of the inner size.
constexpr QSize AroundText{35, 100};

constexpr int Margin = 17;       // left of the text
constexpr int TopHeight = 46;    // above the text
constexpr int BottomHeight = 54; // below it
static_assert(TopHeight + BottomHeight == AroundText.height());

constexpr int SmallestText = 60; // height that is left to the text at least

constexpr int TextPixels = 13;

QPointer<SolutionsScreen> solutionsScreen;

int FormatOnView()
{
    return SolutionsFormat == 0 ? 0 : 1;
}

// While a search runs the screen does nothing but ask whether to stop a listing.
void AskToStop()
{
    if (SearchKind == ListingSolutions && SearchActive != False) {
        QueryStopSearch();
    }
}

// Whether the controls do what they are there for. Assistive tools use them past the filter of
// events, and while a search runs come to no more than that.
bool ControlsAct()
{
    if (IsBusy()) {
        AskToStop();
        return false;
    }
    return true;
}

// Puts a control at its size by its own wish into the middle of a strip.
void PlaceInStrip(QWidget &control, int x, int top, int height)
{
    const QSize size = control.sizeHint();
    control.setGeometry(x, top + (height - size.height()) / 2, size.width(), size.height());
}

} // namespace

SolutionsScreen::SolutionsScreen(QWidget *parent)
    : QDialog(parent), lblNumSolutions(new QLabel(this)),
      txtSolutions(new QPlainTextEdit(this)), formats{new QRadioButton(" 1-81", this),
                                                      new QRadioButton(" 9 x 9", this)},
      cmdSave(new QPushButton("Save as text file", this))
{
    setObjectName("frmSolutions");
    setWindowTitle("Solutions");
    lblNumSolutions->setObjectName("lblNumSolutions");
    BuildText();
    BuildFormats();
    cmdSave->setObjectName("cmdSaveAsTextFile");
    cmdSave->setAutoDefault(false);
    connect(cmdSave, &QPushButton::clicked, this, [] {
        if (ControlsAct()) {
            cmdSaveAsTextFile();
        }
    });
    txtSolutions->setFocus();
    PlaceControls();
    setMinimumSize(cmdSave->geometry().right() + 1 + Margin, AroundText.height() + SmallestText);
    resize(StartSize);
    installEventFilter(this);
    for (QWidget *control : findChildren<QWidget *>()) {
        control->installEventFilter(this);
    }
}

void SolutionsScreen::BuildText()
{
    txtSolutions->setObjectName("txtSolutions");
    txtSolutions->setAccessibleName("Solutions");
    QFont font("Courier New");
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(TextPixels);
    txtSolutions->setFont(font);
    txtSolutions->setReadOnly(true);
    txtSolutions->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    txtSolutions->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtSolutions->setTabChangesFocus(true);
}

void SolutionsScreen::BuildFormats()
{
    auto *group = new QButtonGroup(this);
    for (std::size_t k = 0; k < formats.size(); ++k) {
        const auto index = static_cast<int>(k);
        formats[k]->setObjectName(Text("optSolutionsFormat%1").arg(index));
        group->addButton(formats[k], index);
    }
    formats[0]->setAccessibleName("Solutions in lines of 81 digits");
    formats[1]->setAccessibleName("Solutions in frames of 9 by 9");
    connect(group, &QButtonGroup::idToggled, this, [this](int format, bool chosen) {
        if (!chosen || format == FormatOnView()) {
            return;
        }
        if (ControlsAct()) {
            optSolutionsFormat(format);
        } else {
            Refresh();
        }
    });
}

void SolutionsScreen::Refresh()
{
    QString text = Text(SolutionsOnView);
    text.remove(u'\r');
    if (text != txtSolutions->toPlainText()) {
        txtSolutions->setPlainText(text);
    }
    const auto chosen = static_cast<std::size_t>(FormatOnView());
    formats[chosen]->setChecked(true);
    // Tab stops at the chosen one, from where the arrows go to the other.
    formats[chosen]->setFocusPolicy(Qt::StrongFocus);
    formats[1 - chosen]->setFocusPolicy(Qt::ClickFocus);
    RefreshCount();
}

void SolutionsScreen::RefreshCount()
{
    lblNumSolutions->setText(Text(SolutionCountText));
    lblNumSolutions->setAccessibleName(lblNumSolutions->text());
    PlaceControls();
}

void SolutionsScreen::PlaceControls()
{
    PlaceInStrip(*lblNumSolutions, Margin, 0, TopHeight);
    int x = Margin;
    for (QRadioButton *format : formats) {
        PlaceInStrip(*format, x, height() - BottomHeight, BottomHeight);
        x = format->geometry().right() + Margin;
    }
    const int right = width() - (AroundText.width() - Margin);
    PlaceInStrip(*cmdSave, std::max(x, right - cmdSave->sizeHint().width()),
                 height() - BottomHeight, BottomHeight);
}

// Ctrl+C takes what is selected, and all where nothing is.
bool SolutionsScreen::CopyAll(const QEvent &event) const
{
    if (event.type() != QEvent::KeyPress ||
        !static_cast<const QKeyEvent &>(event).matches(QKeySequence::Copy) ||
        txtSolutions->textCursor().hasSelection()) {
        return false;
    }
    SetClipboardText(txtSolutions->toPlainText().toStdString());
    return true;
}

bool SolutionsScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (SearchActive == False) {
        return CopyAll(*event) || QDialog::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride: // so that the key itself arrives here
        event->accept();
        return true;
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        AskToStop();
        return true;
    default:
        return QDialog::eventFilter(watched, event);
    }
}

void SolutionsScreen::reject()
{
    close();
}

void SolutionsScreen::closeEvent(QCloseEvent *event)
{
    AskToStop();
    if (SearchKind == ListingSolutions && SearchActive != False) {
        event->ignore(); // the player wants the listing to go on
        return;
    }
    KeepPlace(*this, SolutionsPlace);
    // At the program's end the main window goes first; what was open then stays noted.
    if (Window()->isVisible()) {
        SolutionsOpen = False;
    }
    event->accept();
}

void SolutionsScreen::moveEvent(QMoveEvent * /*event*/)
{
    KeepPlace(*this, SolutionsPlace);
}

void SolutionsScreen::resizeEvent(QResizeEvent * /*event*/)
{
    if (isMinimized()) {
        return;
    }
    txtSolutions->setGeometry(QRect({Margin, TopHeight}, size() - AroundText));
    PlaceControls();
    KeepPlace(*this, SolutionsPlace);
}

void ShowSolutionsScreen()
{
    if (solutionsScreen == nullptr) {
        solutionsScreen = new SolutionsScreen(Window());
    }
    solutionsScreen->Refresh();
    if (!solutionsScreen->isVisible()) {
        OpenAt(*solutionsScreen, SolutionsPlace);
    }
    BringToFront(*solutionsScreen);
}

void RefreshSolutionsScreen()
{
    if (SearchKind == ListingSolutions) {
        Tell(Text(SolutionCountText)); // the listing has come to its end
    }
    if (solutionsScreen != nullptr) {
        solutionsScreen->Refresh();
    }
}

void ShowSolutionCount()
{
    TakeSolutionCount();
    if (solutionsScreen != nullptr) {
        solutionsScreen->RefreshCount();
    }
}

} // namespace kelvarine
