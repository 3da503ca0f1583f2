#include "ui/controls/configure_controls.h"

#include "configure/box_number.h"
#include "game/search.h"
#include "grid/grid.h"
#include "paint/text.h"
#include "ui/controls/digit_box.h"
#include "ui/controls/focus_bar.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kelvarine {

bool LoadingControls;
bool ShowingValues;

bool ChangesCount()
{
    return !LoadingControls && !ShowingValues && !IsBusy();
}

bool IsHeldBySearch()
{
    return !LoadingControls && !ShowingValues && IsBusy();
}

QString IndexedName(std::string_view name, int index)
{
    return Text(name) + QString::number(index);
}

QString SpokenText(std::string_view caption)
{
    return Text(caption).trimmed().replace(Text("&&"), Text("&"));
}

void SetSpokenName(QWidget &control, const QString &name)
{
    if (name != control.accessibleName()) {
        control.setAccessibleName(name);
    }
}

QCheckBox *MakeCheckBox(QWidget *parent, const QString &name, std::string_view caption, bool on,
                        const std::function<void(bool)> &change)
{
    auto *box = Named(new QCheckBox(Text(caption), parent), name, SpokenText(caption));
    box->setChecked(on);
    const auto show = [box](bool checked) {
        box->setChecked(checked);
    };
    QObject::connect(box, &QCheckBox::toggled, box, HandingOn(on, show, change));
    return box;
}

QPushButton *MakeButton(QWidget *parent, const QString &name, std::string_view caption,
                        const std::function<void()> &act)
{
    auto *button = Named(new QPushButton(Text(caption), parent), name, SpokenText(caption));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, [act] {
        if (ChangesCount()) {
            act();
        }
    });
    return button;
}

QScrollBar *MakeBar(QWidget *parent, const QString &name, const QString &spoken,
                    const BarSteps &steps, int value, const std::function<void(int)> &change)
{
    auto *bar = Named(new FocusBar(parent), name, spoken);
    bar->setRange(0, steps.Highest);
    bar->setSingleStep(steps.Small);
    bar->setPageStep(steps.Large);
    bar->setValue(value);
    const auto show = [bar](int place) {
        bar->setValue(place);
    };
    QObject::connect(bar, &QScrollBar::valueChanged, bar, HandingOn(bar->value(), show, change));
    return bar;
}

QLineEdit *MakeNumberBox(QWidget *parent, const QString &name, const QString &spoken, int number,
                         const std::function<void(std::int32_t)> &change)
{
    auto *box = Named(new DigitBox(parent), name, spoken);
    box->setText(QString::number(number));
    const auto show = [box](const QString &text) {
        box->setText(text);
    };
    QObject::connect(box, &QLineEdit::textChanged, box,
                     HandingOn(box->text(), show, [change](const QString &text) {
                         change(NumberIn(text.toStdString()));
                     }));
    return box;
}

void ChooseOption(QButtonGroup &group, int id)
{
    if (QAbstractButton *option = group.button(id); option != nullptr) {
        option->setChecked(true);
    } else if (QAbstractButton *chosen = group.checkedButton(); chosen != nullptr) {
        group.setExclusive(false); // else the last one could not be let go
        chosen->setChecked(false);
        group.setExclusive(true);
    }
}

void MakeOneStop(QButtonGroup &group)
{
    const auto follow = [&group] {
        const QList<QAbstractButton *> options = group.buttons();
        const QAbstractButton *stop = group.checkedButton();
        for (QAbstractButton *option : options) {
            const bool isStop = option == (stop != nullptr ? stop : options.front());
            option->setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
        }
    };
    follow();
    QObject::connect(&group, &QButtonGroup::idToggled, &group, follow);
}

QGroupBox *MakeOptions(QWidget *parent, std::string_view name, std::string_view frame,
                       std::span<const std::string_view> captions, std::int32_t current,
                       const std::function<void(std::int32_t)> &change)
{
    auto *box = new QGroupBox(Text(frame), parent);
    auto *column = new QVBoxLayout(box);
    auto *group = new QButtonGroup(box);
    for (int k = 0; k < static_cast<int>(captions.size()); ++k) {
        const std::string_view caption = captions[static_cast<std::size_t>(k)];
        auto *option = Named(new QRadioButton(Text(caption), box), IndexedName(name, k),
                             Text(frame) + ' ' + SpokenText(caption));
        option->setChecked(k == current);
        group->addButton(option, k);
        column->addWidget(option);
    }
    column->addStretch();
    MakeOneStop(*group);
    const auto show = [group](int id) {
        ChooseOption(*group, id);
    };
    QObject::connect(
        group, &QButtonGroup::idToggled, box,
        [take = HandingOn(group->checkedId(), show, change)](int id, bool checked) mutable {
            if (checked) {
                take(id);
            }
        });
    return box;
}

QComboBox *MakeList(QWidget *parent, const QString &name, const QString &spoken,
                    const QStringList &entries, std::int32_t current,
                    const std::function<void(std::int32_t)> &change)
{
    auto *list = Named(new QComboBox(parent), name, spoken);
    list->addItems(entries);
    list->setCurrentIndex(current < entries.size() ? std::max(current, -1) : -1);
    const auto show = [list](int index) {
        list->setCurrentIndex(index);
    };
    QObject::connect(list, &QComboBox::currentIndexChanged, list,
                     HandingOn(list->currentIndex(), show, [change](int index) {
                         if (index >= 0) {
                             change(index);
                         }
                     }));
    return list;
}

} // namespace kelvarine
