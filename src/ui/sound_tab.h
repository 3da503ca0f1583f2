// picTabSound: a file for each event, its volume, and silence.
#pragma once

class QWidget;

namespace kelvarine {

// Makes the panel, filled from the state.
QWidget *MakeSoundTab(QWidget *parent);

// Lets the bars of the volumes show the state, or disables them when no volume can be read.
void ShowVolumes(const QWidget &panel, bool readable);

} // namespace kelvarine
