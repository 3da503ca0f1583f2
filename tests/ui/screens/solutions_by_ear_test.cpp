#include "game/screens.h"
#include "game/solutions.h"
#include "grid/grid.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/widget_listener.h"
#include "support/widget_program.h"

#include <QAccessible>
#include <QApplication>
#include <QPlainTextEdit>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {
namespace {

// Two solutions.
constexpr std::string_view TwoSolutions = R"(
    534..8912
    672195348
    198342567
    859..1423
    426853791
    713924856
    961537284
    287419635
    345286179
)";

// The list of solutions, as those read it who do not see it.
class SolutionsByEar : public ::testing::Test {
protected:
    void List(std::int32_t format)
    {
        SolutionsFormat = format;
        SetGame(TwoSolutions);
        mnuShowSolution();
        Box = program.Main->findChild<QPlainTextEdit *>("txtSolutions");
        ASSERT_NE(Box, nullptr);
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == Box->window(); },
                                    Patience));
        ASSERT_TRUE(Box->hasFocus());
    }

    [[nodiscard]] QAccessibleTextInterface *Lines() const
    {
        return QAccessible::queryAccessibleInterface(Box)->textInterface();
    }

    // What a screen reader says after a step: the line in which the cursor is.
    [[nodiscard]] std::string LineOfCursor() const
    {
        int start = 0;
        int end = 0;
        return Lines()
            ->textAtOffset(Lines()->cursorPosition(), QAccessible::LineBoundary, &start, &end)
            .trimmed()
            .toStdString();
    }

    Program program;
    QPlainTextEdit *Box = nullptr;
};

TEST_F(SolutionsByEar, EachLineIsASolutionOf81Digits)
{
    List(0);
    ASSERT_NE(Lines(), nullptr);
    const QStringList lines = Box->toPlainText().trimmed().split('\n');
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(LineOfCursor(), lines[0].toStdString()) << "the reading begins at the top";
    QTest::keyClick(Box, Qt::Key_Down);
    EXPECT_EQ(LineOfCursor(), lines[1].toStdString());
    QTest::keyClick(Box, Qt::Key_Up);
    EXPECT_EQ(LineOfCursor(), lines[0].toStdString());
}

TEST_F(SolutionsByEar, FramesAreReadRowByRow)
{
    List(1);
    const QStringList lines = Box->toPlainText().split('\n');
    ASSERT_GT(lines.size(), 26);
    EXPECT_EQ(lines[1].toStdString().substr(0, 2), "| ");
    for (const QString &line : lines.first(26)) {
        EXPECT_EQ(LineOfCursor(), line.trimmed().toStdString());
        QTest::keyClick(Box, Qt::Key_Down);
    }
}

TEST_F(SolutionsByEar, EndOfTheListingIsToldWithTheCount)
{
    Listener listener;
    SetGame(TwoSolutions);
    listener.Heard();
    mnuShowSolution();
    const std::vector<std::string> heard = listener.Heard();
    EXPECT_EQ(std::ranges::count(heard, "ObjectShow 2 solutions"), 1)
        << ::testing::PrintToString(heard);
}

} // namespace
} // namespace kelvarine::testing
