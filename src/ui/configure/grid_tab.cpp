#include "ui/configure/grid_tab.h"

#include "configure/look_settings.h"
#include "paint/text.h"
#include "ui/controls/configure_controls.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <array>

namespace kelvarine {

namespace {

struct ThicknessRow {
    std::string_view Frame;
    std::string_view Bar;
    std::string_view Label;
    std::int32_t *Setting;
    BarSteps Steps;
    std::string_view EffectName; // empty where there is no effect
    Flag *Effect;
};

constexpr std::array ThicknessRows{
    ThicknessRow{"Primary Grid Lines", "hsbPrimGridThick", "lblPrimGridThick", &PrimaryThickness,
                 BarSteps{LineThicknessRange.Most, 2, 10}, "chk3DPrimGrid", &PrimaryGrid3D},
    ThicknessRow{"Secondary Grid Lines", "hsbSecGridThick", "lblSecGridThick", &SecondaryThickness,
                 BarSteps{LineThicknessRange.Most, 1, 10}, "chk3DSecGrid", &SecondaryGrid3D},
    ThicknessRow{"Exterior 3D Border", "hsbThicknessExt3dBorder", "lblThicknessExt3DBorder",
                 &BorderThickness, BarSteps{LineThicknessRange.Most, 1, 10}, "", nullptr},
    ThicknessRow{"Exterior Margins", "hsbExtMarginThickness", "lblExtMarginThickness",
                 &MarginThickness, BarSteps{MarginThicknessRange.Most, 1, 10}, "", nullptr},
};

struct EffectRow {
    std::string_view Name;
    std::string_view Caption;
    Flag *Setting;
};

constexpr std::array EffectRows{
    EffectRow{"chk3DExposedCells", " Given cells", &GivenCells3D},
    EffectRow{"chk3DUnknownCells", " Unknown cells", &UnknownCells3D},
    EffectRow{"chk3DSelectedCells", " Selected cells", &SelectedCells3D},
};

QCheckBox *MakeEffect(QWidget *parent, std::string_view name, std::string_view caption,
                      Flag *setting)
{
    return MakeCheckBox(parent, Text(name), caption, *setting != False,
                        [setting](bool on) { SetLookFlag(*setting, on); });
}

QWidget *MakeThickness(QWidget *parent, const ThicknessRow &row)
{
    auto *frame = new QGroupBox(Text(row.Frame), parent);
    auto *grid = new QGridLayout(frame);
    auto *bar = MakeBar(frame, Text(row.Bar), Text(row.Frame) + " thickness in pixels", row.Steps,
                        *row.Setting,
                        [setting = row.Setting](int pixels) { SetThickness(*setting, pixels); });
    auto *value = new QLabel(QString::number(bar->value()), frame);
    value->setObjectName(Text(row.Label));
    value->setMinimumWidth(value->fontMetrics().horizontalAdvance("000"));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // The label follows the bar whoever moves it.
    QObject::connect(bar, &QScrollBar::valueChanged, value,
                     [value, bar] { value->setText(QString::number(bar->value())); });
    grid->addWidget(new QLabel("Thickness", frame), 0, 0);
    grid->addWidget(value, 0, 1);
    grid->addWidget(bar, 1, 0, 1, 2);
    if (row.Effect != nullptr) {
        QCheckBox *effect = MakeEffect(frame, row.EffectName, " 3D effect", row.Effect);
        effect->setAccessibleName(Text(row.Frame) + " 3D effect");
        grid->addWidget(effect, 2, 0, 1, 2);
    }
    grid->setRowStretch(3, 1);
    return frame;
}

QWidget *MakeEffects(QWidget *parent)
{
    auto *frame = new QGroupBox("3D effects", parent);
    auto *column = new QVBoxLayout(frame);
    for (const EffectRow &row : EffectRows) {
        column->addWidget(MakeEffect(frame, row.Name, row.Caption, row.Setting));
    }
    column->addStretch();
    return frame;
}

QWidget *MakePencilmarks(QWidget *parent)
{
    QGroupBox *frame = MakeOptions(parent, "optPencilmarkGrid", "Pencilmark Grid", LayoutCaptions,
                                   PencilmarkLayout, SetPencilmarkLayout);
    auto *column = qobject_cast<QVBoxLayout *>(frame->layout());
    column->insertWidget(static_cast<int>(LayoutCaptions.size()),
                         MakeCheckBox(frame, "chkPencilmarkGridLines", " Use lines",
                                      PencilmarkLines != False,
                                      [](bool on) { SetLookFlag(PencilmarkLines, on); }));
    return frame;
}

} // namespace

QWidget *MakeGridTab(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *grid = new QGridLayout(panel);
    grid->setSpacing(PanelGap);
    for (int k = 0; k < static_cast<int>(ThicknessRows.size()); ++k) {
        grid->addWidget(MakeThickness(panel, ThicknessRows[static_cast<std::size_t>(k)]), k / 2,
                        k % 2);
    }
    grid->addWidget(MakeEffects(panel), 2, 0);
    grid->addWidget(MakePencilmarks(panel), 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return panel;
}

void ShowPresetOnGridTab(const QWidget &screen)
{
    const QScopedValueRollback showing(ShowingValues, true);
    for (const ThicknessRow &row : ThicknessRows) {
        screen.findChild<QScrollBar *>(Text(row.Bar))->setValue(*row.Setting);
        if (row.Effect != nullptr) {
            screen.findChild<QCheckBox *>(Text(row.EffectName))->setChecked(*row.Effect != False);
        }
    }
    for (const EffectRow &row : EffectRows) {
        screen.findChild<QCheckBox *>(Text(row.Name))->setChecked(*row.Setting != False);
    }
}

} // namespace kelvarine
