// A new file on its way to the place of another: without a name where the file system knows such
// files, so that nothing is left of it when the program is killed, else under a name of its own.
#pragma once

#include "outside/descriptor.h"

#include <cstdint>
#include <string>
#include <sys/types.h>

namespace kelvarine {

enum class Beside : std::uint8_t { WithoutName, Named };

class FileBeside {
public:
    // Makes the file in an open folder, with permissions of which the player's mask or the folder
    // leaves what it leaves. Where that failed the file is not open, and the reason is in errno.
    FileBeside(int folder, mode_t permissions, Beside way);
    FileBeside(const FileBeside &) = delete;
    FileBeside &operator=(const FileBeside &) = delete;
    // Takes its name away, unless the file has taken its place.
    ~FileBeside();

    [[nodiscard]] int Number() const
    {
        return file_.Number();
    }
    [[nodiscard]] bool IsOpen() const
    {
        return file_.IsOpen();
    }

    // True when the file reports none of the late errors that come with the end of writing.
    [[nodiscard]] bool EndWriting() const;

    // Gives the file its name beside the other.
    bool TakeName();

    // Puts it in the place of what stands in the folder under a name.
    bool TakePlace(const std::string &name);

private:
    void MakeNamed(mode_t permissions);

    int folder_;
    Descriptor file_;
    std::string name_; // empty while it has none
};

// True when errno tells that files without a name are not to be had there, and not that this one
// could not be made.
bool LacksFilesWithoutName();

// Removes from an open folder what programs of the player's left there that ended before their file
// had taken its place: whatever nobody holds any more, or is older than a day.
void RemoveLeftovers(int folder);

} // namespace kelvarine
