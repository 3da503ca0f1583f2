// frmStatistics: the tables of the games that the player has solved, beside the board.
#pragma once

#include "game/statistics.h"

#include <QDialog>

class QBoxLayout;
class QGridLayout;
class QLabel;

namespace kelvarine {

class LabelTable;
class TimeBar;

class StatisticsScreen : public QDialog {
    Q_OBJECT

public:
    explicit StatisticsScreen(QWidget *parent);

    // Takes the texts of the tables over.
    void Refresh();

    // Puts the tables beside each other, or one below the other where that alone leaves the board
    // in view.
    void FitBesideBoard();

    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    QWidget *BuildTable(std::size_t table);
    void AddHeadings(QGridLayout &grid, LabelTable &view);
    void AddRow(QGridLayout &grid, std::size_t table, std::size_t row);
    void ShowBars(std::size_t table);

    QBoxLayout *tables;
    std::array<LabelTable *, 2> views{};
    std::array<std::array<std::array<QLabel *, 6>, 6>, 2> labels{};
    std::array<std::array<TimeBar *, TotalRow>, 2> bars{};
};

} // namespace kelvarine
