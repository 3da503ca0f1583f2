#include "ui/configure/print_tab.h"

#include "commands/print_run.h"
#include "outside/printer.h"
#include "paint/text.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "ui/configure/print_controls.h"
#include "ui/controls/configure_controls.h"
#include "ui/controls/measure_box.h"
#include "ui/controls/print_preview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

namespace kelvarine {

namespace {

// ---- Showing the settings --------------------------------------------------------------------

void ShowMode(const PrintControls &on)
{
    for (std::size_t mode = 0; mode < on.Modes.size(); ++mode) {
        on.Modes[mode]->setChecked(static_cast<std::int32_t>(mode) == PrintMode);
    }
    on.PlaceFrame->setEnabled(PrintMode == PrintCurrent);
    on.BatchFrame->setEnabled(PrintMode == PrintNewGames);
}

void ShowPlaceAndSize(const PrintControls &on)
{
    on.Left->ShowMeasure(PrintLeft);
    on.Top->ShowMeasure(PrintTop);
    on.Width->ShowMeasure(PrintWidth);
    on.Height->ShowMeasure(PrintHeight);
    on.Left->setEnabled(IsPlaceFree());
    on.Top->setEnabled(IsPlaceFree());
    on.Width->setEnabled(IsSizeFree());
    on.Height->setEnabled(IsSizeFree());
    on.Centre->setEnabled(IsCentreFree());
    on.Centre->setChecked(PrintCentre != False);
    on.FullPage->setChecked(PrintFullPage != False);
    on.Aspect->setChecked(PrintAspect != False);
}

void ShowBatch(const PrintControls &on)
{
    on.GamesPerPageList->setCurrentIndex(PrintGamesPerPage);
    if (!on.Pages->hasFocus()) {
        on.Pages->setText(QString::number(PrintPages));
    }
    on.BatchSize->setText(Text(BatchSizeText()));
    on.Solutions->setChecked(PrintIncludeSolutions != False);
}

// The panel. It holds no settings, only the controls that show them.
class PrintPanel : public QWidget {
public:
    explicit PrintPanel(QWidget *parent);
    PrintPanel(const PrintPanel &) = delete;
    PrintPanel &operator=(const PrintPanel &) = delete;
    ~PrintPanel() override;

    void Refresh();

protected:
    void showEvent(QShowEvent *event) override;

private:
    PrintControls on;
};

PrintPanel::PrintPanel(QWidget *parent)
    : QWidget(parent), on(MakePrintControls(this, [this] { Refresh(); }))
{
    setObjectName("picTabPrint");
    Refresh();
}

PrintPanel::~PrintPanel()
{
    hide(); // a box that loses the focus has its panel brought up to date, while that still stands
}

void PrintPanel::Refresh()
{
    ArrangePicture();
    const QScopedValueRollback showing(ShowingValues, true);
    ShowMode(on);
    ShowPlaceAndSize(on);
    ShowBatch(on);
    const QString caption = PrintRunning != False ? "Stop" : "Print";
    on.Print->setText(caption);
    on.Print->setAccessibleName(caption);
    on.Area->setText(Text(PrintableAreaText(DecimalSign())));
    on.Preview->FitPage();
    on.Preview->ShowPage();
    // The preview is no stop of the Tab key; whoever comes to the button hears what it prints.
    if (on.Print->accessibleDescription() != on.Preview->accessibleName()) {
        on.Print->setAccessibleDescription(on.Preview->accessibleName());
    }
}

void PrintPanel::showEvent(QShowEvent *event)
{
    TakePrintableArea();
    Refresh();
    QWidget::showEvent(event);
}

QPointer<PrintPanel> shownPanel;

} // namespace

QWidget *MakePrintTab(QWidget *parent)
{
    shownPanel = new PrintPanel(parent);
    return shownPanel;
}

void RefreshPrintPreview()
{
    if (!shownPanel.isNull() && shownPanel->isVisible()) {
        shownPanel->Refresh();
    }
}

} // namespace kelvarine
