// The order of the calls by which a file is replaced, each of them failing once, and the power cut
// at every moment in between.
#include "outside/system_calls.h"
#include "outside/whole_file.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <functional>
#include <map>
#include <set>

namespace kelvarine::testing {
namespace {

using Names = std::vector<std::string>;

constexpr std::size_t BlockSize = 4096;

class Flushing : public ::testing::Test {
protected:
    Flushing()
    {
        Folder.Write("game", OldBytes);
    }

    bool Replace(const std::string &bytes)
    {
        return ReplaceWholeFile(Folder.Path("game"), bytes, Error);
    }

    TemporaryFolder Folder;
    std::string OldBytes = std::string(7000, 'o');
    std::string NewBytes = std::string(41360, 'n');
    std::string Error;
};

// The steps that decide what a power cut leaves; what is done to look around is left out.
Names Steps(const SystemCalls &calls)
{
    const std::set<std::string> deciding{"write", "fsync", "linkat", "renameat"};
    Names steps;
    for (const SystemCall &call : calls.Calls) {
        const bool closing = call.Name == "close" && call.File < 0 && !steps.empty();
        if (closing || deciding.contains(call.Name)) {
            steps.push_back(call.Name);
        }
    }
    return steps;
}

TEST_F(Flushing, FileIsOnTheDiskBeforeItIsNamedAndItsFolderAfterwards)
{
    SystemCalls calls;
    ASSERT_TRUE(Replace(NewBytes)) << Error;
    const Names all = Steps(calls);
    const Names first(all.begin(), all.begin() + 5);
    EXPECT_EQ(first, (Names{"write", "fsync", "close", "linkat", "renameat"}));
    EXPECT_EQ(std::ranges::count(all, "fsync"), 2);
    const SystemCall &folder = *std::ranges::find(calls.Calls.rbegin(), calls.Calls.rend(),
                                                  std::string("fsync"), &SystemCall::Name);
    const auto opened = std::ranges::find_if(calls.Calls, [&](const SystemCall &call) {
        return call.Name == "openat" && call.File == folder.File;
    });
    ASSERT_NE(opened, calls.Calls.end());
    EXPECT_EQ(opened->To, ".");
    EXPECT_GT(opened, std::ranges::find(calls.Calls, std::string("renameat"), &SystemCall::Name));
}

TEST_F(Flushing, WithoutNamelessFilesTheFileIsNamedFromItsStart)
{
    SystemCalls calls;
    calls.Fail(1, EOPNOTSUPP, "openat");
    ASSERT_TRUE(Replace(NewBytes)) << Error;
    const Names all = Steps(calls);
    EXPECT_EQ(Names(all.begin(), all.begin() + 4), (Names{"write", "fsync", "close", "renameat"}));
    EXPECT_EQ(std::ranges::count(all, "linkat"), 0);
    EXPECT_TRUE(Folder.Read("game") == NewBytes);
    EXPECT_EQ(Folder.Entries(), 1);
}

TEST_F(Flushing, NamelessFileThatCannotBeLinkedGivesWayToANamedOne)
{
    SystemCalls calls;
    calls.FailAlways("linkat", ENOENT); // as without /proc
    ASSERT_TRUE(Replace(NewBytes)) << Error;
    EXPECT_TRUE(Folder.Read("game") == NewBytes);
    EXPECT_EQ(Folder.Entries(), 1);
}

// ---- Each call failing -----------------------------------------------------------------------

TEST_F(Flushing, EachFailingCallIsToldAndLeavesTheOldFileWhole)
{
    for (const std::string name :
         {"openat", "fchmod", "write", "fsync", "close", "linkat", "renameat"}) {
        SystemCalls calls;
        calls.Fail(1, EIO, name);
        EXPECT_FALSE(Replace(NewBytes)) << name;
        EXPECT_EQ(Error, "Input/output error") << name;
        EXPECT_TRUE(Folder.Read("game") == OldBytes) << name;
        EXPECT_EQ(Folder.Entries(), 1) << name;
    }
}

TEST_F(Flushing, FolderThatCannotBeFlushedIsToldAndTheNewFileIsWhole)
{
    SystemCalls calls;
    calls.Fail(2, EIO, "fsync");
    EXPECT_FALSE(Replace(NewBytes));
    EXPECT_EQ(Error, "Input/output error");
    EXPECT_TRUE(Folder.Read("game") == NewBytes);
}

TEST_F(Flushing, FolderOfAKindThatKnowsNoFlushingIsNoFailure)
{
    SystemCalls calls;
    calls.Fail(2, EINVAL, "fsync");
    EXPECT_TRUE(Replace(NewBytes)) << Error;
}

TEST_F(Flushing, InterruptedCallsAreMadeAgain)
{
    for (const std::string name : {"write", "fsync"}) {
        SystemCalls calls;
        calls.Fail(1, EINTR, name);
        EXPECT_TRUE(Replace(NewBytes)) << name << ": " << Error;
    }
}

// However many calls there are, each of them fails once with each of the errors that a disk has.
TEST_F(Flushing, AnyCallFailingLeavesTheOldOrTheNewFileWhole)
{
    for (const int error : {ENOSPC, EIO, EDQUOT, EROFS, EINTR}) {
        int failing = 1;
        for (bool failed = true; failed; ++failing) {
            Folder.Write("game", OldBytes);
            SystemCalls calls;
            calls.Fail(failing, error);
            const bool replaced = Replace(NewBytes);
            failed = std::ranges::find(calls.Calls, true, &SystemCall::Failed) != calls.Calls.end();
            const std::string now = Folder.Read("game");
            ASSERT_TRUE(now == NewBytes || (now == OldBytes && !replaced))
                << "call " << failing << " failing with " << error;
            ASSERT_EQ(replaced, Error.empty());
        }
        EXPECT_GT(failing, 10) << "there are calls to fail";
        EXPECT_TRUE(Folder.Read("game") == NewBytes) << "the last round is one without a failure";
    }
}

// ---- Power cuts ------------------------------------------------------------------------------

// What a disk holds of the calls so far. Bytes that were not flushed may have come there or not, a
// block at a time and in any order; names change in the order of the journal, as far as it came.
class Disk {
public:
    explicit Disk(std::string old) : old_(std::move(old))
    {
    }

    void Take(const SystemCall &call)
    {
        if (call.Name == "write") {
            std::string &bytes = files_[call.File].Bytes;
            bytes += call.Bytes;
        } else if (call.Name == "fsync" && files_.contains(call.File)) {
            files_[call.File].Flushed = files_[call.File].Bytes.size();
        } else if (call.Name == "fsync") {
            certain_ = names_.size(); // the folder, the only other thing that is flushed
        } else if (call.Name == "linkat") {
            names_.emplace_back([call](auto &names) { names[call.To] = call.File; });
        } else if (call.Name == "renameat") {
            names_.emplace_back([call](auto &names) {
                names[call.To] = names[call.From];
                names.erase(call.From);
            });
        }
    }

    // Calls back with each content that the file "game" may have after a power cut now.
    void AfterPowerCut(const std::function<void(const std::string &)> &see) const
    {
        for (std::size_t done = certain_; done <= names_.size(); ++done) {
            std::map<std::string, int> names{{"game", oldFile}};
            for (std::size_t change = 0; change < done; ++change) {
                names_[change](names);
            }
            if (names["game"] == oldFile) {
                see(old_);
            } else {
                SeeAllForms(files_.at(names["game"]), see);
            }
        }
    }

private:
    struct File {
        std::string Bytes;
        std::size_t Flushed = 0;
    };

    static void SeeAllForms(const File &file, const std::function<void(const std::string &)> &see)
    {
        const std::size_t left = file.Bytes.size() - file.Flushed;
        const std::size_t blocks = (left + BlockSize - 1) / BlockSize;
        for (std::size_t there = 0; there < std::size_t{1} << blocks; ++there) {
            std::string bytes = file.Bytes.substr(0, file.Flushed);
            for (std::size_t block = 0; block < blocks; ++block) {
                const std::size_t start = file.Flushed + block * BlockSize;
                const std::string piece = file.Bytes.substr(start, BlockSize);
                if ((there >> block & 1U) != 0) {
                    bytes.resize(start, '\0');
                    bytes += piece;
                }
            }
            see(bytes);
        }
    }

    static constexpr int oldFile = -1;
    std::string old_;
    std::map<int, File> files_;
    std::vector<std::function<void(std::map<std::string, int> &)>> names_;
    std::size_t certain_ = 0;
};

class PowerCut : public Flushing {
protected:
    std::vector<SystemCall> TraceOfASave()
    {
        SystemCalls calls;
        EXPECT_TRUE(Replace(NewBytes)) << Error;
        return calls.Calls;
    }

    // The contents that the file may have after a power cut at some moment of these calls.
    [[nodiscard]] std::set<std::string> AtAnyMoment(const std::vector<SystemCall> &calls) const
    {
        std::set<std::string> contents;
        const auto see = [&](const std::string &bytes) {
            contents.insert(bytes);
        };
        Disk disk(OldBytes);
        disk.AfterPowerCut(see);
        for (const SystemCall &call : calls) {
            disk.Take(call);
            disk.AfterPowerCut(see);
        }
        return contents;
    }
};

TEST_F(PowerCut, AtAnyMomentLeavesTheOldOrTheNewFile)
{
    const std::set<std::string> contents = AtAnyMoment(TraceOfASave());
    EXPECT_TRUE(contents == (std::set<std::string>{OldBytes, NewBytes}));
}

TEST_F(PowerCut, AfterTheSaveLeavesTheNewFile)
{
    std::set<std::string> contents;
    Disk disk(OldBytes);
    for (const SystemCall &call : TraceOfASave()) {
        disk.Take(call);
    }
    disk.AfterPowerCut([&](const std::string &bytes) { contents.insert(bytes); });
    EXPECT_TRUE(contents == std::set<std::string>{NewBytes});
}

TEST_F(PowerCut, LeavesHalvesWhereTheFlushIsLeftOut)
{
    std::vector<SystemCall> calls = TraceOfASave();
    calls.erase(std::ranges::find(calls, std::string("fsync"), &SystemCall::Name));
    EXPECT_GT(AtAnyMoment(calls).size(), 1000U);
}

TEST_F(PowerCut, LeavesTheOldFileWhereTheFolderIsNotFlushed)
{
    std::set<std::string> contents;
    Disk disk(OldBytes);
    bool first = true;
    for (const SystemCall &call : TraceOfASave()) {
        if (call.Name != "fsync" || std::exchange(first, false)) {
            disk.Take(call);
        }
    }
    disk.AfterPowerCut([&](const std::string &bytes) { contents.insert(bytes); });
    EXPECT_TRUE(contents.contains(OldBytes));
}

} // namespace
} // namespace kelvarine::testing
