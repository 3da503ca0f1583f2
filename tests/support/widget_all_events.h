// All that assistive tools are told, by the program and by the toolkit itself, in its order.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kelvarine::testing {

// What tools are told while an action runs and until the event loop has come to rest, each as kind,
// role and name: "Focus table Solved games by level", "NameChanged cell 0".
std::vector<std::string> EventsDuring(const std::function<void()> &act);

// Those of a kind.
std::vector<std::string> OfKind(const std::string &kind, std::vector<std::string> events);

} // namespace kelvarine::testing
