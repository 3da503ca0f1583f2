// The desktop's session in a test: what it asks of the program when the player logs out, and what
// it hears.
#pragma once

namespace kelvarine::testing {

// How the session asks, and how often it heard each answer since. The toolkit's own manager of the
// session, which has none behind it here, is answered from this table.
struct SessionTable {
    bool MayAsk = true;         // whether the player may be asked something
    bool IsSecondPhase = false; // whether all other programs have answered
    int Released = 0;           // the player has been asked
    int Cancelled = 0;          // no logout
    int WantedSecondPhase = 0;
};
extern SessionTable SessionTold;

// Wants the program to save what it holds and to agree to a logout.
void AskToLogOut();

// Tells the program to go, as a session does when all have agreed.
void TellToGo();

} // namespace kelvarine::testing
