// What the pages of the help let a reader try, done as they say, in the program's own window.
#include "game/alert_scan.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "input/toolbar.h"
#include "logic/technique_table.h"
#include "outside/help.h"
#include "support/positions.h"
#include "support/widget_events.h"
#include "support/widget_program.h"
#include "ui/screens/help_window.h"
#include "ui/window/board_widget.h"

#include <QPushButton>
#include <QRegularExpression>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

namespace {

struct HelpStory : ::testing::Test {
    HelpStory() = default;
    HelpStory(const HelpStory &) = delete;
    HelpStory &operator=(const HelpStory &) = delete;
    ~HelpStory() override
    {
        delete OpenHelpWindow();
    }

    // Opens a page, presses the link that copies a game, the first being 0, and pastes the game.
    void CopyAndPaste(const QString &page, int which)
    {
        ShowHelpTopic(0);
        HelpBrowser *browser = OpenHelpWindow()->Browser;
        browser->setSource(browser->source().resolved(QUrl(page)));
        auto links = QRegularExpression(QStringLiteral("href=\"(copy:[^\"]*)\""))
                         .globalMatch(browser->document()->toHtml());
        QString link;
        for (int k = 0; k <= which && links.hasNext(); ++k) {
            link = links.next().captured(1);
        }
        ASSERT_FALSE(link.isEmpty());
        emit browser->anchorClicked(QUrl(link));
        // A game in hand is asked about first.
        using Answers = std::vector<QMessageBox::StandardButton>;
        Press(Qt::Key_V, Qt::ControlModifier,
              GameModified != False ? Answers{QMessageBox::No} : Answers{});
    }

    // A key on the board, and what the boxes say that come up, answered with these buttons.
    std::vector<std::string> Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {},
                                   const std::vector<QMessageBox::StandardButton> &answers = {})
    {
        const auto press = [&] {
            QTest::keyClick(Game.Main->Client->Board, key, modifiers);
        };
        return AnswerBoxes(press, answers).Texts;
    }

    void Select(int column, int row)
    {
        Click(Game.Main->Client->Board, CentreOf(column, row));
    }

    // Selects the empty cells by the toolbar and gives them all pencilmarks.
    void FillEmptyCells()
    {
        ToolButtonWidget *select = ToolButtonOf(*Game.Main, SelectButton);
        for (int press = 0; press < 4 && select->Caption() != QStringLiteral("Select # of digits");
             ++press) {
            Click(select, select->rect().center());
        }
        EXPECT_EQ(select->Caption().toStdString(), "Select # of digits");
        ToolButtonWidget *all = ToolButtonOf(*Game.Main, AllButton);
        EXPECT_EQ(all->Caption().toStdString(), "0");
        Click(all, all->rect().center());
        Press(Qt::Key_0);
    }

    // Takes the whole hint and expects its stages, 1..3, on the page on view, from one of them on.
    void ExpectHintOnView(std::size_t firstStage = 1);

    Program Game;
};

std::string NumberIn(int column, int row)
{
    return NumbersOf(Grid).substr(static_cast<std::size_t>((row - 1) * 9 + column - 1), 1);
}

const std::vector<QMessageBox::StandardButton> WholeHint{QMessageBox::Yes, QMessageBox::Yes,
                                                         QMessageBox::Ok};
// A page as its reader sees it, with single blanks.
QString WordsOnView()
{
    return OpenHelpWindow()->Browser->toPlainText().simplified();
}

// What a box of a hint says before its question.
QString Statement(const std::string &box)
{
    return QString::fromStdString(box.substr(0, box.find("\n\n"))).simplified();
}

// The techniques that the page on view wants ticked in a column of the Logic tab.
std::uint32_t TicksOnView(const QString &column)
{
    const QString words =
        QRegularExpression(QStringLiteral("tick ([^.:]*?) in the column ") + column)
            .match(WordsOnView())
            .captured(1);
    std::uint32_t mask = 0;
    for (const QString &caption : words.split(QStringLiteral(", "))) {
        const auto row =
            std::find_if(Techniques.begin(), Techniques.end(), [&](const TechniqueRow &one) {
                return QString::fromStdString(std::string(one.Caption)).trimmed() == caption;
            });
        EXPECT_NE(row, Techniques.end()) << caption.toStdString();
        mask |= row != Techniques.end() ? BitOf(row->Number) : 0;
    }
    return mask;
}

void HelpStory::ExpectHintOnView(std::size_t firstStage)
{
    const std::vector<std::string> hint = Press(Qt::Key_H, {}, WholeHint);
    ASSERT_EQ(hint.size(), 3U);
    for (std::size_t stage = firstStage; stage <= hint.size(); ++stage) {
        EXPECT_TRUE(WordsOnView().contains(Statement(hint[stage - 1]))) << hint[stage - 1];
    }
}

const QString WrongTurns = QStringLiteral("wrong-turns.html");

} // namespace

TEST_F(HelpStory, WrongNumberIsBelievedUntilTheCellIsExposed)
{
    CopyAndPaste(WrongTurns, 0);
    EXPECT_EQ(GameRating, 1);
    Select(5, 5);
    Press(Qt::Key_3);
    ASSERT_EQ(NumberIn(5, 5), "3");
    AlertMask = ~std::uint32_t{0};
    ScanAlerts(1);
    EXPECT_EQ(CellsWith(AlertBit).find("E5"), std::string::npos) << "it clashes with nothing";
    AlertMask = 0;
    ScanAlerts(1);
    const std::vector<std::string> hint = Press(Qt::Key_H, {}, WholeHint);
    ASSERT_EQ(hint.size(), 3U);
    EXPECT_EQ(hint[0].find("no hints"), std::string::npos);
    Select(5, 5);
    EXPECT_EQ(Press(Qt::Key_X, Qt::ControlModifier, {QMessageBox::Yes}),
              std::vector<std::string>{"Are you sure you want to expose this cell?"});
    EXPECT_EQ(NumberIn(5, 5), "8");
    Press(Qt::Key_PageUp);
    EXPECT_EQ(NumberIn(5, 5), "3");
    EXPECT_EQ(GameRating, 1) << "the margin speaks of the givens";
}

TEST_F(HelpStory, AlertsOfNakedSinglesRingTheSameNumberTwiceInAHouse)
{
    CopyAndPaste(WrongTurns, 0);
    AlertMask = BitOf(1);
    Select(2, 1);
    Press(Qt::Key_6); // beside the given 6 in A1
    EXPECT_NE(CellsWith(AlertBit).find("B1"), std::string::npos);
    const std::vector<std::string> reason = Press(Qt::Key_A, {}, {QMessageBox::Ok});
    ASSERT_EQ(reason.size(), 1U);
    EXPECT_NE(reason[0].find("[B1]"), std::string::npos) << reason[0];
    Press(Qt::Key_PageUp);
    EXPECT_EQ(CellsWith(AlertBit).find("B1"), std::string::npos);
}

TEST_F(HelpStory, ClashingGivensAreToldByTheMarginAndByTheHint)
{
    CopyAndPaste(WrongTurns, 1);
    EXPECT_EQ(GameRating, 7);
    const std::vector<std::string> hint = Press(Qt::Key_H, {}, WholeHint);
    ASSERT_EQ(hint.size(), 3U);
    EXPECT_EQ(hint[0], "There's a conflict with given cells.\n\nWould you like to know more?");
    EXPECT_EQ(hint[2], "Cell [B3] is a given cell which conflicts directly with the given cell "
                       "[A1] in the same box.");
}

TEST_F(HelpStory, GameOfTwoSolutionsListsBothAndKnowsNoCellThatDiffers)
{
    CopyAndPaste(WrongTurns, 2);
    EXPECT_EQ(GameRating, 6);
    Select(6, 2);
    EXPECT_EQ(Press(Qt::Key_X, Qt::ControlModifier, {QMessageBox::Ok}),
              std::vector<std::string>{"This cell is unknown."});
    mnuShowSolution();
    EXPECT_EQ(SolutionCount, 2);
}

TEST_F(HelpStory, LessonsOfSinglesTellTheHintThatTheGameGives)
{
    for (const char *lesson :
         {"lesson-houses.html", "lesson-last-number.html", "lesson-last-place.html"}) {
        CopyAndPaste(QString::fromLatin1(lesson), 0);
        EXPECT_EQ(GameRating, 1) << lesson;
        const std::vector<std::string> hint = Press(Qt::Key_H, {}, WholeHint);
        ASSERT_EQ(hint.size(), 3U) << lesson;
        for (const std::string &box : hint) {
            EXPECT_TRUE(WordsOnView().contains(Statement(box))) << lesson << ": " << box;
        }
    }
}

TEST_F(HelpStory, LessonOnPencilmarksLeadsFromNoHintToTheHintItTells)
{
    CopyAndPaste(QStringLiteral("lesson-pencilmarks.html"), 0);
    EXPECT_EQ(Press(Qt::Key_H, {}, {QMessageBox::Ok}),
              std::vector<std::string>{"There are no hints available now."});
    FillEmptyCells();
    EXPECT_EQ(CountCandidates(2, 2), 1) << "the numbers that stand are left alone";
    EXPECT_EQ(CountCandidates(3, 1), 9);
    SolveMask = BitOf(1); // as the tick at Naked singles sets it
    Press(Qt::Key_L, Qt::ControlModifier);
    ExpectHintOnView();
}

TEST_F(HelpStory, LessonsOfPatternsComeToTheHintThatTheyTell)
{
    for (const char *lesson : {"lesson-groups.html", "lesson-intersections.html",
                               "lesson-fish.html", "lesson-wings.html", "lesson-chains.html"}) {
        SCOPED_TRACE(lesson);
        CopyAndPaste(QString::fromLatin1(lesson), 0);
        FillEmptyCells();
        SolveMask = TicksOnView(QStringLiteral("Solve"));
        Press(Qt::Key_L, Qt::ControlModifier);
        ExpectHintOnView();
    }
}

TEST_F(HelpStory, LessonOnAlertsRingsTheCellAndTellsWhy)
{
    CopyAndPaste(QStringLiteral("lesson-alerts.html"), 0);
    FillEmptyCells();
    SolveMask = TicksOnView(QStringLiteral("Solve"));
    Press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(CellsWith(AlertBit), "");
    AlertMask = TicksOnView(QStringLiteral("Alert"));
    ScanAlerts(1);
    const QString name = QRegularExpression(QStringLiteral("ring comes around ([A-J])([1-9])"))
                             .match(WordsOnView())
                             .captured(0)
                             .last(2);
    const int column = static_cast<int>(QStringLiteral("ABCDEFGHJ").indexOf(name[0])) + 1;
    const int row = name[1].digitValue();
    EXPECT_NE(CellsWith(AlertBit).find(name.toStdString()), std::string::npos);
    Select(column, row);
    const std::vector<std::string> reason = Press(Qt::Key_A, {}, {QMessageBox::Ok});
    ASSERT_EQ(reason.size(), 1U);
    EXPECT_TRUE(WordsOnView().contains(Statement(reason[0]))) << reason[0];
}

TEST_F(HelpStory, HardGameOfTheLastLessonIsSolvedByItsHints)
{
    CopyAndPaste(QStringLiteral("lesson-hard-game.html"), 0);
    EXPECT_GE(GameRating, RatedHard);
    FillEmptyCells();
    SolveMask = TicksOnView(QStringLiteral("Solve"));
    Press(Qt::Key_L, Qt::ControlModifier);
    auto steps = QRegularExpression(QStringLiteral("Strike out (.*?), and press Ctrl"))
                     .globalMatch(WordsOnView());
    while (steps.hasNext()) {
        ExpectHintOnView(3);
        auto marks = QRegularExpression(QStringLiteral("the ([1-9]) in ([A-J])([1-9])"))
                         .globalMatch(steps.next().captured(1));
        while (marks.hasNext()) {
            const QRegularExpressionMatch mark = marks.next();
            const auto column = QStringLiteral("ABCDEFGHJ").indexOf(mark.captured(2)) + 1;
            Select(static_cast<int>(column), mark.captured(3).toInt());
            Press(static_cast<Qt::Key>(Qt::Key_0 + mark.captured(1).toInt()), Qt::ShiftModifier);
        }
        ASSERT_EQ(IsGridSolved(), False);
        Press(Qt::Key_L, Qt::ControlModifier);
    }
    EXPECT_NE(IsGridSolved(), False);
}

} // namespace kelvarine::testing
