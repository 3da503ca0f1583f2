// frmSolutions: the listed solutions as text, beside the board.
#pragma once

#include "game/screens.h"

#include <QDialog>

#include <array>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace kelvarine {

class SolutionsScreen : public QDialog {
    Q_OBJECT

public:
    explicit SolutionsScreen(QWidget *parent);

    // Takes text, count and format over.
    void Refresh();

    // Takes the count alone over.
    void RefreshCount();

    void reject() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    [[nodiscard]] bool CopyAll(const QEvent &event) const;
    void BuildText();
    void BuildFormats();
    void PlaceControls();

    QLabel *lblNumSolutions;
    QPlainTextEdit *txtSolutions;
    std::array<QRadioButton *, CountOf(SolutionsFormatRange)> formats;
    QPushButton *cmdSave;
};

} // namespace kelvarine
