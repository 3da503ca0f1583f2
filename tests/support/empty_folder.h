// A new folder that nothing else uses, for tests and for programs that have none.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace kelvarine::testing {

// Empty at first; it goes with all that it holds by then. Throws where none can be made, so that
// nobody goes on in another's folder.
class EmptyFolder {
public:
    EmptyFolder()
    {
        std::string form = (std::filesystem::temp_directory_path() / "kelvarine-XXXXXX").string();
        if (::mkdtemp(form.data()) == nullptr) {
            throw std::runtime_error("cannot make " + form);
        }
        path_ = form;
    }
    EmptyFolder(const EmptyFolder &) = delete;
    EmptyFolder &operator=(const EmptyFolder &) = delete;
    ~EmptyFolder()
    {
        std::error_code failure;
        std::filesystem::remove_all(path_, failure);
    }

    [[nodiscard]] const std::filesystem::path &Path() const
    {
        return path_;
    }

private:
    std::filesystem::path path_;
};

} // namespace kelvarine::testing
