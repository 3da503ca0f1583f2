// picTabSound: a file for each event, its volume, and silence.
#pragma once

class QWidget;

namespace kelvarine {

// Makes the panel, filled from the state.
QWidget *MakeSoundTab(QWidget *parent);

// Lets the bars of the volumes show the state. When no volume can be read they are disabled and
// stand at 0.
void ShowVolumes(const QWidget &panel, bool readable);

} // namespace kelvarine
