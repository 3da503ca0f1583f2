// picTabNewGame: the player's wishes for the games that are made next.
#pragma once

class QWidget;

namespace kelvarine {

// Makes the panel, filled from the state.
QWidget *MakeNewGamesTab(QWidget *parent);

} // namespace kelvarine
