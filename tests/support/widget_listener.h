// A listener in the place of the desktop's assistive tools: it hears every event that the program
// sends them, and none of those that the toolkit sends by itself.
#pragma once

#include <string>
#include <vector>

namespace kelvarine::testing {

// While it stands, tools count as listening and events come here instead of to the desktop. There
// is one at a time.
class Listener {
public:
    Listener();
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;
    ~Listener();

    // What was heard since the last call, up to where the event loop has come to rest, each as
    // kind, cell if it is one, and name, with the focus also what the thing is described by:
    // "Focus [A1] 5, given", "Focus [A1] empty; 2 cells selected", "ObjectShow 9 cells changed".
    std::vector<std::string> Heard();
};

// The same without tools that listen: events are heard, but none should be made for them.
class SilentListener : public Listener {
public:
    SilentListener();
};

} // namespace kelvarine::testing
