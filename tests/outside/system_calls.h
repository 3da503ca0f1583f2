// The calls of the system by which files are written, as the tests see them: recorded in order, and
// made to fail when a test wants it. The linker leads the program's calls through here.
#pragma once

#include <cerrno>
#include <functional>
#include <string>
#include <vector>

namespace kelvarine::testing {

struct SystemCall {
    std::string Name;    // such as "fsync"
    int File = -1;       // the file that it is about, counted from 0 in the order of their opening
    std::string From{};  // a name in a folder, of "renameat"
    std::string To{};    // a name in a folder, of "openat", "linkat", "renameat" and "unlinkat"
    std::string Bytes{}; // of "write"
    bool Failed = false;
};

// Records all calls while it lives, and fails one of them.
class SystemCalls {
public:
    SystemCalls();
    SystemCalls(const SystemCalls &) = delete;
    SystemCalls &operator=(const SystemCalls &) = delete;
    ~SystemCalls();

    // Lets the so-manieth call from now on, from 1, fail with an error; of one name, or of all.
    // From then on all go well, or all fail as well.
    void Fail(int number, int error, const std::string &name = "");
    void FailAlways(const std::string &name, int error);

    // The names of the calls, in order.
    [[nodiscard]] std::vector<std::string> Names() const;

    std::vector<SystemCall> Calls;

    // Set for a disk that takes its time: called before each flush, in the thread that asks for it.
    std::function<void()> BeforeFlush;

    // Set for a disk of another machine, which gives the one lock to nobody who may only read.
    bool LocksNeedWriting = false;

    // For the calls themselves.
    bool Fails(const std::string &name);
    int FileOf(int descriptor);
    int OpenFile(int descriptor);

    // What the calls of this thread are recorded in, or nothing: those of a thread that was at work
    // before it was made, such as one that still waits for the lock of an earlier test, are not.
    static SystemCalls *OfThisThread();

private:
    std::vector<int> files_; // by descriptor, -1 for none
    int opened_ = 0;
    int countdown_ = 0;
    int error_ = 0;
    std::string name_;
    bool always_ = false;
};

} // namespace kelvarine::testing
