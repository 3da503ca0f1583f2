// The main window: the menu bar, the margin with its texts and the board in it.
#pragma once

#include <QMainWindow>
#include <QTimer>

namespace kelvarine {

class BoardWidget;
class ToolbarWidget;

// The client area: paints the exterior margin and holds the toolbar and the board.
class ClientArea : public QWidget {
    Q_OBJECT

public:
    explicit ClientArea(QWidget *parent);

    // Works the sizes out anew and moves the toolbar and the board.
    void Layout();

    ToolbarWidget *const Toolbar;
    BoardWidget *const Board;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
};

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();
    MainWindow(const MainWindow &) = delete;
    MainWindow &operator=(const MainWindow &) = delete;
    ~MainWindow() override;

    // Brings the captions of the clock's menu up to date.
    void UpdateMenuCaptions();

    ClientArea *const Client;
    QTimer tmrSolveTime;
    QTimer tmrGameWon;

    // Puts the window where it last stood, in reach of the screens that are there, and shows it.
    void ShowAtItsPlace();

    // The largest size up to a wanted one that fits into a room, with the board in the same form.
    [[nodiscard]] QSize SizeWithin(const QSize &wanted, const QSize &room) const;

    // Keeps where the window stands, unless it is not on view.
    void KeepPlace();

    // Closes the window as the player does, or as soon as it is on view. While a closing before
    // waits for its answer, that one decides and nothing happens. True when the window is gone.
    bool CloseUnlessAsking();

    // Asks something that a closing would ask, in its manner, and closes nothing. Gives the answer.
    bool AskAsClosingDoes(bool (*ask)());

    // A closing, or a session's end, waits for the player's answer.
    [[nodiscard]] bool IsClosing() const;

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    bool asking = false; // what a closing asks
    bool wasShown = false;
    bool closesWhenShown = false;
};

// The one main window, or null before it stands and after it has gone.
MainWindow *Window();

} // namespace kelvarine
