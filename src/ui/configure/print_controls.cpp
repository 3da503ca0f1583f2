#include "ui/configure/print_controls.h"

#include "commands/print_run.h"
#include "paint/text.h"
#include "print/page_layout.h"
#include "print/print_settings.h"
#include "ui/configure/print_tab.h"
#include "ui/controls/configure_controls.h"
#include "ui/controls/measure_box.h"
#include "ui/controls/print_preview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace kelvarine {

namespace {

using Refresh = std::function<void()>;

constexpr int MostInk = 30; // percent of the page that need no advice

QCheckBox *MakeFlagBox(QWidget *parent, const char *name, std::string_view caption, Flag &setting,
                       const Refresh &refresh)
{
    return MakeCheckBox(parent, name, caption, setting != False, [&setting, refresh](bool on) {
        setting = FlagOf(on);
        refresh();
    });
}

MeasureBox *AddMeasure(QFormLayout *form, const char *name, const char *caption,
                       void (*set)(double), const Refresh &refresh)
{
    auto *box = Named(new MeasureBox(form->parentWidget()), name, Text(caption) + ", inches");
    const auto show = [box](const QString &text) {
        box->setText(text);
    };
    QObject::connect(box, &QLineEdit::textChanged, box,
                     HandingOn(box->text(), show, [box, set, refresh](const QString & /*text*/) {
                         set(box->Measure());
                         refresh();
                     }));
    QObject::connect(box, &QLineEdit::editingFinished, box, [box, refresh] {
        box->setModified(false);
        refresh();
    });
    auto *line = new QHBoxLayout;
    line->setSpacing(6); // not that of the rows
    line->addWidget(box, 1);
    line->addWidget(new QLabel("in", form->parentWidget()));
    auto *label = new QLabel(caption, form->parentWidget());
    label->setBuddy(box);
    form->addRow(label, line);
    return box;
}

// Its rows are close together, so that the panel needs no scroll bar in wide letters either.
QFormLayout *MakeForm(QGroupBox *frame)
{
    auto *form = new QFormLayout(frame);
    const QMargins room = form->contentsMargins();
    form->setContentsMargins(room.left(), 5, room.right(), 5);
    form->setVerticalSpacing(3);
    return form;
}

void MakePlaceFrame(PrintControls &on, QWidget *panel, const Refresh &refresh)
{
    on.PlaceFrame = Named(new QGroupBox("This game", panel), "framePrintPlace", "This game");
    QFormLayout *form = MakeForm(on.PlaceFrame);
    on.Left = AddMeasure(
        form, "txtPrintLeft", "Left", [](double inches) { PrintLeft = inches; }, refresh);
    on.Top = AddMeasure(
        form, "txtPrintTop", "Top", [](double inches) { PrintTop = inches; }, refresh);
    on.Width = AddMeasure(form, "txtPrintWidth", "Width", SetPrintWidth, refresh);
    on.Height = AddMeasure(form, "txtPrintHeight", "Height", SetPrintHeight, refresh);
    on.Centre =
        MakeFlagBox(on.PlaceFrame, "chkPrintCenter", " Center on page", PrintCentre, refresh);
    on.FullPage = MakeCheckBox(on.PlaceFrame, "chkFullPage", " Fit to full page",
                               PrintFullPage != False, [refresh](bool full) {
                                   SetPrintFullPage(FlagOf(full));
                                   refresh();
                               });
    on.Aspect = MakeFlagBox(on.PlaceFrame, "chkAspect", " Maintain aspect", PrintAspect, refresh);
    form->addRow(on.Centre);
    form->addRow(on.FullPage);
    form->addRow(on.Aspect);
}

QStringList LayoutEntries()
{
    QStringList entries;
    for (const int games : GamesPerPage) {
        entries << QString::number(games) + (games == 1 ? " game/page" : " games/page");
    }
    return entries;
}

void MakeBatchFrame(PrintControls &on, QWidget *panel, const Refresh &refresh)
{
    on.BatchFrame =
        Named(new QGroupBox("Batch of new games", panel), "framePrintBatch", "Batch of new games");
    QFormLayout *form = MakeForm(on.BatchFrame);
    on.GamesPerPageList = MakeList(on.BatchFrame, "cmbGamesPerPage", "Games per page",
                                   LayoutEntries(), PrintGamesPerPage, [refresh](int index) {
                                       PrintGamesPerPage = index;
                                       refresh();
                                   });
    form->addRow(on.GamesPerPageList);
    on.Pages = MakeNumberBox(on.BatchFrame, "txtNumPages", "# of pages", PrintPages,
                             [refresh](std::int32_t pages) {
                                 PrintPages = pages;
                                 refresh();
                             });
    form->addRow("# of pages", on.Pages);
    on.BatchSize = Named(new QLabel(on.BatchFrame), "lblNumGames", {});
    form->addRow(on.BatchSize);
    on.Solutions = MakeFlagBox(on.BatchFrame, "chkIncludeSolutions", " Include solutions",
                               PrintIncludeSolutions, refresh);
    form->addRow(on.Solutions);
}

QRadioButton *MakeMode(QWidget *panel, const char *name, std::string_view caption)
{
    return Named(new QRadioButton(Text(caption), panel), name, SpokenText(caption));
}

void MakeModes(PrintControls &on, QWidget *panel, const Refresh &refresh)
{
    on.Modes[PrintCurrent] = MakeMode(panel, "optPrintGame(0)", " Current game");
    on.Modes[PrintNewGames] = MakeMode(panel, "optPrintGame(1)", " New game(s)");
    const auto show = [modes = on.Modes](bool newGames) {
        modes[newGames ? PrintNewGames : PrintCurrent]->setChecked(true);
    };
    QObject::connect(on.Modes[PrintNewGames], &QRadioButton::toggled, panel,
                     HandingOn(false, show, [refresh](bool newGames) {
                         PrintMode = newGames ? PrintNewGames : PrintCurrent;
                         refresh();
                     }));
}

// Pressed once more while games are made it asks whether to stop, so no guard holds it back.
QPushButton *MakePrintButton(QWidget *panel)
{
    auto *button = Named(new QPushButton("Print", panel), "cmdPrint", "Print");
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, panel, [] {
        cmdPrint();
        RefreshPrintPreview();
    });
    return button;
}

// Tells what a dark look costs on paper, and shows what a light one would look like.
void MakeAdvice(PrintControls &on, QWidget *panel)
{
    on.Ink = Named(new QLabel(panel), "lblInk", {});
    on.Ink->setWordWrap(true);
    on.ShowLight =
        Named(new QPushButton("Show a light look", panel), "cmdShowLight", "Show a light look");
    on.ShowLight->setAutoDefault(false);
    on.ShowLight->setCheckable(true);
    on.Ink->hide();
    on.ShowLight->hide();
    QObject::connect(on.ShowLight, &QPushButton::toggled, on.Preview, &PrintPreview::ShowLight);
    // In a turn of its own, since the ink is measured while the preview is painted.
    QObject::connect(
        on.Preview, &PrintPreview::InkChanged, panel,
        [on](int percent) {
            on.Ink->setText(Text("This look covers " + std::to_string(percent) +
                                 " % of the page with ink. A light one needs far less."));
            on.Ink->setVisible(percent > MostInk);
            on.ShowLight->setVisible(percent > MostInk);
            on.ShowLight->setChecked(on.ShowLight->isChecked() && percent > MostInk);
        },
        Qt::QueuedConnection);
}

void Arrange(const PrintControls &on, QWidget *panel)
{
    auto *settings = new QVBoxLayout;
    settings->setSpacing(4);
    settings->addWidget(on.Modes[PrintCurrent]);
    settings->addWidget(on.PlaceFrame);
    settings->addWidget(on.Modes[PrintNewGames]);
    settings->addWidget(on.BatchFrame);
    settings->addWidget(on.Grey);
    settings->addStretch();

    auto *page = new QVBoxLayout;
    page->addWidget(on.Preview, 0, Qt::AlignHCenter);
    page->addWidget(on.Area, 0, Qt::AlignHCenter);
    page->addSpacing(PanelGap);
    page->addWidget(on.Ink);
    page->addWidget(on.ShowLight, 0, Qt::AlignHCenter);
    page->addStretch();
    page->addWidget(on.Print, 0, Qt::AlignRight);

    auto *all = new QHBoxLayout(panel);
    all->addLayout(settings);
    all->addLayout(page, 1);
}

// Goes through the controls as they are read, down the settings and then to the button.
void OrderTabs(const PrintControls &on)
{
    const std::array<QWidget *, 15> order{on.Modes[PrintCurrent],
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
                                          on.ShowLight,
                                          on.Print};
    for (std::size_t k = 1; k < order.size(); ++k) {
        QWidget::setTabOrder(order[k - 1], order[k]);
    }
}

} // namespace

PrintControls MakePrintControls(QWidget *panel, const std::function<void()> &refresh)
{
    PrintControls on;
    MakeModes(on, panel, refresh);
    MakePlaceFrame(on, panel, refresh);
    MakeBatchFrame(on, panel, refresh);
    on.Grey = MakeFlagBox(panel, "chkGreyScale", " Print in greyscale", PrintGreyScale, refresh);
    on.Area = Named(new QLabel(panel), "lblPrintableArea", {});
    on.Preview = new PrintPreview(panel);
    MakeAdvice(on, panel);
    on.Print = MakePrintButton(panel);
    Arrange(on, panel);
    OrderTabs(on);
    return on;
}

} // namespace kelvarine
