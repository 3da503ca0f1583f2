// picTabCoordinates: how cells are named, with all 81 names as a sample.
#pragma once

class QWidget;

namespace kelvarine {

// Makes the panel, filled from the state.
QWidget *MakeCoordinatesTab(QWidget *parent);

} // namespace kelvarine
