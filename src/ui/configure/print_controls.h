// The controls of the print tab, each of which writes its own setting at once.
#pragma once

#include <array>
#include <functional>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace kelvarine {

class MeasureBox;
class PrintPreview;

struct PrintControls {
    std::array<QRadioButton *, 2> Modes{}; // by PrintMode
    QGroupBox *PlaceFrame = nullptr;
    MeasureBox *Left = nullptr;
    MeasureBox *Top = nullptr;
    MeasureBox *Width = nullptr;
    MeasureBox *Height = nullptr;
    QCheckBox *Centre = nullptr;
    QCheckBox *FullPage = nullptr;
    QCheckBox *Aspect = nullptr;
    QGroupBox *BatchFrame = nullptr;
    QComboBox *GamesPerPageList = nullptr;
    QLineEdit *Pages = nullptr;
    QLabel *BatchSize = nullptr;
    QCheckBox *Solutions = nullptr;
    QCheckBox *Grey = nullptr;
    PrintPreview *Preview = nullptr;
    QLabel *Area = nullptr;
    QLabel *Ink = nullptr;            // advice, hidden while there is no need of it
    QPushButton *ShowLight = nullptr; // what would follow from it; shown with the advice
    QPushButton *Print = nullptr;
};

// Makes the controls on a panel, in their places and in the order of the tabulator. After each
// change of a setting refresh shows what follows from it.
PrintControls MakePrintControls(QWidget *panel, const std::function<void()> &refresh);

} // namespace kelvarine
