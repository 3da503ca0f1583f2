#include "commands/file_commands.h"
#include "commands/new_games.h"
#include "commands/recover.h"
#include "files/game_file.h"
#include "files/recovered_folder.h"
#include "files/recovery.h"
#include "game/assistance.h"
#include "game/clock.h"
#include "game/game_in_hand.h"
#include "game/lifecycle.h"
#include "game/solutions.h"
#include "game/undo.h"
#include "generator/game_number.h"
#include "grid/grid.h"
#include "grid/history.h"
#include "logic/driver.h"
#include "logic/technique_masks.h"
#include "outside/folders.h"
#include "outside/later_write.h"
#include "outside/system_calls.h"
#include "outside/whole_file.h"
#include "program/defaults.h"
#include "support/child_process.h"
#include "support/outside_double.h"
#include "support/play.h"
#include "support/positions.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <sys/time.h>

namespace kelvarine::testing {
namespace {

using Texts = std::vector<std::string>;

constexpr std::string_view Question =
    "The last game was not closed. Would you like to go on with it?";

class Recovery : public ::testing::Test {
protected:
    void SetUp() override
    {
        Restart();
        StartSavedGame(EasyGame);
    }

    // The tick, and the end of what it began to write.
    static void TickAndWrite()
    {
        RecoveryTick();
        while (IsWriting()) {
        }
    }

    static void Play()
    {
        WordAt({3, 1}) ^= BitTable[4];
        PushUndoState();
    }

    // Another program, which ends as if it were killed.
    static void Killed(const std::function<void()> &play)
    {
        ASSERT_EQ(RunInChild([&] {
                      play();
                      return ::raise(SIGKILL);
                  }),
                  -1);
    }

    // A program that starts on the same files.
    static void StartAnew()
    {
        SetDefaults();
        Seen = {};
    }

    static Texts Files()
    {
        Texts names;
        std::error_code missing;
        std::filesystem::directory_iterator entry(DataFolder(), missing);
        while (!missing && entry != std::filesystem::directory_iterator()) {
            names.push_back(entry->path().filename().string());
            entry.increment(missing);
        }
        std::ranges::sort(names);
        return names;
    }

    static Texts RecoveredGames()
    {
        Texts names;
        for (const auto &entry : std::filesystem::directory_iterator(RecoveredFolder())) {
            names.push_back(entry.path().filename().string());
        }
        std::ranges::sort(names);
        return names;
    }

    static std::string Contents(const std::string &path)
    {
        std::string bytes;
        std::string error;
        EXPECT_TRUE(ReadWholeFile(path, bytes, error)) << error;
        return bytes;
    }

    static std::string Kept()
    {
        return Contents(DataFolder() + "recovery-1.sdk");
    }
};

// ---- Writing -------------------------------------------------------------------------------

TEST_F(Recovery, ModifiedGameStandsInTheFileAfterATick)
{
    GameFilePath = "/home/anna/lat\xe4in.sdk";
    TickAndWrite();
    EXPECT_EQ(Files(), Texts{}) << "a saved game needs none";
    Play();
    TickAndWrite();
    EXPECT_EQ(Files(), (Texts{"recovery-1.lock", "recovery-1.sdk"}));
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR/home/anna/lat\xe4in.sdk");
}

TEST_F(Recovery, EveryKindOfChangeIsWritten)
{
    Play();
    Play();
    const std::vector<std::function<void()>> changes{Undo, Redo, mnuTakeSnapshot, [] {
                                                         WordAt({5, 5}) |= SelectedBit;
                                                     }};
    for (const auto &change : changes) {
        TickAndWrite();
        change();
        EXPECT_FALSE(Kept() == GameFileBytes() + "GR");
        TickAndWrite();
        EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    }
}

TEST_F(Recovery, NothingIsWrittenWithoutAChange)
{
    Play();
    TickAndWrite();
    SystemCalls calls;
    TickAndWrite();
    EXPECT_EQ(calls.Names(), Texts{});
}

TEST_F(Recovery, TimeAloneIsWrittenOverInItsPlace)
{
    Play();
    TickAndWrite();
    SystemCalls calls;
    ClockTick();
    TickAndWrite();
    EXPECT_EQ(calls.Names(), Texts{"close"}) << "no new file, no flush";
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    std::filesystem::remove(DataFolder() + "recovery-1.sdk");
    ClockTick();
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR") << "a file that has gone is written anew";
}

TEST_F(Recovery, SavedGameNeedsNoFile)
{
    Play();
    TickAndWrite();
    GameModified = False;
    TickAndWrite();
    EXPECT_EQ(Files(), Texts{"recovery-1.lock"});
    EndRecovery(true);
    EXPECT_EQ(Files(), Texts{});
}

TEST_F(Recovery, SaveLeavesNoOlderGameToBeOffered)
{
    const TemporaryFolder folder;
    GameFilePath = folder.Path("game.sdk");
    Play();
    RecoveryTick();
    mnuSave();
    EXPECT_EQ(Files(), Texts{"recovery-1.lock"});
    Play();
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR" + GameFilePath);
    GameFilePath = folder.Path("game.txt");
    mnuSave();
    EXPECT_EQ(Files(), (Texts{"recovery-1.lock", "recovery-1.sdk"})) << "a text keeps but a part";
}

TEST_F(Recovery, OrderlyEndLeavesNothingEvenInTheMiddleOfAWrite)
{
    Play();
    RecoveryTick();
    EndRecovery(true);
    EXPECT_EQ(Files(), Texts{});
}

TEST_F(Recovery, EndThatMayNotAskWritesAtOnce)
{
    EXPECT_TRUE(WriteRecovery());
    EXPECT_EQ(Files(), Texts{});
    Play();
    EXPECT_TRUE(WriteRecovery());
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
    GameModified = False;
    EXPECT_TRUE(WriteRecovery());
    EXPECT_EQ(Files(), Texts{"recovery-1.lock"});
}

TEST_F(Recovery, FailureIsToldOnceUntilItWorksAgain)
{
    const std::filesystem::path folder = std::filesystem::path(DataFolder()).parent_path();
    std::filesystem::create_directories(folder.parent_path());
    std::ofstream(folder) << "in the way";
    for (int round = 0; round < 3; ++round) {
        Play();
        TickAndWrite();
    }
    EXPECT_EQ(Seen.Messages, Texts{"Unable to keep a copy of this game.\r\rNot a directory"});
    EXPECT_FALSE(WriteRecovery());
    std::filesystem::remove(folder);
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR") << "tried again without a change";
}

TEST_F(Recovery, FailureOnTheDiskIsToldAtTheNextTickAndTriedAgain)
{
    Play();
    {
        SystemCalls calls;
        calls.FailAlways("fsync", EIO);
        TickAndWrite();
    }
    TickAndWrite();
    EXPECT_EQ(Seen.Messages, Texts{"Unable to keep a copy of this game.\r\rInput/output error"});
    TickAndWrite();
    EXPECT_TRUE(Kept() == GameFileBytes() + "GR");
}

// ---- While the board holds something else ----------------------------------------------------

TEST_F(Recovery, GameThatWasPutAsideIsTheOneThatIsKept)
{
    Play();
    const std::string game = GameFileBytes();
    const auto aside = std::make_unique<GameInHand>();
    Grid = {};
    PushUndoState();
    HistoryCount = 50;
    GameModified = False;
    TickAndWrite();
    EXPECT_TRUE(Kept() == game + "GR");
    BringBack(*aside);
}

TEST_F(Recovery, GameThatIsToBecomeAnotherKeepsItsNumberAndItsName)
{
    Play();
    GameNumber = 5;
    GameFilePath = "/home/anna/evening.sdk";
    StatsCounted = True;
    SolveSeconds = 754;
    const std::string game = GameFileBytes() + "GR" + GameFilePath;
    int looks = 0;
    Seen.TextAnswers = {"77"};
    Seen.OnYield = [&] {
        TickAndWrite();
        if (FileExists(DataFolder() + "recovery-1.sdk")) {
            ++looks;
            ASSERT_TRUE(Kept() == game);
        }
    };
    UserSelectedGame();
    EXPECT_GT(looks, 0);
    EXPECT_EQ(GameNumber, 77);
}

TEST_F(Recovery, GameWhoseSolutionsAreListedIsTheOneThatIsKept)
{
    WordAt({3, 1}) = BitTable[4];
    PushUndoState();
    const std::string game = GameFileBytes();
    int listed = 0;
    Seen.OnYield = [&] {
        listed += SearchKind == ListingSolutions ? 1 : 0;
        TickAndWrite();
    };
    ListSolutions();
    EXPECT_GT(listed, 0);
    EXPECT_TRUE(Kept() == game + "GR");
}

TEST_F(Recovery, WhatTheLogicTriesOnTheBoardIsNotWritten)
{
    Play();
    TickAndWrite();
    const std::string game = Kept();
    RunUnderWay = True;
    Grid = {};
    TickAndWrite();
    EXPECT_TRUE(Kept() == game);
    EXPECT_FALSE(WriteRecovery());
    EXPECT_TRUE(Kept() == game);
}

TEST_F(Recovery, GameToWhichLogicIsAppliedIsWrittenAsItWas)
{
    Play();
    const std::string game = GameFileBytes();
    SolveMask = MaskOf({XWing}) | TrialBit;
    Seen.OnYield = [&] {
        Grid = {};
        TickAndWrite();
        EXPECT_EQ(Kept().substr(0, game.size()), game);
        SearchActive = False;
    };
    mnuApplyLogic();
    EXPECT_GT(Seen.Yields, 0);
}

TEST_F(Recovery, FileBeforeAFailureGoesAtAnOrderlyEndToo)
{
    Play();
    TickAndWrite();
    const std::string folder = DataFolder();
    std::filesystem::rename(folder, folder.substr(0, folder.size() - 1) + ".away");
    std::ofstream(folder.substr(0, folder.size() - 1)) << "no folder";
    Play();
    EXPECT_FALSE(WriteRecovery());
    std::filesystem::remove(folder.substr(0, folder.size() - 1));
    std::filesystem::rename(folder.substr(0, folder.size() - 1) + ".away", folder);
    EndRecovery(true);
    EXPECT_FALSE(FileExists(folder + "recovery-1.sdk"));
}

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
    EXPECT_EQ(Files(), (Texts{"recovery-1.lock", "recovery-1.sdk"}));
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
    ASSERT_EQ(::utimes((DataFolder() + "recovery-1.sdk").c_str(), times.data()), 0);
    StartAnew();
    OfferLostGames();
    EXPECT_EQ(Files(), Texts{"recovered"});
    EXPECT_EQ(RecoveredGames(), Texts{"2026-11-22 10.00.00.sdk"});
    EXPECT_TRUE(Contents(RecoveredFolder() + "2026-11-22 10.00.00.sdk") == game);
    EXPECT_TRUE(ReadGameFile(RecoveredFolder() + "2026-11-22 10.00.00.sdk"));
    OfferLostGames();
    EXPECT_EQ(Seen.Questions.size(), 1U) << "it is not offered again";
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
    EXPECT_EQ(Files(),
              (Texts{"recovery-1.lock", "recovery-1.sdk", "recovery-2.lock", "recovery-2.sdk"}));
    EXPECT_TRUE(Kept() == others);
    ::kill(other, SIGKILL);
    ::waitpid(other, &status, 0);
    OfferLostGames();
    EXPECT_EQ(Seen.Questions.size(), 1U) << "for the other has gone";
    EXPECT_EQ(Files(), (Texts{"recovered", "recovery-2.lock", "recovery-2.sdk"}));
}

} // namespace
} // namespace kelvarine::testing
