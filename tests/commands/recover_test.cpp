#include "commands/recover.h"
#include "files/game_file.h"
#include "files/recovered_folder.h"
#include "files/recovery.h"
#include "files/recovery_fixture.h"
#include "game/clock.h"
#include "game/lifecycle.h"
#include "game/undo.h"
#include "grid/history.h"
#include "outside/folders.h"
#include "outside/whole_file.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelvarine::testing {
namespace {

constexpr std::string_view Question =
    "The last game was not closed. Would you like to go on with it?";

// ---- The next start --------------------------------------------------------------------------

TEST_F(Recovery, YesBringsTheGameBackModifiedWithHistoryAndName)
{
    std::string game;
    mnuTakeSnapshot();
    Play();
    Play();
    Undo();
    SolveSeconds = 754;
    GameFilePath = "/home/anna/Evening.sdk";
    game = GameFileBytes();
    Killed([] { TickAndWrite(); });
    StartAnew();
    Seen.YesNoAnswers = {true};
    OfferLostGames();
    EXPECT_EQ(Seen.Questions, Texts{std::string(Question)});
    EXPECT_TRUE(GameFileBytes() == game);
    EXPECT_EQ(GameModified, True);
    EXPECT_EQ(GameFilePath, "/home/anna/Evening.sdk");
    EXPECT_EQ(Seen.WindowTitle, "Kelvarine (evening.sdk)");
    EXPECT_EQ(SolveSeconds, 754);
    Redo();
    EXPECT_EQ(HistoryPosition, 1);
}

TEST_F(Recovery, GameThatCameBackStaysSafeAndGoesWithAnOrderlyEnd)
{
    Killed([] {
        Play();
        TickAndWrite();
    });
    StartAnew();
    Seen.YesNoAnswers = {true};
    OfferLostGames();
    EXPECT_EQ(Files(), FilesOf(1));
    Play();
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    EndRecovery(true);
    EXPECT_EQ(Files(), Texts{});
}

TEST_F(Recovery, ThatItsFileWasATextIsKnownAgain)
{
    Killed([] {
        Play();
        GameFilePath = "/home/anna/picture.png";
        FileWasText = True;
        TickAndWrite();
    });
    StartAnew();
    Seen.YesNoAnswers = {true};
    OfferLostGames();
    EXPECT_EQ(FileWasText, True);
}

TEST_F(Recovery, PausedGameComesBackPaused)
{
    Killed([] {
        Play();
        mnuPauseTime();
        TickAndWrite();
    });
    StartAnew();
    ResetSolveTime(); // as the game of the start does
    Seen.YesNoAnswers = {true};
    OfferLostGames();
    EXPECT_TRUE(IsPaused());
    EXPECT_FALSE(Seen.ClockTimerOn);
}

TEST_F(Recovery, ClockShowsTheTimeOfTheGameThatCameBack)
{
    const auto comeBack = [](const std::function<void()> &play) {
        Killed([&] {
            Play();
            play();
            SolveSeconds = 754;
            TickAndWrite();
        });
        StartAnew();
        ResetSolveTime();
        Seen.YesNoAnswers = {true};
        OfferLostGames();
        EndRecovery(true);
    };
    comeBack([] {});
    EXPECT_EQ(TimeCaption, "12:34 ");
    comeBack(mnuPauseTime);
    EXPECT_EQ(TimeCaption, "Paused at 12:34 ");
    mnuPauseTime();
    EXPECT_EQ(TimeCaption, "Paused at 12:34 ") << "until the next second";
    comeBack([] {
        SetGame(EasySolution);
        StatsCounted = True;
    });
    EXPECT_EQ(TimeCaption, "Solved at 12:34 ");
}

TEST_F(Recovery, NoKeepsTheGameUnderItsDate)
{
    ::setenv("TZ", "UTC", 1);
    Killed([] {
        Play();
        TickAndWrite();
    });
    const std::string game = Kept();
    const std::array<timeval, 2> times{{{1795341600, 0}, {1795341600, 0}}};
    for (const char *name : {"recovery-1.sdk", "recovery-1.fresh"}) {
        ASSERT_EQ(::utimes((DataFolder() + name).c_str(), times.data()), 0);
    }
    StartAnew();
    OfferLostGames();
    EXPECT_EQ(Files(), Texts{"recovered"});
    EXPECT_EQ(RecoveredGames(), Texts{"2026-11-22 10.00.00.sdk"});
    EXPECT_TRUE(Contents(RecoveredFolder() + "2026-11-22 10.00.00.sdk") == game);
    EXPECT_TRUE(ReadGameFile(RecoveredFolder() + "2026-11-22 10.00.00.sdk"));
    OfferLostGames();
    EXPECT_EQ(Seen.Questions.size(), 1U) << "it is not offered again";
}

TEST_F(Recovery, GameThatCannotBeReadIsToldAndKeptAllTheSame)
{
    std::string error;
    ASSERT_TRUE(ReplaceWholeFile(DataFolder() + "recovery-1.sdk", "no game", error)) << error;
    Seen.YesNoAnswers = {true};
    OfferLostGames();
    EXPECT_EQ(Seen.Messages, Texts{"Unable to go on with this game.\r\r"
                                   "Its file is kept in the folder of recovered games."});
    ASSERT_EQ(RecoveredGames().size(), 1U);
    EXPECT_EQ(Contents(RecoveredFolder() + RecoveredGames()[0]), "no game");
}

TEST_F(Recovery, QuestionThatGoesWithTheProgramDecidesNothing)
{
    Killed([] {
        Play();
        TickAndWrite();
    });
    const std::string game = Kept();
    StartAnew();
    Seen.OnBox = [] {
        EndRecovery(true);
    };
    OfferLostGames();
    EXPECT_EQ(Seen.Questions.size(), 1U);
    EXPECT_TRUE(Kept() == game);
    EXPECT_FALSE(std::filesystem::exists(RecoveredFolder()));
    EXPECT_TRUE(WriteRecovery()) << "and nothing is written after the end";
    EXPECT_TRUE(Kept() == game);
}

TEST_F(Recovery, NewestTenAreKeptAndOtherFilesStay)
{
    for (int game = 10; game < 24; ++game) {
        const std::string path = DataFolder() + "recovery-" + std::to_string(game) + ".sdk";
        std::string error;
        ASSERT_TRUE(ReplaceWholeFile(path, GameFileBytes() + "GR", error));
        const std::array<timeval, 2> times{
            {{time_t{100'000} * game, 0}, {time_t{100'000} * game, 0}}};
        ASSERT_EQ(::utimes(path.c_str(), times.data()), 0);
    }
    std::string error;
    ASSERT_TRUE(ReplaceWholeFile(RecoveredFolder() + "0000 mine.sdk", "mine", error));
    OfferLostGames();
    EXPECT_EQ(Seen.Questions.size(), 14U);
    EXPECT_EQ(RecoveredGames().size(), 11U);
    EXPECT_EQ(RecoveredGames()[0], "0000 mine.sdk");
    EXPECT_EQ(RecoveredGames()[1].substr(0, 10), "1970-01-17");
}

TEST_F(Recovery, TwoOfTheSameSecondAreBothKept)
{
    for (const char *number : {"1", "2"}) {
        const std::string path = DataFolder() + "recovery-" + number + ".sdk";
        std::string error;
        ASSERT_TRUE(ReplaceWholeFile(path, GameFileBytes() + "GR", error));
        const std::array<timeval, 2> times{{{5, 0}, {5, 0}}};
        ASSERT_EQ(::utimes(path.c_str(), times.data()), 0);
    }
    OfferLostGames();
    EXPECT_EQ(RecoveredGames().size(), 2U);
}

TEST_F(Recovery, NewestOfSeveralIsOfferedFirst)
{
    for (const double seconds : {1.0, 2.0, 3.0}) {
        SolveSeconds = seconds;
        const std::string path =
            DataFolder() + "recovery-" +
            std::to_string(seconds == 2.0 ? 3 : static_cast<int>(seconds) + 3) + ".sdk";
        std::string error;
        ASSERT_TRUE(ReplaceWholeFile(path, GameFileBytes() + "GR", error));
        const auto when = static_cast<time_t>(seconds == 2.0 ? 9 : 5);
        const std::array<timeval, 2> times{{{when, 0}, {when, 0}}};
        ASSERT_EQ(::utimes(path.c_str(), times.data()), 0);
    }
    Seen.YesNoAnswers = {true};
    OfferLostGames();
    EXPECT_EQ(SolveSeconds, 2);
    EXPECT_EQ(Seen.Questions.size(), 1U);
    EXPECT_EQ(Files().size(), 4U) << "the others are offered at the next start";
}

TEST_F(Recovery, FileWithoutAGameIsPutAsideWithoutAQuestionThatLeadsNowhere)
{
    std::string error;
    ASSERT_TRUE(ReplaceWholeFile(DataFolder() + "recovery-1.sdk", "no game", error));
    Seen.YesNoAnswers = {true};
    OfferLostGames();
    EXPECT_EQ(Files(), Texts{"recovered"});
    EXPECT_EQ(GameModified, False);
}

// ---- Several programs at once ----------------------------------------------------------------

TEST_F(Recovery, EachProgramHasAFileOfItsOwnAndOffersNoneInUse)
{
    const pid_t other = ::fork();
    if (other == 0) {
        Play();
        TickAndWrite();
        ::raise(SIGSTOP);
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(other, &status, WUNTRACED);
    ASSERT_TRUE(WIFSTOPPED(status));
    const std::string others = Kept();
    OfferLostGames();
    EXPECT_EQ(Seen.Questions, Texts{});
    Play();
    Play();
    TickAndWrite();
    Texts files = FilesOf(1);
    std::ranges::copy(FilesOf(2), std::back_inserter(files));
    EXPECT_EQ(Files(), files);
    EXPECT_TRUE(Kept() == others);
    ::kill(other, SIGKILL);
    ::waitpid(other, &status, 0);
    OfferLostGames();
    EXPECT_EQ(Seen.Questions.size(), 1U) << "for the other has gone";
    files = FilesOf(2);
    files.insert(files.begin(), "recovered");
    EXPECT_EQ(Files(), files);
}

} // namespace
} // namespace kelvarine::testing
