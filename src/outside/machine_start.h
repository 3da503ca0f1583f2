// What tells one start of the machine from another.
#pragma once

#include <string>

namespace kelvarine {

inline constexpr std::size_t MachineStartSize = 36;

// The name of the machine's present start, of MachineStartSize letters: what was in the system's
// hands since is whole as long as it stays the same. Empty where the system does not tell.
std::string MachineStart();

} // namespace kelvarine
