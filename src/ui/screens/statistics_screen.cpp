#include "ui/screens/statistics_screen.h"

#include "outside/clipboard.h"
#include "outside/screens.h"
#include "paint/text.h"
#include "ui/controls/label_table.h"
#include "ui/screens/time_bar.h"
#include "ui/window/main_window.h"
#include "ui/window/placing.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace kelvarine {

namespace {

constexpr int ColumnGap = 24;
constexpr int RowGap = 8;

constexpr int BestColumn = 3; // the columns of times stand side by side
constexpr int AverageColumn = BestColumn + 1;

QPointer<StatisticsScreen> statisticsScreen;

// Name of the label of a row in a table, such as lblVeryHardSession0.
QString LabelName(std::size_t table, std::size_t row, std::size_t column)
{
    const QString name = Text(StatisticsRowNames[row]).remove(u' ');
    return Text("lbl%1%2%3")
        .arg(name, table == SessionTable ? Text("Session") : Text("Total"))
        .arg(column);
}

Qt::Alignment AlignmentOf(std::size_t column)
{
    return (column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
}

// A time has a blank behind it. What stands in the column of times without one leaves room for it,
// so that all of them align.
void LeaveRoomForBlank(QLabel &label, std::size_t column)
{
    const bool among = column == BestColumn || column == AverageColumn;
    const bool has = label.text().endsWith(u' ');
    const int blank = label.fontMetrics().horizontalAdvance(u' ');
    label.setContentsMargins(0, 0, among && !has ? blank : 0, 0);
}

// Both tables as they are on view, columns parted by tabs.
std::string TablesAsText()
{
    std::string text;
    for (std::size_t table = 0; table < StatisticsLabels.size(); ++table) {
        text += std::string(StatisticsTitles[table]) + "\n";
        std::array<std::string, 7> lines;
        for (std::size_t column = 0; column < StatisticsColumns.size(); ++column) {
            if (!StatisticsColumns[column].Visible) {
                continue;
            }
            const std::string tab = column == 0 ? "" : "\t";
            lines[0] += tab + std::string(StatisticsColumns[column].Heading);
            for (std::size_t row = 0; row <= TotalRow; ++row) {
                const QString shown = Text(column == 0 ? StatisticsRowNames[row]
                                                       : StatisticsLabels[table][row][column]);
                lines[row + 1] += tab + shown.trimmed().toStdString();
            }
        }
        for (const std::string &line : lines) {
            text += line + "\n";
        }
        text += table == SessionTable ? "\n" : "";
    }
    return text;
}

bool IsArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

void MakeBold(QLabel &label)
{
    QFont font = label.font();
    font.setBold(true);
    label.setFont(font);
}

} // namespace

StatisticsScreen::StatisticsScreen(QWidget *parent)
    : QDialog(parent), tables(new QBoxLayout(QBoxLayout::LeftToRight))
{
    setObjectName("frmStatistics");
    setWindowTitle("Statistics");
    auto *clear = new QPushButton("&Clear", this);
    clear->setObjectName("cmdClearStats");
    clear->setAccessibleName("Clear statistics");
    clear->setAutoDefault(false); // Enter alone must not come near it
    connect(clear, &QPushButton::clicked, this, cmdClearStats);
    auto *column = new QVBoxLayout(this);
    tables->addWidget(BuildTable(SessionTable));
    tables->addWidget(BuildTable(AllSessionsTable));
    column->addLayout(tables);
    column->addWidget(clear, 0, Qt::AlignRight);
    column->setSizeConstraint(QLayout::SetFixedSize);
    setFocus(); // else the first stop of Tab would have it from the start
}

void StatisticsScreen::FitBesideBoard()
{
    tables->setDirection(QBoxLayout::LeftToRight);
    adjustSize();
    if (!HasRoomBeside(*this)) {
        tables->setDirection(QBoxLayout::TopToBottom);
        adjustSize();
    }
}

QWidget *StatisticsScreen::BuildTable(std::size_t table)
{
    auto *box = new QGroupBox(Text(StatisticsTitles[table]), this);
    auto *column = new QVBoxLayout(box);
    auto *view = new LabelTable(box, "Solved games by level");
    column->addWidget(view);
    views[table] = view;
    auto *grid = new QGridLayout(view);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(ColumnGap);
    grid->setVerticalSpacing(0);
    AddHeadings(*grid, *view);
    for (std::size_t row = 0; row < StatisticsRowNames.size(); ++row) {
        AddRow(*grid, table, row);
    }
    return box;
}

void StatisticsScreen::AddHeadings(QGridLayout &grid, LabelTable &view)
{
    std::vector<QLabel *> headings;
    for (std::size_t column = 0; column < StatisticsColumns.size(); ++column) {
        if (!StatisticsColumns[column].Visible) {
            continue;
        }
        auto *heading = new QLabel(Text(StatisticsColumns[column].Heading), this);
        MakeBold(*heading);
        LeaveRoomForBlank(*heading, column);
        grid.addWidget(heading, 0, static_cast<int>(column), AlignmentOf(column));
        headings.push_back(heading);
    }
    view.AddRow(headings);
}

void StatisticsScreen::AddRow(QGridLayout &grid, std::size_t table, std::size_t row)
{
    std::vector<QLabel *> visible;
    for (std::size_t column = 0; column < StatisticsColumns.size(); ++column) {
        auto *label = new QLabel(this);
        label->setObjectName(LabelName(table, row, column));
        // The toolkit tells of each new text of a label that has no name, and the table does so
        // itself.
        label->setAccessibleName(views[table]->accessibleName());
        if (row == TotalRow) {
            MakeBold(*label);
        }
        grid.addWidget(label, static_cast<int>(row) + 1, static_cast<int>(column),
                       AlignmentOf(column));
        label->setVisible(StatisticsColumns[column].Visible);
        labels[table][row][column] = label;
        if (StatisticsColumns[column].Visible) {
            visible.push_back(label);
        }
    }
    views[table]->AddRow(visible);
    grid.setRowMinimumHeight(static_cast<int>(row) + 1, fontMetrics().height() + RowGap);
    if (row != TotalRow) {
        bars[table][row] = new TimeBar(this); // in the gap below the times
        grid.addWidget(bars[table][row], static_cast<int>(row) + 1, BestColumn, 1, 2,
                       Qt::AlignBottom);
    }
}

// The bars of a table are as long as the longest average in it asks for.
void StatisticsScreen::ShowBars(std::size_t table)
{
    const auto seconds = [&](std::size_t row, std::size_t column) {
        return SecondsOf(Text(StatisticsLabels[table][row][column]));
    };
    int longest = 0;
    for (std::size_t row = 0; row < TotalRow; ++row) {
        longest = std::max(longest, seconds(row, AverageColumn));
    }
    for (std::size_t row = 0; row < TotalRow; ++row) {
        bars[table][row]->ShowTimes(seconds(row, BestColumn), seconds(row, AverageColumn), longest);
    }
}

void StatisticsScreen::Refresh()
{
    for (std::size_t table = 0; table < labels.size(); ++table) {
        for (std::size_t row = 0; row < labels[table].size(); ++row) {
            for (std::size_t column = 0; column < labels[table][row].size(); ++column) {
                QLabel &label = *labels[table][row][column];
                label.setText(Text(StatisticsLabels[table][row][column]));
                LeaveRoomForBlank(label, column);
            }
        }
        ShowBars(table);
        views[table]->TellTexts();
    }
}

void StatisticsScreen::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        SetClipboardText(TablesAsText());
    } else if (hasFocus() && IsArrow(event->key())) {
        views[SessionTable]->setFocus(Qt::ShortcutFocusReason); // arrows are at home there
    } else {
        QDialog::keyPressEvent(event);
    }
}

void StatisticsScreen::reject()
{
    close();
}

void StatisticsScreen::closeEvent(QCloseEvent *event)
{
    KeepPlace(*this, StatisticsPlace);
    // At the program's end the main window goes first; what was open then stays noted.
    if (Window()->isVisible()) {
        StatisticsOpen = False;
    }
    event->accept();
}

void StatisticsScreen::moveEvent(QMoveEvent * /*event*/)
{
    KeepPlace(*this, StatisticsPlace);
}

void ShowStatisticsScreen()
{
    if (statisticsScreen == nullptr) {
        statisticsScreen = new StatisticsScreen(Window());
    }
    statisticsScreen->Refresh();
    if (!statisticsScreen->isVisible()) {
        statisticsScreen->FitBesideBoard();
        OpenAt(*statisticsScreen, {StatisticsPlace.Left, StatisticsPlace.Top, 0, 0});
    }
    BringToFront(*statisticsScreen);
}

void RefreshStatisticsScreen()
{
    if (statisticsScreen != nullptr) {
        statisticsScreen->Refresh();
    }
}

} // namespace kelvarine
