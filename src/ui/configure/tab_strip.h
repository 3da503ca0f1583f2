// The tabs of the configuration screen, painted in two rows: the four with the current tab in
// front, joined to the panel below, the other four behind them.
#pragma once

#include "configure/tab_places.h"

#include <QWidget>

#include <array>
#include <functional>

namespace kelvarine {

class TabStrip : public QWidget {
    Q_OBJECT

public:
    // choose is called with the tab that a press or an arrow key asks for. The letters that go to a
    // tab with Alt are marked in its text.
    TabStrip(QWidget *parent, std::array<QString, TabCount> texts, std::array<char, TabCount> keys,
             std::function<void(std::int32_t)> choose);

    [[nodiscard]] const QString &TextOfTab(int tab) const;
    [[nodiscard]] QRect PlaceOfTab(int tab) const; // where it is painted

    // Pixels that the strip takes: both rows are high enough for the font.
    [[nodiscard]] int Height() const;

    // Width of a window in which every tab has room for its text.
    [[nodiscard]] int WidthForTexts() const;
    void Choose(int tab);

    // The current tab is another one.
    void ShowCurrent();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    [[nodiscard]] int RowHeight() const;
    [[nodiscard]] QString MarkedText(int tab) const;
    void PaintTab(QPainter &painter, int tab) const;

    std::array<QString, TabCount> tabTexts;
    std::array<char, TabCount> accessKeys;
    std::function<void(std::int32_t)> chooseTab;
};

} // namespace kelvarine
