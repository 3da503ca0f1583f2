// The real program in a test: its main window without a screen, and answers to the boxes that it
// opens.
#pragma once

#include "ui/window/main_window.h"

#include <QMessageBox>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kelvarine::testing {

// Milliseconds after which a wait for something that is bound to happen gives up. No test passes or
// fails by it on a machine that gets there at all.
inline constexpr int Patience = 60'000;

// A fresh program: every default, a main window of 760 by 830 on view, a blank game that is not
// modified. The settings, data and home folders are empty ones of its own.
class Program {
public:
    Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;
    ~Program();

    std::unique_ptr<MainWindow> Main;
};

// What the boxes said that AnswerBoxes answered, in order.
struct BoxRecord {
    std::vector<std::string> Texts;
    std::vector<std::string> Titles;
};

// Runs an action that opens message boxes, and answers them in turn with these buttons; a box too
// many is answered with its escape button. Modal windows of another kind are left alone.
BoxRecord AnswerBoxes(const std::function<void()> &action,
                      std::vector<QMessageBox::StandardButton> answers = {});

} // namespace kelvarine::testing
