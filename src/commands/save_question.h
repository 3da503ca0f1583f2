// The question that protects an unsaved game.
#pragma once

namespace kelvarine {

// Asks whether to save a modified game. LastAnswer is AnsweredCancel afterwards when the caller
// must stop.
void QuerySaveGame();

} // namespace kelvarine
