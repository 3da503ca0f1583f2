#include "ui/configure/new_games_tab.h"

#include "configure/new_game_settings.h"
#include "generator/generator.h"
#include "generator/patterns.h"
#include "paint/text.h"
#include "ui/controls/configure_controls.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include <array>

namespace kelvarine {

namespace {

// Any of the five boxes has changed: all of them count.
void TakeDifficulties(const QWidget *frame)
{
    std::array<bool, Levels + 1> boxes{};
    for (int level = 1; level <= Levels; ++level) {
        const auto *box = frame->findChild<QCheckBox *>(IndexedName("chkDifficulty", level));
        boxes[static_cast<std::size_t>(level)] = box->isChecked();
    }
    SetAcceptedLevels(boxes);
}

QWidget *MakeDifficulties(QWidget *parent)
{
    auto *frame = new QGroupBox("Difficulty", parent);
    auto *column = new QVBoxLayout(frame);
    for (int level = 1; level <= Levels; ++level) {
        column->addWidget(MakeCheckBox(frame, IndexedName("chkDifficulty", level),
                                       DifficultyCaption(level), AcceptsLevel(level),
                                       [frame](bool /*on*/) { TakeDifficulties(frame); }));
    }
    return frame;
}

void AddNumberBox(QGridLayout *grid, int row, const char *name, const char *caption,
                  std::int32_t &setting)
{
    QWidget *parent = grid->parentWidget();
    auto *label = new QLabel(Text(caption), parent);
    QLineEdit *box = MakeNumberBox(parent, Text(name), Text(caption), setting,
                                   [&setting](std::int32_t number) { setting = number; });
    box->setMaximumWidth(box->fontMetrics().horizontalAdvance("0000000"));
    label->setBuddy(box);
    grid->addWidget(label, row, 0);
    grid->addWidget(box, row, 1);
}

QWidget *MakeGivens(QWidget *parent)
{
    auto *part = new QWidget(parent);
    auto *grid = new QGridLayout(part);
    grid->setContentsMargins(0, 0, 0, 0);
    AddNumberBox(grid, 0, "txtMinNumGivens", "Min # givens", MinGivens);
    AddNumberBox(grid, 1, "txtMaxNumGivens", "Max # givens", MaxGivens);
    grid->setColumnStretch(2, 1);
    return part;
}

QWidget *MakePatterns(QWidget *parent)
{
    std::array<std::string_view, PatternCount> captions;
    std::ranges::transform(RevealPatterns, captions.begin(), &RevealPatternRow::Caption);
    return MakeOptions(parent, "optRevealPattern", "Given cell exposures", captions, RevealPattern,
                       [](std::int32_t pattern) { RevealPattern = pattern; });
}

QWidget *MakeStartFlag(QWidget *parent, const char *name, const char *caption, Flag &setting)
{
    return MakeCheckBox(parent, Text(name), caption, setting != False,
                        [&setting](bool on) { setting = FlagOf(on); });
}

} // namespace

QWidget *MakeNewGamesTab(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    auto *rows = new QVBoxLayout(panel);
    auto *columns = new QHBoxLayout;
    auto *left = new QVBoxLayout;
    rows->setSpacing(PanelGap);
    columns->setSpacing(PanelGap);
    left->setSpacing(PanelGap);
    left->addWidget(MakeDifficulties(panel));
    left->addWidget(MakeGivens(panel));
    left->addStretch();
    columns->addLayout(left, 2);
    columns->addWidget(MakePatterns(panel), 3);
    rows->addLayout(columns);
    rows->addWidget(
        MakeStartFlag(panel, "chkFillPMs", " Fill unknown cells with pencilmarks", FillOnStart));
    rows->addWidget(MakeStartFlag(panel, "chkApplySolveLogic", " Apply selected \"Solve\" logic",
                                  SolveOnStart));
    rows->addStretch();
    return panel;
}

} // namespace kelvarine
