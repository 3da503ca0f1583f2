#include "ui/configure/configure_screen.h"

#include "commands/print_run.h"
#include "game/screens.h"
#include "game/search.h"
#include "grid/grid.h"
#include "logic/driver.h"
#include "outside/screens.h"
#include "paint/text.h"
#include "ui/configure/colours_tab.h"
#include "ui/configure/coordinates_tab.h"
#include "ui/configure/grid_tab.h"
#include "ui/configure/logic_tab.h"
#include "ui/configure/new_games_tab.h"
#include "ui/configure/preset_tab.h"
#include "ui/configure/print_tab.h"
#include "ui/configure/sound_tab.h"
#include "ui/configure/tab_strip.h"
#include "ui/configure/tips.h"
#include "ui/controls/configure_controls.h"
#include "ui/window/help_key.h"
#include "ui/window/main_window.h"
#include "ui/window/placing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QWheelEvent>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr QSize PanelDesign{450, 475};
constexpr int LowestContainer = 140;
constexpr int SmallestWidth = 458;

struct TabRow {
    std::string_view Text;
    std::string_view PanelName;
    char AccessKey;
    int HelpContext;
    QWidget *(*Make)(QWidget *parent);
};

constexpr std::array<TabRow, TabCount> TabRows{{
    {"New Games", "picTabNewGame", 'N', 202, MakeNewGamesTab},
    {"Sound", "picTabSound", 'S', 204, MakeSoundTab},
    {"Print", "picTabPrint", 'P', 206, MakePrintTab},
    {"Logic", "picTabLogic", 'L', 208, MakeLogicTab},
    {"Preset Grids", "picTabPresetGrids", 'E', 210, MakePresetTab},
    {"Grid", "picTabGrid", 'G', 212, MakeGridTab},
    {"Colors", "picTabTableColors", 'C', 214, MakeColoursTab},
    {"Coordinates", "picTabCoordinates", 'O', 216, MakeCoordinatesTab},
}};

// Two keys have no tab behind them: no panel is shown then, which is intended.
constexpr std::string_view KeysWithoutTab = "RV";

ConfigureScreen *openScreen = nullptr;

std::array<QString, TabCount> TabTexts()
{
    std::array<QString, TabCount> texts;
    std::ranges::transform(TabRows, texts.begin(),
                           [](const TabRow &row) { return Text(row.Text); });
    return texts;
}

std::array<char, TabCount> TabKeys()
{
    std::array<char, TabCount> keys{};
    std::ranges::transform(TabRows, keys.begin(), &TabRow::AccessKey);
    return keys;
}

// Events by which the player would change something.
bool IsInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::ContextMenu: // from which a box can be filled
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool IsPressOfEnter(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// While a batch is made the player is asked whether to stop it, and may say no.
bool MayClose()
{
    if (PrintRunning == False || SearchKind == NotStoppable || StopRequested != False) {
        return true;
    }
    QueryStopSearch();
    return StopRequested != False;
}

} // namespace

ConfigureScreen *OpenConfigureScreen()
{
    return openScreen;
}

ConfigureScreen::ConfigureScreen(QWidget *parent)
    : QWidget(parent, Qt::Dialog),
      strip(new TabStrip(this, TabTexts(), TabKeys(), [this](std::int32_t tab) { Choose(tab); })),
      container(new QWidget(this)), scrollBar(new QScrollBar(Qt::Vertical, this))
{
    const QScopedValueRollback loading(LoadingControls, true);
    setObjectName("frmConfigure");
    setWindowTitle("Configure");
    setAttribute(Qt::WA_DeleteOnClose);
    container->setObjectName("picTabContainer");
    scrollBar->setObjectName("vsbTabContainer");
    scrollBar->setAccessibleName("Scroll");
    scrollBar->setRange(0, 500);
    scrollBar->setSingleStep(50);
    scrollBar->setPageStep(140);
    connect(scrollBar, &QScrollBar::valueChanged, this, [this](int value) {
        if (QWidget *panel = CurrentPanel(); panel != nullptr) {
            panel->move(0, -value);
        }
    });
    QSize size = PanelDesign;
    for (std::size_t tab = 0; tab < TabRows.size(); ++tab) {
        panels[tab] = TabRows[tab].Make(container);
        panels[tab]->setObjectName(Text(TabRows[tab].PanelName));
        panels[tab]->hide();
        size = size.expandedTo(panels[tab]->minimumSizeHint());
    }
    // A panel that is wider than the narrowest screen needs its width beside the scroll bar as
    // well.
    const int beside = size.width() > SmallestWidth ? scrollBar->sizeHint().width() : 0;
    setMinimumSize(std::max({SmallestWidth, size.width() + beside, strip->WidthForTexts()}),
                   strip->Height() + LowestContainer);
    resize(minimumWidth(), strip->Height() + size.height());
    AddAccessKeys();
    GiveTips(*this);
    qApp->installEventFilter(this);
    openScreen = this;
}

ConfigureScreen::~ConfigureScreen()
{
    if (openScreen == this) {
        openScreen = nullptr;
    }
}

void ConfigureScreen::AddAccessKeys()
{
    const auto add = [this](char letter, std::int32_t tab) {
        auto *key = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter)), this);
        key->setObjectName(IndexedName("cmdAltKeys", tab));
        connect(key, &QShortcut::activated, this, [this, tab] { Choose(tab); });
    };
    std::int32_t tab = 0;
    for (const TabRow &row : TabRows) {
        add(row.AccessKey, tab++);
    }
    for (const char letter : KeysWithoutTab) {
        add(letter, tab++);
    }
}

void ConfigureScreen::Choose(std::int32_t tab)
{
    if (tab != CurrentTab && !IsBusy()) {
        CurrentTab = tab;
        ShowTab();
    }
}

QWidget *ConfigureScreen::CurrentPanel() const
{
    const auto tab = static_cast<std::size_t>(CurrentTab);
    return tab < panels.size() ? panels[tab] : nullptr;
}

int ConfigureScreen::HelpContext() const
{
    return helpContext;
}

void ConfigureScreen::ShowTab()
{
    const QScopedValueRollback switching(switchingTab, true);
    for (std::size_t tab = 0; tab < panels.size(); ++tab) {
        const bool shown = panels[tab] == CurrentPanel();
        if (shown) {
            helpContext = TabRows[tab].HelpContext;
            SetHelpContext(this, helpContext);
        }
        panels[tab]->setVisible(shown);
    }
    if (CurrentTab == ColoursTab) {
        SetColorScrollbars();
    }
    strip->ShowCurrent();
    ArrangePanels();
}

void ConfigureScreen::ArrangePanels()
{
    QWidget *panel = CurrentPanel();
    const QSize needed =
        panel != nullptr ? PanelDesign.expandedTo(panel->minimumSizeHint()) : PanelDesign;
    const int stripHeight = strip->Height();
    const int room = std::max(LowestContainer, height() - stripHeight);
    const bool fits = room >= needed.height();
    const int barWidth = fits ? 0 : scrollBar->sizeHint().width();

    strip->setGeometry(0, 0, width(), stripHeight);
    container->setGeometry(0, stripHeight, width() - barWidth, room);
    scrollBar->setGeometry(width() - barWidth, stripHeight, barWidth, room);
    scrollBar->setVisible(!fits);
    if (panel != nullptr) {
        panel->resize(std::max({panel->minimumSizeHint().width(), needed.width() - barWidth,
                                container->width()}),
                      std::max(needed.height(), room));
        if (fits) {
            panel->move(0, 0);
        }
    }
}

void ConfigureScreen::resizeEvent(QResizeEvent * /*event*/)
{
    ArrangePanels();
    KeepPlace(*this, ConfigurePlace);
}

void ConfigureScreen::moveEvent(QMoveEvent * /*event*/)
{
    KeepPlace(*this, ConfigurePlace);
}

void ConfigureScreen::closeEvent(QCloseEvent *event)
{
    if (!MayClose()) {
        event->ignore();
        return;
    }
    KeepPlace(*this, ConfigurePlace);
    ConfigureOpen = False;
    // The window goes when events run next; until then another one may open.
    openScreen = nullptr;
    qApp->removeEventFilter(this);
}

void ConfigureScreen::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (CurrentTab == PrintTab && CurrentPanel() != nullptr) {
            CurrentPanel()->findChild<QPushButton *>("cmdPrint")->click();
        }
        break;
    default:
        event->ignore();
    }
}

// The Tab key may lead to a control that a low window hides: the panel follows.
bool ConfigureScreen::focusNextPrevChild(bool next)
{
    const bool moved = QWidget::focusNextPrevChild(next);
    const QWidget *control = focusWidget();
    const QWidget *panel = CurrentPanel();
    if (switchingTab || !scrollBar->isVisible() || control == nullptr || panel == nullptr ||
        !panel->isAncestorOf(control)) {
        return moved;
    }
    const int top = control->mapTo(panel, QPoint()).y();
    const int bottom = top + control->height();
    if (top < -panel->y() || bottom > container->height() - panel->y()) {
        scrollBar->setValue(bottom - container->height() / 2);
    }
    return moved;
}

// While a search runs the settings stand still: nothing that the player does here is taken but the
// wish to stop a batch. The wheel moves a panel that does not fit, whatever lies under it but a
// control that has the focus.
bool ConfigureScreen::eventFilter(QObject *watched, QEvent *event)
{
    const bool wheel = event->type() == QEvent::Wheel;
    if (!wheel && (!IsBusy() || !IsInput(event->type()))) {
        return false;
    }
    auto *widget = qobject_cast<QWidget *>(watched);
    if (widget == nullptr || widget->window() != this) {
        return false;
    }
    if (IsBusy()) {
        // The button of a batch and its key ask whether to stop it.
        if (PrintRunning != False && IsPressOfEnter(*event)) {
            keyPressEvent(static_cast<QKeyEvent *>(event));
            return true;
        }
        return widget->objectName() != "cmdPrint";
    }
    return widget != scrollBar && TakeWheel(*widget, static_cast<QWheelEvent &>(*event));
}

bool ConfigureScreen::TakeWheel(const QWidget &widget, QWheelEvent &event)
{
    if (!scrollBar->isVisible() || widget.hasFocus() || !container->isAncestorOf(&widget)) {
        return false;
    }
    constexpr int notch = 120; // as the toolkit counts
    wheelTurn += event.angleDelta().y() * scrollBar->singleStep();
    scrollBar->setValue(scrollBar->value() - wheelTurn / notch);
    wheelTurn %= notch;
    event.accept(); // or what lies around the control would take it as well
    return true;
}

void ShowConfigureScreen()
{
    if (openScreen == nullptr) {
        ConfigureOpen = True;
        auto *screen = new ConfigureScreen(Window());
        OpenAt(*screen, ConfigurePlace);
    }
    openScreen->ShowTab();
    BringToFront(*openScreen);
}

void MoveMarginBar(std::int32_t thickness)
{
    if (openScreen != nullptr) {
        openScreen->findChild<QScrollBar *>("hsbExtMarginThickness")->setValue(thickness);
    }
}

} // namespace kelvarine
