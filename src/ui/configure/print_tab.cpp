#include "ui/configure/print_tab.h"

#include "commands/print_run.h"
#include "configure/box_number.h"
#include "outside/printer.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "ui/controls/digit_box.h"
#include "ui/controls/measure_box.h"
#include "ui/controls/print_preview.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <array>

namespace kelvarine {

namespace {

constexpr QSize PanelSize{450, 475};

struct Controls {
    std::array<QRadioButton *, 2> Modes{};
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
    DigitBox *Pages = nullptr;
    QLabel *BatchSize = nullptr;
    QCheckBox *Solutions = nullptr;
    QCheckBox *Grey = nullptr;
    QLabel *Area = nullptr;
    QPushButton *Print = nullptr;
    PrintPreview *Preview = nullptr;
};

QString Words(const std::string &text)
{
    return QString::fromStdString(text);
}

Flag FlagOf(bool on)
{
    return on ? True : False;
}

} // namespace

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
    Controls on;
};

namespace {

QPointer<PrintPanel> shownPanel;

// ---- Making the controls -------------------------------------------------------------------

template <typename Control>
Control *Named(Control *control, const char *name, const QString &accessibleName = {})
{
    control->setObjectName(name);
    if (!accessibleName.isEmpty()) {
        control->setAccessibleName(accessibleName);
    }
    return control;
}

QCheckBox *MakeCheckBox(QWidget *parent, const char *name, const char *caption)
{
    return Named(new QCheckBox(QObject::tr(caption), parent), name);
}

MeasureBox *AddMeasure(QFormLayout *form, const char *name, const char *caption)
{
    const QString words = QObject::tr(caption);
    auto *box = Named(new MeasureBox(form->parentWidget()), name, words);
    form->addRow(words, box);
    return box;
}

void MakePlaceFrame(Controls &on, QWidget *parent)
{
    on.PlaceFrame = Named(new QGroupBox(parent), "fraPrintPlace", QObject::tr("Place and size"));
    auto *form = new QFormLayout(on.PlaceFrame);
    on.Left = AddMeasure(form, "txtPrintLeft", "Left");
    on.Top = AddMeasure(form, "txtPrintTop", "Top");
    on.Width = AddMeasure(form, "txtPrintWidth", "Width");
    on.Height = AddMeasure(form, "txtPrintHeight", "Height");
    on.Centre = MakeCheckBox(on.PlaceFrame, "chkPrintCenter", " Center on page");
    on.FullPage = MakeCheckBox(on.PlaceFrame, "chkFullPage", " Fit to full page");
    on.Aspect = MakeCheckBox(on.PlaceFrame, "chkAspect", " Maintain aspect");
    form->addRow(on.Centre);
    form->addRow(on.FullPage);
    form->addRow(on.Aspect);
}

QComboBox *MakeGamesPerPageList(QWidget *parent)
{
    auto *list = Named(new QComboBox(parent), "cmbGamesPerPage", QObject::tr("Games per page"));
    for (const int games : GamesPerPage) {
        list->addItem(QString::number(games) + (games == 1 ? " game/page" : " games/page"));
    }
    return list;
}

void MakeBatchFrame(Controls &on, QWidget *parent)
{
    on.BatchFrame = Named(new QGroupBox(parent), "fraPrintBatch", QObject::tr("Batch"));
    auto *form = new QFormLayout(on.BatchFrame);
    on.GamesPerPageList = MakeGamesPerPageList(on.BatchFrame);
    form->addRow(on.GamesPerPageList);
    on.Pages = Named(new DigitBox(on.BatchFrame), "txtNumPages", QObject::tr("# of pages"));
    form->addRow(QObject::tr("# of pages"), on.Pages);
    on.BatchSize = Named(new QLabel(on.BatchFrame), "lblNumGames");
    form->addRow(on.BatchSize);
    on.Solutions = MakeCheckBox(on.BatchFrame, "chkIncludeSolutions", " Include solutions");
    form->addRow(on.Solutions);
}

void MakeModes(Controls &on, QWidget *parent)
{
    on.Modes[PrintCurrent] =
        Named(new QRadioButton(QObject::tr(" Current game"), parent), "optPrintGame(0)");
    on.Modes[PrintNewGames] =
        Named(new QRadioButton(QObject::tr(" New game(s)"), parent), "optPrintGame(1)");
}

// In the order in which the tabulator goes through them.
Controls MakeControls(QWidget *parent)
{
    Controls on;
    MakeModes(on, parent);
    MakePlaceFrame(on, parent);
    MakeBatchFrame(on, parent);
    on.Grey = MakeCheckBox(parent, "chkGreyScale", " Print in greyscale");
    on.Area = Named(new QLabel(parent), "lblPrintableArea");
    on.Preview = new PrintPreview(parent);
    on.Print = Named(new QPushButton(QObject::tr("Print"), parent), "cmdPrint");
    on.Print->setAutoDefault(false);
    return on;
}

void Arrange(const Controls &on, QWidget *panel)
{
    auto *settings = new QVBoxLayout;
    settings->addWidget(on.Modes[PrintCurrent]);
    settings->addWidget(on.PlaceFrame);
    settings->addWidget(on.Modes[PrintNewGames]);
    settings->addWidget(on.BatchFrame);
    settings->addWidget(on.Grey);
    settings->addStretch();

    auto *page = new QVBoxLayout;
    page->addWidget(on.Preview, 0, Qt::AlignHCenter);
    page->addWidget(on.Area, 0, Qt::AlignHCenter);
    page->addStretch();
    page->addWidget(on.Print, 0, Qt::AlignRight);

    auto *all = new QHBoxLayout(panel);
    all->addLayout(settings);
    all->addLayout(page, 1);
}

// Goes through the controls as they are read, down the settings and then to the button.
void OrderTabs(const Controls &on)
{
    const std::array<QWidget *, 14> order{on.Modes[PrintCurrent],
                                          on.Left,
                                          on.Top,
                                          on.Width,
                                          on.Height,
                                          on.Centre,
                                          on.FullPage,
                                          on.Aspect,
                                          on.Modes[PrintNewGames],
                                          on.GamesPerPageList,
                                          on.Pages,
                                          on.Solutions,
                                          on.Grey,
                                          on.Print};
    for (std::size_t k = 1; k < order.size(); ++k) {
        QWidget::setTabOrder(order[k - 1], order[k]);
    }
}

// ---- Between controls and settings ---------------------------------------------------------

void ShowCheck(QCheckBox *box, Flag setting)
{
    const QSignalBlocker blocker(box);
    box->setChecked(setting != False);
}

void ShowMode(const Controls &on)
{
    for (std::size_t mode = 0; mode < on.Modes.size(); ++mode) {
        const QSignalBlocker blocker(on.Modes[mode]);
        on.Modes[mode]->setChecked(static_cast<std::int32_t>(mode) == PrintMode);
    }
    on.PlaceFrame->setEnabled(PrintMode == PrintCurrent);
    on.BatchFrame->setEnabled(PrintMode == PrintNewGames);
}

void ShowPlaceAndSize(const Controls &on)
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
    ShowCheck(on.Centre, PrintCentre);
    ShowCheck(on.FullPage, PrintFullPage);
    ShowCheck(on.Aspect, PrintAspect);
}

void ShowBatch(const Controls &on)
{
    const QSignalBlocker blocker(on.GamesPerPageList);
    on.GamesPerPageList->setCurrentIndex(PrintGamesPerPage);
    if (!on.Pages->hasFocus()) {
        on.Pages->setText(QString::number(PrintPages));
    }
    on.BatchSize->setText(Words(BatchSizeText()));
    ShowCheck(on.Solutions, PrintIncludeSolutions);
}

// What a control does is to set its setting and let the panel show what follows.
template <typename Change>
auto Then(PrintPanel *panel, const Change &change)
{
    return [panel, change](const auto &value) {
        change(value);
        panel->Refresh();
    };
}

void ConnectChecks(const Controls &on, PrintPanel *panel)
{
    const auto connect = [panel](QCheckBox *box, const auto &change) {
        QObject::connect(box, &QCheckBox::toggled, panel, Then(panel, change));
    };
    connect(on.Centre, [](bool checked) { PrintCentre = FlagOf(checked); });
    connect(on.FullPage, [](bool checked) { SetPrintFullPage(FlagOf(checked)); });
    connect(on.Aspect, [](bool checked) { PrintAspect = FlagOf(checked); });
    connect(on.Solutions, [](bool checked) { PrintIncludeSolutions = FlagOf(checked); });
    connect(on.Grey, [](bool checked) { PrintGreyScale = FlagOf(checked); });
}

void ConnectMeasures(const Controls &on, PrintPanel *panel)
{
    const auto connect = [panel](MeasureBox *box, const auto &change) {
        QObject::connect(box, &QLineEdit::textEdited, panel,
                         Then(panel, [box, change](const QString &) { change(box->Measure()); }));
        QObject::connect(box, &QLineEdit::editingFinished, panel, [box, panel] {
            box->setModified(false);
            panel->Refresh();
        });
    };
    connect(on.Left, [](double inches) { PrintLeft = inches; });
    connect(on.Top, [](double inches) { PrintTop = inches; });
    connect(on.Width, SetPrintWidth);
    connect(on.Height, SetPrintHeight);
}

void ConnectOthers(const Controls &on, PrintPanel *panel)
{
    QObject::connect(
        on.Modes[PrintNewGames], &QRadioButton::toggled, panel,
        Then(panel, [](bool checked) { PrintMode = checked ? PrintNewGames : PrintCurrent; }));
    QObject::connect(on.GamesPerPageList, &QComboBox::currentIndexChanged, panel,
                     Then(panel, [](int index) { PrintGamesPerPage = index; }));
    QObject::connect(on.Pages, &QLineEdit::textChanged, panel, Then(panel, [](const QString &text) {
                         PrintPages = NumberIn(text.toStdString());
                     }));
    QObject::connect(on.Print, &QPushButton::clicked, panel, [] {
        cmdPrint();
        RefreshPrintPreview();
    });
}

// A button is called as its caption says.
void NameButtons(const QWidget &panel)
{
    for (QAbstractButton *button : panel.findChildren<QAbstractButton *>()) {
        button->setAccessibleName(button->text().remove(u'&').trimmed());
    }
}

} // namespace

PrintPanel::PrintPanel(QWidget *parent) : QWidget(parent), on(MakeControls(this))
{
    setObjectName("picTabPrint");
    setFixedSize(PanelSize);
    Arrange(on, this);
    OrderTabs(on);
    NameButtons(*this);
    ShowCheck(on.Grey, PrintGreyScale);
    Refresh();
    ConnectChecks(on, this);
    ConnectMeasures(on, this);
    ConnectOthers(on, this);
}

PrintPanel::~PrintPanel()
{
    hide(); // a box that loses the focus has its panel brought up to date, while that still stands
}

void PrintPanel::Refresh()
{
    ArrangePicture();
    ShowMode(on);
    ShowPlaceAndSize(on);
    ShowBatch(on);
    on.Area->setText(Words(PrintableAreaText(DecimalSign())));
    on.Preview->FitPage();
    on.Preview->update();
}

void PrintPanel::showEvent(QShowEvent *event)
{
    TakePrintableArea();
    Refresh();
    QWidget::showEvent(event);
}

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
