// picTabLogic: a row for each technique, and the limits of chains.
#pragma once

class QWidget;

namespace kelvarine {

// Makes the panel, filled from the state.
QWidget *MakeLogicTab(QWidget *parent);

} // namespace kelvarine
