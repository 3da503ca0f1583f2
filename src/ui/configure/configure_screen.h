// frmConfigure: the one modeless window of the settings. Its eight tabs write to the shared state
// at every change, and the board follows at once.
#pragma once

#include "configure/tab_places.h"

#include <QWidget>

#include <array>

class QScrollBar;

namespace kelvarine {

class TabStrip;

class ConfigureScreen : public QWidget {
    Q_OBJECT

public:
    explicit ConfigureScreen(QWidget *parent);
    ConfigureScreen(const ConfigureScreen &) = delete;
    ConfigureScreen &operator=(const ConfigureScreen &) = delete;
    ~ConfigureScreen() override;

    // Shows the panel of CurrentTab, none for a value that names no tab, and hides the others.
    void ShowTab();

    // The panel of CurrentTab, or null.
    [[nodiscard]] QWidget *CurrentPanel() const;

    // Topic that F1 opens: that of the tab shown latest.
    [[nodiscard]] int HelpContext() const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void AddAccessKeys();
    void Choose(std::int32_t tab); // by the player; nothing while a search runs
    void ArrangePanels();
    bool TakeWheel(const QWidget &widget, QWheelEvent &event);

    std::array<QWidget *, TabCount> panels{};
    TabStrip *strip;
    QWidget *container;    // picTabContainer: what is seen of a panel
    QScrollBar *scrollBar; // vsbTabContainer
    int helpContext = 0;
    int wheelTurn = 0;         // what is left of turns of the wheel, in its units times a step
    bool switchingTab = false; // panels come and go, and the focus moves by itself
};

// The open screen, or null.
ConfigureScreen *OpenConfigureScreen();

} // namespace kelvarine
