#include "ui/configure/logic_tab.h"

#include "configure/logic_settings.h"
#include "grid/grid.h"
#include "logic/technique_table.h"
#include "paint/text.h"
#include "ui/controls/configure_controls.h"
#include "ui/controls/finger_room.h"
#include "ui/controls/level_label.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyle>

#include <array>
#include <functional>
#include <vector>

namespace kelvarine {

namespace {

constexpr QPoint MenuOffset{100, 16}; // of the window, and below the top of the label

// The entries of the menu by level, from easy.
constexpr std::array LevelEntries{"mnuEasy", "mnuMedium", "mnuHard", "mnuVeryhard", "mnuExtreme"};
static_assert(LevelEntries.size() == Levels);

// Columns of the panel's grid.
enum Column { SolveColumn, AlertColumn, LimitCaptionColumn, LimitColumn, LevelColumn };

// Whether a technique stands behind a row; the row kept free is there but hidden.
bool IsShown(const TechniqueRow &row)
{
    return FindTechnique(row.Number) != nullptr;
}

// Place of row k in TechniqueRows.
std::size_t PlaceOf(std::int32_t k)
{
    return static_cast<std::size_t>(k) - 1;
}

class LogicPanel : public QWidget {
public:
    explicit LogicPanel(QWidget *parent);

private:
    void AddHeads();
    void AddTechnique(const TechniqueRow &technique);
    void AddLimit(const TechniqueRow &technique);
    void AddFoot(QVBoxLayout *rows);
    QWidget *MakeSelectors();
    void BuildMenu();
    void OpenMenu(std::int32_t k);
    void ShowLevel(std::int32_t k);
    static void CheckAll(const std::vector<QCheckBox *> &boxes, bool on);

    QGridLayout *grid;
    // By place in TechniqueRows.
    std::vector<QCheckBox *> solveBoxes;
    std::vector<QCheckBox *> alertBoxes;
    std::vector<LevelLabel *> levelLabels;
    QLabel *requireMessage;
    QMenu *ratings;
    std::int32_t menuRow = 1; // technique for which the menu was opened
};

LogicPanel::LogicPanel(QWidget *parent)
    : QWidget(parent), grid(new QGridLayout), requireMessage(new QLabel(" * required", this)),
      ratings(new QMenu("Ratings", this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(6);
    grid->setVerticalSpacing(1);
    grid->setHorizontalSpacing(5);
    grid->setColumnStretch(AlertColumn, 1);
    rows->addLayout(grid);
    AddHeads();
    for (const TechniqueRow &technique : TechniqueRows) {
        AddTechnique(technique);
        if (!technique.LimitBox.empty()) {
            AddLimit(technique);
        }
    }
    BuildMenu();
    AddFoot(rows);
    rows->addStretch();
}

void LogicPanel::AddHeads()
{
    // The head of the alerts stands over their boxes, which begin their column.
    auto *alert = new QLabel("Alert", this);
    const int box = style()->pixelMetric(QStyle::PM_IndicatorWidth);
    alert->setIndent(std::max(0, (box - alert->fontMetrics().horizontalAdvance("Alert")) / 2));
    grid->addWidget(new QLabel("Solve", this), 0, SolveColumn, Qt::AlignHCenter);
    grid->addWidget(alert, 0, AlertColumn);
    grid->addWidget(new QLabel("Level", this), 0, LevelColumn);
}

void LogicPanel::AddTechnique(const TechniqueRow &technique)
{
    const std::int32_t k = technique.Number;
    QCheckBox *solve = MakeCheckBox(this, IndexedName("chkUseLogic", k), "", UsesLogic(k),
                                    [k](bool on) { SetUseLogic(k, on); });
    solve->setAccessibleName("Solve: " + SpokenText(technique.Caption));
    QCheckBox *alert = MakeCheckBox(this, IndexedName("chkShowConflicts", k), technique.Caption,
                                    ShowsAlerts(k), [k](bool on) { SetShowAlerts(k, on); });
    alert->setAccessibleName("Alert: " + SpokenText(technique.Caption));
    // A box without caption is lower than one with, and the two would not stand in line.
    solve->setFixedHeight(alert->sizeHint().height());
    auto *level = new LevelLabel(this, [this, k] { OpenMenu(k); });
    level->setObjectName(IndexedName("lblDifficulty", k));
    solveBoxes.push_back(solve);
    alertBoxes.push_back(alert);
    levelLabels.push_back(level);
    ShowLevel(k);
    if (!IsShown(technique)) {
        solve->hide();
        alert->hide();
        level->hide();
        return;
    }
    grid->addWidget(solve, k, SolveColumn, Qt::AlignHCenter);
    grid->addWidget(alert, k, AlertColumn);
    grid->addWidget(level, k, LevelColumn);
}

void LogicPanel::AddLimit(const TechniqueRow &technique)
{
    std::int32_t *limit = technique.LinkLimit;
    auto *box = MakeNumberBox(
        this, Text(technique.LimitBox), SpokenText(technique.Caption) + ": max # links",
        limit != nullptr ? *limit : LinkLimitRange.Most, [limit](std::int32_t links) {
            if (limit != nullptr) {
                SetLinkLimit(*limit, links);
            }
        });
    if (!IsShown(technique)) {
        box->hide();
        return;
    }
    auto *label = new QLabel("max # links:", this);
    label->setBuddy(box);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance("0000"));
    box->setFixedHeight(WithRoomForFinger(box->fontMetrics().height() + 4));
    grid->addWidget(label, technique.Number, LimitCaptionColumn, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(box, technique.Number, LimitColumn);
}

void LogicPanel::AddFoot(QVBoxLayout *rows)
{
    requireMessage->setObjectName("lblRequireMsg");
    QSizePolicy policy = requireMessage->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    requireMessage->setSizePolicy(policy);
    requireMessage->setVisible(AnyRequired());
    grid->addWidget(requireMessage, 0, LimitCaptionColumn, 1, 2, Qt::AlignRight);
    // Room for a star in front of the longest word, so that the column never grows.
    LevelLabel longest(this, {});
    longest.setText(Text(RequiredMark) + Text(WordsOfRating(RatedVeryHard).Capital));
    grid->setColumnMinimumWidth(LevelColumn, longest.sizeHint().width());
    rows->addWidget(MakeSelectors());
    rows->addWidget(MakeCheckBox(this, "chkIncludeSingles",
                                 " Include singles in naked && hidden pairs/triples/quads",
                                 IncludeSingles != False, SetIncludeSingles));
}

QWidget *LogicPanel::MakeSelectors()
{
    auto *part = new QWidget(this);
    auto *selectors = new QGridLayout(part);
    selectors->setContentsMargins(0, 0, 0, 0);
    selectors->setVerticalSpacing(2);
    selectors->addWidget(new QLabel("Select all", part), 0, 0, 1, 2);
    selectors->addWidget(new QLabel("De-select all", part), 0, 3, 1, 2);
    const auto add = [&](int column, const char *name, const char *caption, const char *spoken,
                         const std::function<void()> &act) {
        QPushButton *button = MakeButton(part, Text(name), caption, act);
        button->setAccessibleName(Text(spoken));
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

void LogicPanel::CheckAll(const std::vector<QCheckBox *> &boxes, bool on)
{
    for (QCheckBox *box : boxes) {
        box->setChecked(on);
    }
}

void LogicPanel::BuildMenu()
{
    ratings->setObjectName("mnuRatings");
    // The menu may stand open when a search begins.
    const auto add = [this](const QString &caption, const char *name,
                            const std::function<void()> &act) {
        QAction *action = ratings->addAction(caption);
        action->setObjectName(Text(name));
        connect(action, &QAction::triggered, this, [this, act] {
            if (ChangesCount()) {
                act();
                ShowLevel(menuRow);
            }
        });
    };
    std::int32_t level = 0;
    for (const char *name : LevelEntries) {
        ++level;
        add(Text(WordsOfRating(level).Capital), name, [this, level] { SetLevel(menuRow, level); });
    }
    add("Require (*)", "mnuRequire", [this] { ToggleRequired(menuRow); });
    connect(ratings, &QMenu::aboutToHide, this,
            [this] { levelLabels[PlaceOf(menuRow)]->ShowOpen(false); });
}

void LogicPanel::OpenMenu(std::int32_t k)
{
    if (!ChangesCount()) {
        return;
    }
    menuRow = k;
    LevelLabel *label = levelLabels[PlaceOf(k)];
    label->ShowOpen(true);
    const QPoint place(MenuOffset.x(), label->mapTo(window(), QPoint()).y() + MenuOffset.y());
    ratings->popup(window()->mapToGlobal(place));
}

void LogicPanel::ShowLevel(std::int32_t k)
{
    LevelLabel *label = levelLabels[PlaceOf(k)];
    const QString caption = QString::fromStdString(LevelCaption(k));
    label->setText(caption);
    // The mark in front says nothing to the ear.
    const bool required = caption.startsWith(Text(RequiredMark));
    label->setAccessibleName(
        Text("Difficulty of %1: %2")
            .arg(SpokenText(TechniqueRows[PlaceOf(k)].Caption),
                 required ? caption.mid(Text(RequiredMark).size()) + ", required" : caption));
    requireMessage->setVisible(AnyRequired());
}

} // namespace

QWidget *MakeLogicTab(QWidget *parent)
{
    return new LogicPanel(parent);
}

} // namespace kelvarine
