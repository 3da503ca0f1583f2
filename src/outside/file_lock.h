// A lock that programs of the same player hold one at a time, for as long as it lives.
#pragma once

#include "outside/descriptor.h"

#include <cstdint>
#include <string>

namespace kelvarine {

enum class LockState : std::uint8_t {
    Held,
    Busy,  // another program holds it
    Failed // the system lets nobody have it
};

// What becomes of the file by which a lock is held. One that several wait for is better left alone,
// for whoever waits on a file that goes has to queue anew.
enum class LockFile : std::uint8_t { Stays, Goes };

class FileLock {
public:
    // Locks by a file at a path, which is made, with the folders above it. While another program
    // holds the lock it is waited for, at most so many milliseconds. On a disk that knows no locks
    // or gives them to nobody who may only read, it counts as held.
    explicit FileLock(std::string path, int patience = 0, LockFile after = LockFile::Stays);
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;
    ~FileLock();

    [[nodiscard]] LockState State() const
    {
        return state_;
    }

    // The system's words for a failure.
    [[nodiscard]] const std::string &Error() const
    {
        return error_;
    }

private:
    LockState Open();
    LockState Wait(int patience);
    LockState Fail();

    std::string path_;
    LockFile after_;
    std::string error_;
    Descriptor file_;
    LockState state_ = LockState::Failed;
};

} // namespace kelvarine
