// The count of solved games on the disk: its bytes, what may be wrong with them and with the disk,
// and programs that count at once.
#include "game/statistics_fixture.h"
#include "outside/file_lock.h"
#include "outside/folders.h"
#include "support/child_process.h"

#include <filesystem>
#include <fstream>
#include <random>

namespace kelvarine::testing {
namespace {

TEST_F(Statistics, FileIsEightyBytesOfLittleEndianWords)
{
    std::string expected(80, '\0');
    expected[4] = 1;                 // easy, solved
    expected[8] = expected[12] = 95; // best and average
    expected[68] = 1;                // extreme, solved
    expected[72] = expected[76] = 0x34;
    expected[73] = expected[77] = 0x12;
    Solve(1, 95);
    Solve(5, 0x1234);
    EXPECT_EQ(FileBytes(), expected);
    EXPECT_TRUE(std::filesystem::path(StatisticsFilePath()).filename() == "stats.sdu");
}

TEST_F(Statistics, WordsComeBackFromTheirBytes)
{
    std::mt19937 random(7);
    for (int round = 0; round < 100; ++round) {
        StatisticsRecord record;
        for (LevelRecord &level : record) {
            level = {static_cast<std::int32_t>(random()), static_cast<std::int32_t>(random()),
                     static_cast<std::int32_t>(random()), static_cast<std::int32_t>(random())};
        }
        const std::string bytes = StatisticsBytes(record);
        EXPECT_EQ(bytes.size(), StatisticsFileSize);
        EXPECT_EQ(StatisticsFrom(bytes), record);
        EXPECT_EQ(StatisticsFrom(bytes + "more"), record);
    }
}

TEST_F(Statistics, ShortFileReadsAsZerosForWhatIsMissing)
{
    PutFile(std::string("\0\0\0\0\5\0\0\0\7", 9));
    EXPECT_EQ(InFile(), (StatisticsRecord{{{0, 5, 7, 0}}}));
    Solve(2, 30);
    EXPECT_EQ(InFile(), (StatisticsRecord{{{0, 5, 7, 0}, {0, 1, 30, 30}}}));
    EXPECT_EQ(FileBytes().size(), 80U);
    EXPECT_EQ(StatisticsFrom(""), StatisticsRecord{});
}

TEST_F(Statistics, AbsurdWordsAndTimesAreHarmless)
{
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    for (const std::int32_t word : {Most, Least, -1, Least + 1, Most - 1}) {
        for (const double seconds : {0.0, -5.0, 1e300, -1e300, nothing, endless, -endless}) {
            StatisticsRecord record;
            record.fill({word, word, word, word});
            PutFile(StatisticsBytes(record));
            Solve(3, seconds);
            mnuStatistics();
            EXPECT_EQ(FileBytes().size(), 80U);
            EXPECT_EQ(InFile()[2].Solved, word == Most ? Most : word + 1);
            EXPECT_EQ(InFile()[0], record[0]);
        }
    }
}

TEST_F(Statistics, CountThatComesUpToZeroHasNoAverage)
{
    PutFile(StatisticsBytes({{{0, -1, 30, 40}}}));
    Solve(1, 20);
    EXPECT_EQ(InFile()[0], (LevelRecord{0, 0, 20, 40}));
}

TEST_F(Statistics, FailingWriteIsToldOnceAndTheSessionCounts)
{
    // A file where the folder should stand.
    const std::filesystem::path folder = std::filesystem::path(StatisticsFilePath()).parent_path();
    std::filesystem::create_directories(folder.parent_path());
    std::ofstream(folder) << "in the way";
    Solve(1, 60);
    EXPECT_EQ(Seen.Messages, Texts{"Unable to save statistics.\r\rNot a directory"});
    Solve(1, 40);
    EXPECT_EQ(Seen.Messages.size(), 1U);
    EXPECT_EQ(SessionStats[0], (LevelRecord{0, 2, 40, 50}));
    EXPECT_EQ(StatsCounted, True);
    std::filesystem::remove(folder);
    Solve(1, 50);
    EXPECT_EQ(InFile()[0].Solved, 1) << "goes on as soon as it can";
}

TEST_F(Statistics, FolderInThePlaceOfTheFileIsTold)
{
    std::filesystem::create_directories(StatisticsFilePath());
    Solve(1, 60);
    Solve(1, 60);
    EXPECT_EQ(Seen.Messages, Texts{"Unable to save statistics.\r\rIs a directory"});
    EXPECT_TRUE(std::filesystem::is_directory(StatisticsFilePath()));
    EXPECT_EQ(SessionStats[0].Solved, 2);
}

// A file that may be written and not read, for a user without rights of any kind.
TEST_F(Statistics, FileThatCannotBeReadIsNotWrittenOver)
{
    const std::string bytes = StatisticsBytes({{{0, 7, 30, 40}}});
    PutFile(bytes);
    const std::filesystem::path folder = std::filesystem::path(StatisticsFilePath()).parent_path();
    std::filesystem::permissions(StatisticsFilePath(), std::filesystem::perms(0222));
    for (std::filesystem::path above = folder; above != std::filesystem::temp_directory_path();
         above = above.parent_path()) {
        std::filesystem::permissions(above, std::filesystem::perms::all);
    }
    const int result = RunInChild([] {
        constexpr int nobody = 65534;
        if (::getuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0)) {
            return 1;
        }
        Solve(1, 60);
        EXPECT_EQ(Seen.Messages, Texts{"Unable to save statistics.\r\rPermission denied"});
        return HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(result, 0);
    std::filesystem::permissions(StatisticsFilePath(), std::filesystem::perms(0644));
    EXPECT_EQ(FileBytes(), bytes);
}

TEST_F(Statistics, FailureAfterASuccessIsToldAgain)
{
    const std::filesystem::path folder = std::filesystem::path(StatisticsFilePath()).parent_path();
    std::filesystem::create_directories(folder.parent_path());
    for (int round = 0; round < 2; ++round) {
        std::filesystem::remove_all(folder);
        std::ofstream(folder) << "in the way";
        Solve(1, 60);
        std::filesystem::remove(folder);
        Solve(1, 60);
    }
    EXPECT_EQ(Seen.Messages.size(), 2U);
}

// ---- Two programs ----------------------------------------------------------------------------

TEST_F(Statistics, LockThatAnotherProgramHoldsIsWaitedForAndThenTold)
{
    Solve(1, 60);
    const FileLock other(DataFolder() + "stats.lock");
    ASSERT_EQ(other.State(), LockState::Held);
    Solve(1, 60);
    EXPECT_EQ(Seen.Messages, Texts{"Unable to save statistics.\r\rAnother program is using them."});
    EXPECT_EQ(InFile()[0].Solved, 1);
    Seen.Messages.clear();
    Seen.YesNoAnswers = {true};
    cmdClearStats();
    EXPECT_EQ(Seen.Messages, Texts{"Another program is using them."});
    EXPECT_EQ(InFile()[0].Solved, 1);
}

TEST_F(Statistics, WhileAFailureIsReadOthersMayCount)
{
    Solve(1, 60);
    const std::filesystem::path file = StatisticsFilePath();
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    LockState meanwhile = LockState::Failed;
    Seen.OnBox = [&] {
        meanwhile = FileLock(DataFolder() + "stats.lock").State();
    };
    Solve(1, 60);
    EXPECT_EQ(Seen.Messages, Texts{"Unable to save statistics.\r\rIs a directory"});
    EXPECT_EQ(meanwhile, LockState::Held);
}

TEST_F(Statistics, TwoProgramsWithFiveHundredWinsEachCountAThousand)
{
    StatisticsPatience = 600'000; // a disk may be busy for longer than a player waits
    const auto play = [] {
        for (int win = 0; win < 500; ++win) {
            Solve(1, 60);
        }
        return Seen.Messages.empty() ? 0 : 1;
    };
    const pid_t other = ::fork();
    if (other == 0) {
        ::_exit(play());
    }
    EXPECT_EQ(play(), 0);
    int status = 0;
    ::waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(InFile()[0].Solved, 1000);
    EXPECT_EQ(SessionStats[0].Solved, 500);
}

} // namespace
} // namespace kelvarine::testing
