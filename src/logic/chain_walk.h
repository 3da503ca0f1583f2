// The walk that XY-chains and remote pairs share: depth first through cells of two numbers, in that
// order to the first chain that hits something, without ever entering a cell from which none does.
// A chain starts in a cell that is left by one of its numbers, and it is complete when it can be
// left by the other one, the start number.
#pragma once

#include "logic/chain_search.h"
#include "logic/chain_ways.h"

namespace kelvarine {

struct ChainWalk {
    ChainLinks Links;
    int StartNumber;
    std::int32_t MaxCells;               // the longest chain that is followed
    CellSet Open;                        // cells at which there is something to do
    CellSet (*Seen)(int start, int end); // cells that a complete chain hits
    bool HitsItself;                     // those of the chain among them
    Chain Stack;
    std::array<std::uint8_t, 82> Carry; // by depth: number by which the cell is left
    std::array<CellSet, 82> Peers;      // by depth: peers not visited yet, links or not
    CellRun Way; // the cells that lead on to a chain that hits something, last first
    Ways Found;
};

// Puts the first cell on the chain, to be left by a number.
void StartWalk(ChainWalk &walk, int start, int carried);

// The number by which the top cell is left.
inline int CarriedOut(const ChainWalk &walk)
{
    return walk.Carry[static_cast<std::size_t>(walk.Stack.Depth)];
}

// The links that may follow the top cell and have not been visited.
CellSet NextLinks(const ChainWalk &walk);

// Puts the first of some of these on the chain.
void StepOn(ChainWalk &walk, CellSet next);

// The open cells that the chain under way hits; none as long as it is not complete.
CellSet Hits(const ChainWalk &walk);

// Finds a Way from the top cell to a chain that hits something; false when there is none. The chain
// under way itself does not count.
bool FindWay(ChainWalk &walk);

// Goes on from the top cell, from which there is a Way, to the first chain in the order of the walk
// that hits something.
void GoToFirst(ChainWalk &walk);

// Goes to the end of the Way.
void GoToEnd(ChainWalk &walk);

// Goes back to the last cell from which there still is a Way; false when the walk is over. What
// was visited before holds nothing more, since links and open cells only get fewer during a call.
bool GoBack(ChainWalk &walk);

// Goes back to the start.
void GoToStart(ChainWalk &walk);

// Walks from the start to one chain after the other that hits something, and calls act() at each.
// act acts on the cells hit, takes them out of Open and says whether the call is over, as does the
// result. The chains come in the order of the walk if that matters.
template <typename Act>
bool WalkChains(ChainWalk &walk, bool inOrder, const Act &act)
{
    for (bool more = FindWay(walk); more; more = GoBack(walk)) {
        if (inOrder) {
            GoToFirst(walk);
        } else {
            GoToEnd(walk);
        }
        if (act()) {
            return true;
        }
        if (!inOrder) {
            GoToStart(walk);
        }
    }
    return false;
}

} // namespace kelvarine
