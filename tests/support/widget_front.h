// The main window of a test brought to the front.
#pragma once

#include "support/widget_program.h"

#include <QtTest>
#include <gtest/gtest.h>

namespace kelvarine::testing {

// Waits until the main window is the active one; without a window manager a box that has closed
// leaves none active.
inline void BringToFront(const Program &program)
{
    program.Main->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(program.Main.get(), Patience));
}

} // namespace kelvarine::testing
