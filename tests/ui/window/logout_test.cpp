// A logout: the player is asked about his game before the program agrees, and the program goes when
// it is told to and not before.
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "support/widget_program.h"
#include "support/widget_session.h"
#include "ui/window/session.h"

#include <QTimer>
#include <gtest/gtest.h>

#include <csignal>
#include <string>
#include <utility>
#include <vector>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr const char *SaveFirst = "Would you like to save this game first?";
constexpr const char *StopSearching = "Would you like to stop searching?";

class Logout : public ::testing::Test {
protected:
    void SetUp() override
    {
        WatchForTheEnd();
        SessionTold = {};
        GameModified = True;
    }

    void TearDown() override
    {
        for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGXFSZ}) {
            std::signal(number, SIG_DFL);
        }
    }

    // The questions that a logout brings up, answered in turn.
    static Texts AskedAtLogout(std::vector<QMessageBox::StandardButton> answers)
    {
        return AnswerBoxes(AskToLogOut, std::move(answers)).Texts;
    }

    const Program program;
};

TEST_F(Logout, CancelCancelsItAndTheProgramStays)
{
    EXPECT_EQ(AskedAtLogout({QMessageBox::Cancel}), Texts{SaveFirst});
    EXPECT_EQ(SessionTold.Cancelled, 1);
    EXPECT_EQ(SessionTold.Released, 1);
    EXPECT_TRUE(program.Main->isVisible());
    EXPECT_EQ(AnswerBoxes(TellToGo, {QMessageBox::Cancel}).Texts, Texts{SaveFirst})
        << "no answer yet";
    EXPECT_TRUE(program.Main->isVisible());
}

TEST_F(Logout, NoAgreesAndTheEndAsksNothingMore)
{
    EXPECT_EQ(AskedAtLogout({QMessageBox::No}), Texts{SaveFirst});
    EXPECT_EQ(SessionTold.Cancelled, 0);
    EXPECT_EQ(SessionTold.Released, 1);
    EXPECT_TRUE(program.Main->isVisible()) << "until it is told to go";
    EXPECT_EQ(AnswerBoxes(TellToGo).Texts, Texts());
    EXPECT_FALSE(program.Main->isVisible());
}

TEST_F(Logout, CancelAfterANoTakesTheNoBack)
{
    AskedAtLogout({QMessageBox::No});
    AskedAtLogout({QMessageBox::Cancel});
    EXPECT_EQ(AnswerBoxes(TellToGo, {QMessageBox::Cancel}).Texts, Texts{SaveFirst});
    EXPECT_TRUE(program.Main->isVisible());
}

TEST_F(Logout, GameThatWasPlayedOnIsAskedAboutAgain)
{
    AskedAtLogout({QMessageBox::No});
    WordAt({4, 7}) = BitTable[5];
    EXPECT_EQ(AnswerBoxes(TellToGo, {QMessageBox::Cancel}).Texts, Texts{SaveFirst});
    EXPECT_TRUE(program.Main->isVisible());
}

TEST_F(Logout, ClosingByThePlayerAsksForItself)
{
    AskedAtLogout({QMessageBox::No});
    const BoxRecord boxes = AnswerBoxes([this] { program.Main->close(); }, {QMessageBox::Cancel});
    EXPECT_EQ(boxes.Texts, Texts{SaveFirst});
    EXPECT_TRUE(program.Main->isVisible());
}

TEST_F(Logout, WhereNobodyMayBeAskedNothingIsAsked)
{
    SessionTold.MayAsk = false;
    EXPECT_EQ(AskedAtLogout({}), Texts());
    EXPECT_EQ(SessionTold.Cancelled, 0);
    EXPECT_EQ(AnswerBoxes(TellToGo).Texts, Texts());
    EXPECT_FALSE(program.Main->isVisible());
}

TEST_F(Logout, WaitsForAQuestionThatStands)
{
    const BoxRecord boxes = AnswerBoxes(
        [this] {
            QTimer::singleShot(0, AskToLogOut);
            program.Main->close();
        },
        {QMessageBox::Cancel});
    EXPECT_EQ(boxes.Texts, Texts{SaveFirst}) << "and no second one over it";
    EXPECT_EQ(SessionTold.Cancelled, 1);
}

// ---- While the logic is at work ------------------------------------------------------------

class LogoutDuringARun : public Logout {
protected:
    void SetUp() override
    {
        Logout::SetUp();
        RunUnderWay = True;
        SearchActive = True;
        SearchKind = SearchingGame;
        StopRequested = False;
    }

    void TearDown() override
    {
        RunUnderWay = False;
        SearchActive = False;
        Logout::TearDown();
    }
};

TEST_F(LogoutDuringARun, NoLetsTheRunGoOnAndCancels)
{
    EXPECT_EQ(AskedAtLogout({QMessageBox::No}), Texts{StopSearching});
    EXPECT_EQ(SessionTold.Cancelled, 1);
    EXPECT_EQ(SessionTold.WantedSecondPhase, 0);
    EXPECT_EQ(SearchActive, True);
}

TEST_F(LogoutDuringARun, YesStopsItAndWantsToBeAskedAboutTheGameLast)
{
    EXPECT_EQ(AskedAtLogout({QMessageBox::Yes}), Texts{StopSearching});
    EXPECT_EQ(SessionTold.Cancelled, 0);
    EXPECT_EQ(SessionTold.WantedSecondPhase, 1);
    SessionTold.IsSecondPhase = true;
    SearchActive = True; // the rest of a rating, which has been asked about
    EXPECT_EQ(AskedAtLogout({}), Texts());
    EXPECT_EQ(SessionTold.WantedSecondPhase, 1) << "once only";
}

TEST_F(LogoutDuringARun, EndsWithTheProgramWhereNobodyMayBeAsked)
{
    SessionTold.MayAsk = false;
    EXPECT_EQ(AskedAtLogout({}), Texts());
    EXPECT_EQ(AnswerBoxes(TellToGo).Texts, Texts());
    EXPECT_FALSE(program.Main->isVisible());
    EXPECT_EQ(SearchActive, False);
}

} // namespace
} // namespace kelvarine::testing
