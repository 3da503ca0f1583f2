#include "files/file_choice.h"

namespace kelvarine {

std::string ChosenFilePath;

} // namespace kelvarine
