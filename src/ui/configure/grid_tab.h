// picTabGrid: lines, margins, effects and the layout of pencilmarks.
#pragma once

class QWidget;

namespace kelvarine {

// Makes the panel, filled from the state.
QWidget *MakeGridTab(QWidget *parent);

// Moves the bars and the boxes of the effects to the settings, without writing them back.
void ShowPresetOnGridTab(const QWidget &screen);

} // namespace kelvarine
