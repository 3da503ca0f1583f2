// The controls of the configuration screen, ready made: each knows its name, shows a setting and
// hands a change on at once, unless code is filling it.
#pragma once

#include <QScopedValueRollback>
#include <QString>

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QWidget;

namespace kelvarine {

// ---- Guards against write-back; both off when no code is filling controls --------------------

extern bool LoadingControls; // the window fills its controls, or sets a column of boxes at once
extern bool ShowingValues;   // controls are moved to values that were set elsewhere

// True when the change of a control is the player's: no guard is on and no search is running.
bool ChangesCount();

// True when it would be, but for a search that is running.
bool IsHeldBySearch();

// What a control does with its changes, of which it now shows a value. One that counts is handed
// on. While a search runs assistive tools and menus that stood open still move controls: that is
// taken back by show, so that they go on showing what is set.
template <typename Value, typename Show, typename Change>
auto HandingOn(Value shown, Show show, Change change)
{
    return [shown, show, change](const Value &value) mutable {
        if (IsHeldBySearch()) {
            const QScopedValueRollback showing(ShowingValues, true);
            show(Value(shown));
            return;
        }
        shown = value;
        if (ChangesCount()) {
            change(value);
        }
    };
}

// ---- Places ----------------------------------------------------------------------------------

inline constexpr int PanelGap = 10; // between the groups of a panel, across and down

// ---- Texts -----------------------------------------------------------------------------------

// Name of a control of an array, such as "chkUseLogic3".
QString IndexedName(std::string_view name, int index);

// A caption as a screen reader should say it: without outer blanks, && as one &.
QString SpokenText(std::string_view caption);

// Gives a control that is on view another name. Tools are told of it only when it is another one.
void SetSpokenName(QWidget &control, const QString &name);

// ---- Controls; each belongs to parent and is named for tests and screen readers --------------

// Names a control of any kind.
template <typename Control>
Control *Named(Control *control, const QString &name, const QString &spoken)
{
    control->setObjectName(name);
    control->setAccessibleName(spoken);
    return control;
}

QCheckBox *MakeCheckBox(QWidget *parent, const QString &name, std::string_view caption, bool on,
                        const std::function<void(bool)> &change);

QPushButton *MakeButton(QWidget *parent, const QString &name, std::string_view caption,
                        const std::function<void()> &act);

// What a bar can show, and its steps.
struct BarSteps {
    int Highest = 0; // the lowest is 0
    int Small = 1;
    int Large = 10;
};

// A horizontal scroll bar. Scrolling while dragging is a change, too.
QScrollBar *MakeBar(QWidget *parent, const QString &name, const QString &spoken,
                    const BarSteps &steps, int value, const std::function<void(int)> &change);

// A text box for a number, at most so many digits long. The change gets the number it holds.
QLineEdit *MakeNumberBox(QWidget *parent, const QString &name, const QString &spoken, int number,
                         const std::function<void(std::int32_t)> &change);

// A frame with options under each other, named by array name and index; the one of the current
// index is chosen, none when there is no such option.
QGroupBox *MakeOptions(QWidget *parent, std::string_view name, std::string_view frame,
                       std::span<const std::string_view> captions, std::int32_t current,
                       const std::function<void(std::int32_t)> &change);

// Chooses the option of an index in a group, or none when there is no such option.
void ChooseOption(QButtonGroup &group, int id);

// Tab leads to the chosen one of a group of options, or to the first while there is none.
void MakeOneStop(QButtonGroup &group);

// A list of texts with one chosen, none for an index out of the list.
QComboBox *MakeList(QWidget *parent, const QString &name, const QString &spoken,
                    const QStringList &entries, std::int32_t current,
                    const std::function<void(std::int32_t)> &change);

} // namespace kelvarine
