// A printed document that is ended and handed over in one go.
#pragma once

#include "outside/printer.h"

#include <string>

namespace kelvarine::testing {

inline std::string EndAndHandOver()
{
    EndDocument();
    return HandOverDocument();
}

} // namespace kelvarine::testing
