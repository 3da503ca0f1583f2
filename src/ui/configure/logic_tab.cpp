#include "ui/configure/logic_tab.h"

#include "configure/logic_settings.h"
#include "grid/grid.h"
#include "ui/controls/configure_controls.h"
#include "ui/controls/level_label.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopedValueRollback>

#include <array>

namespace kelvarine {

namespace {

constexpr QPoint MenuOffset{100, 16}; // of the window, and below the top of the label

struct LimitRow {
    std::int32_t Row;
    std::string_view Name;
    std::int32_t *Limit; // null for the limit that nothing reads
};

constexpr std::array LimitRows{
    LimitRow{14, "txtMaxRPLinks", &MaxRPLinks},
    LimitRow{15, "txtMaxXYLinks", &MaxXYLinks},
    LimitRow{18, "txtMaxSinglesLinks", &MaxSinglesLinks},
    LimitRow{HiddenLogicRow, "txtMaxInferenceLinks", nullptr},
};
constexpr int DefaultLimit = 81;

struct LevelEntry {
    std::string_view Name;
    std::string_view Caption;
};

// Entry k of the menu is level k + 1.
constexpr std::array LevelEntries{
    LevelEntry{"mnuEasy", "Easy"},       LevelEntry{"mnuMedium", "Medium"},
    LevelEntry{"mnuHard", "Hard"},       LevelEntry{"mnuVeryhard", "Very hard"},
    LevelEntry{"mnuExtreme", "Extreme"},
};

// Columns of the panel's grid.
enum Column { SolveColumn, AlertColumn, LimitCaptionColumn, LimitColumn, LevelColumn };

class LogicPanel : public QWidget {
public:
    explicit LogicPanel(QWidget *parent);

private:
    void AddHeads();
    void AddTechnique(std::int32_t k);
    void AddLimit(const LimitRow &row);
    void AddFoot(QVBoxLayout *rows);
    QWidget *MakeSelectors();
    void BuildMenu();
    void OpenMenu(std::int32_t k);
    void ShowLevel(std::int32_t k);
    void CheckAll(const std::array<QCheckBox *, LogicRows + 1> &boxes, bool on);

    QGridLayout *grid;
    std::array<QCheckBox *, LogicRows + 1> solveBoxes{};
    std::array<QCheckBox *, LogicRows + 1> alertBoxes{};
    std::array<LevelLabel *, LogicRows + 1> levelLabels{};
    QLabel *requireMessage;
    QMenu *ratings;
    std::int32_t menuRow = 1; // technique for which the menu was opened
};

LogicPanel::LogicPanel(QWidget *parent)
    : QWidget(parent), grid(new QGridLayout),
      requireMessage(new QLabel(TextOf(" * required"), this)),
      ratings(new QMenu(TextOf("Ratings"), this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(6);
    grid->setVerticalSpacing(1);
    grid->setHorizontalSpacing(6);
    grid->setColumnStretch(AlertColumn, 1);
    rows->addLayout(grid);
    AddHeads();
    for (std::int32_t k = 1; k <= LogicRows; ++k) {
        AddTechnique(k);
        for (const LimitRow &row : LimitRows) {
            if (row.Row == k) {
                AddLimit(row);
            }
        }
    }
    BuildMenu();
    AddFoot(rows);
    rows->addStretch();
}

void LogicPanel::AddHeads()
{
    grid->addWidget(new QLabel(TextOf("Solve"), this), 0, SolveColumn, Qt::AlignHCenter);
    grid->addWidget(new QLabel(TextOf("Alert"), this), 0, AlertColumn);
}

void LogicPanel::AddTechnique(std::int32_t k)
{
    const auto row = static_cast<std::size_t>(k);
    const std::string_view caption = TechniqueCaptions[row];
    solveBoxes[row] = MakeCheckBox(this, IndexedName("chkUseLogic", k), "", UsesLogic(k),
                                   [k](bool on) { SetUseLogic(k, on); });
    solveBoxes[row]->setAccessibleName("Solve: " + SpokenText(caption));
    alertBoxes[row] = MakeCheckBox(this, IndexedName("chkShowConflicts", k), caption,
                                   ShowsAlerts(k), [k](bool on) { SetShowAlerts(k, on); });
    alertBoxes[row]->setAccessibleName("Alert: " + SpokenText(caption));
    // A box without caption is lower than one with, and the two would not stand in line.
    solveBoxes[row]->setFixedHeight(alertBoxes[row]->sizeHint().height());
    levelLabels[row] = new LevelLabel(this, [this, k] { OpenMenu(k); });
    levelLabels[row]->setObjectName(IndexedName("lblDifficulty", k));
    ShowLevel(k);
    if (k == HiddenLogicRow) {
        solveBoxes[row]->hide();
        alertBoxes[row]->hide();
        levelLabels[row]->hide();
        return;
    }
    grid->addWidget(solveBoxes[row], k, SolveColumn, Qt::AlignHCenter);
    grid->addWidget(alertBoxes[row], k, AlertColumn);
    grid->addWidget(levelLabels[row], k, LevelColumn);
}

void LogicPanel::AddLimit(const LimitRow &row)
{
    const std::string_view technique = TechniqueCaptions[static_cast<std::size_t>(row.Row)];
    auto *box = MakeNumberBox(this, TextOf(row.Name), SpokenText(technique) + ": max # links",
                              row.Limit != nullptr ? *row.Limit : DefaultLimit,
                              [limit = row.Limit](std::int32_t links) {
                                  if (limit != nullptr) {
                                      SetLinkLimit(*limit, links);
                                  }
                              });
    if (row.Row == HiddenLogicRow) {
        box->hide();
        return;
    }
    auto *label = new QLabel(TextOf("max # links:"), this);
    label->setBuddy(box);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance("00000"));
    box->setFixedHeight(box->fontMetrics().height() + 4);
    grid->addWidget(label, row.Row, LimitCaptionColumn, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(box, row.Row, LimitColumn);
}

void LogicPanel::AddFoot(QVBoxLayout *rows)
{
    requireMessage->setObjectName("lblRequireMsg");
    QSizePolicy policy = requireMessage->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    requireMessage->setSizePolicy(policy);
    requireMessage->setVisible(AnyRequired());
    grid->addWidget(requireMessage, 0, LevelColumn);
    // Room for a star in front of the longest word, so that the column never grows.
    LevelLabel longest(this, {});
    longest.setText("*  Very hard");
    grid->setColumnMinimumWidth(LevelColumn, longest.sizeHint().width());
    rows->addWidget(MakeSelectors());
    rows->addWidget(MakeCheckBox(this, TextOf("chkIncludeSingles"),
                                 " Include singles in naked && hidden pairs/triples/quads",
                                 IncludeSingles != False, SetIncludeSingles));
}

QWidget *LogicPanel::MakeSelectors()
{
    auto *part = new QWidget(this);
    auto *selectors = new QGridLayout(part);
    selectors->setContentsMargins(0, 0, 0, 0);
    selectors->setVerticalSpacing(2);
    selectors->addWidget(new QLabel(TextOf("Select all"), part), 0, 0, 1, 2);
    selectors->addWidget(new QLabel(TextOf("De-select all"), part), 0, 3, 1, 2);
    const auto add = [&](int column, const char *name, const char *caption, const char *spoken,
                         const std::function<void()> &act) {
        QPushButton *button = MakeButton(part, TextOf(name), caption, act);
        button->setAccessibleName(TextOf(spoken));
        selectors->addWidget(button, 1, column);
    };
    add(0, "cmdSelectAllSolves", "Solve", "Select all for solving",
        [this] { CheckAll(solveBoxes, true); });
    add(1, "cmdSelectAllAlerts", "Alert", "Select all for alerts", [this] {
        const QScopedValueRollback loading(LoadingControls, true);
        CheckAll(alertBoxes, true);
        SelectAllAlerts();
    });
    add(3, "cmdDeselectAllSolves", "Solve", "De-select all for solving",
        [this] { CheckAll(solveBoxes, false); });
    add(4, "cmdDeselectAllAlerts", "Alert", "De-select all for alerts", [this] {
        const QScopedValueRollback loading(LoadingControls, true);
        CheckAll(alertBoxes, false);
        DeselectAllAlerts();
    });
    selectors->setColumnMinimumWidth(2, 16);
    return part;
}

void LogicPanel::CheckAll(const std::array<QCheckBox *, LogicRows + 1> &boxes, bool on)
{
    for (std::size_t k = 1; k <= LogicRows; ++k) {
        boxes[k]->setChecked(on);
    }
}

void LogicPanel::BuildMenu()
{
    ratings->setObjectName("mnuRatings");
    std::int32_t level = 0;
    for (const LevelEntry &entry : LevelEntries) {
        ++level;
        QAction *action = ratings->addAction(TextOf(entry.Caption));
        action->setObjectName(TextOf(entry.Name));
        connect(action, &QAction::triggered, this, [this, level] {
            SetLevel(menuRow, level);
            ShowLevel(menuRow);
        });
    }
    QAction *require = ratings->addAction(TextOf("Require (*)"));
    require->setObjectName("mnuRequire");
    connect(require, &QAction::triggered, this, [this] {
        ToggleRequired(menuRow);
        ShowLevel(menuRow);
    });
    connect(ratings, &QMenu::aboutToHide, this,
            [this] { levelLabels[static_cast<std::size_t>(menuRow)]->ShowOpen(false); });
}

void LogicPanel::OpenMenu(std::int32_t k)
{
    menuRow = k;
    LevelLabel *label = levelLabels[static_cast<std::size_t>(k)];
    label->ShowOpen(true);
    const QPoint place(MenuOffset.x(), label->mapTo(window(), QPoint()).y() + MenuOffset.y());
    ratings->popup(window()->mapToGlobal(place));
}

void LogicPanel::ShowLevel(std::int32_t k)
{
    const auto row = static_cast<std::size_t>(k);
    const QString caption = QString::fromStdString(LevelCaption(k));
    levelLabels[row]->setText(caption);
    levelLabels[row]->setAccessibleName("Difficulty of " + SpokenText(TechniqueCaptions[row]) +
                                        ": " + caption);
    requireMessage->setVisible(AnyRequired());
}

} // namespace

QWidget *MakeLogicTab(QWidget *parent)
{
    return new LogicPanel(parent);
}

} // namespace kelvarine
