// What each control of the configuration screen is for, in plain words, as tips.
#pragma once

class QWidget;

namespace kelvarine {

// Gives every control of the screen that has none its tip, which assistive tools read as well.
void GiveTips(const QWidget &screen);

} // namespace kelvarine
