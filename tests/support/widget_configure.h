// The open configuration screen in a test: its controls by name, and the player's hand on them.
#pragma once

#include "board/look.h"
#include "grid/colour.h"
#include "grid/houses.h"
#include "support/widget_program.h"
#include "ui/configure/configure_screen.h"

#include <QScrollBar>
#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

// Two cells of the game on the board: a given, and one that is to be found.
inline constexpr Cell Given{1, 1};
inline constexpr Cell Unknown{3, 1};

// The name of a control that is one of several, by its number.
QByteArray Name(const char *array, int k);

// A fresh program with a game on the board and the configuration screen open on a tab.
class ConfigureTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Opens the screen on a tab, or switches it there.
    void Open(std::int32_t tab);

    // Closes the screen and lets it go.
    void Close();

    // The control of a name, on view or not. Fails the test when there is none.
    template <typename Control>
    Control *Find(const char *name)
    {
        auto *control = Screen->findChild<Control *>(name);
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    // A click of the left button: on the box or circle of a button, in the middle of others.
    void Click(const char *name);

    // Types into a text box, replacing what it holds.
    void Type(const char *name, const char *text);

    // Drags the thumb of a bar to a value, with a stop on half its way.
    void Drag(const char *name, int value);

    std::unique_ptr<Program> Running;
    ConfigureScreen *Screen = nullptr;
};

// Uses a control as the player would: to a value that it does not show. Options and swatches are
// left alone.
void Operate(QWidget &control);

// Colour of the painted board in a cell, between its frame and its numbers.
Colour PaintedIn(Cell cell);

// The painted board as it is now, for comparison with a later one.
QImage PaintedNow();

// Whether some pixel of a picture has a colour.
bool Holds(const QImage &picture, Colour colour);

} // namespace kelvarine::testing
