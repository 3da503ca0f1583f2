// picTabPresetGrids: whole looks at a click.
#pragma once

class QWidget;

namespace kelvarine {

// Makes the panel, filled from the state.
QWidget *MakePresetTab(QWidget *parent);

} // namespace kelvarine
