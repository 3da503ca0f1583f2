// The menu bar, with what it does beyond the toolkit's own: some menus stand at its far end, none
// hangs over the edge of the window, a caption changes under a player who walks through the menus,
// and the board has the keyboard when they close.
#pragma once

#include <QMenuBar>

namespace kelvarine {

class MenuBar : public QMenuBar {
public:
    explicit MenuBar(QWidget *parent);

    // What is added from now on stands at the far end.
    void BeginFarEnd();

    // Adds a menu under an object name and a caption.
    QMenu *AddMenu(const QString &name, const QString &caption);

protected:
    void actionEvent(QActionEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void MoveIntoWindow(QMenu &menu) const;
    void FocusBoardAfterMenus();
    void Leave();

    QAction *lateChange = nullptr; // changed while the player was in the bar
};

} // namespace kelvarine
