// Where the focus goes: along the rows, along the Tab order, and on when play goes on elsewhere.
#pragma once

#include "ui/keys.h"

#include <map>
#include <string_view>

struct Board;
struct Part;

// The Tab key stops at a row of boxes once: at the box that had the focus last.
class TabStops {
public:
    // The focus has come to the part.
    void Came(const Part& part);

    bool IsAt(const Part& part, const Board& board) const;

private:
    std::map<std::string_view, int>
        boxes_; // by the name of the row; the first box where it has none
};

// The next control of the Tab order that is in reach, onwards or back, round and round; nullptr
// when there is no other. From nullptr it is the first.
const Part* StepByTab(const Part* from, bool onwards, const TabStops& stops, const Board& board);

// Left, Right, Home and End go to a box of the row that is in reach; nullptr where there is none.
const Part* WalkRow(const Part& from, Key key, const Board& board);

// Where the player goes on: the chosen level while the level panel is up, else the first of the
// player's letters, of those laid out, or "Pass".
const Part& WherePlayGoesOn(const Board& board);

// True when the board leaves the part in play; false for nullptr.
bool StaysInPlay(const Part* focused, const Board& board);

// What a click has done, as the board shows it.
struct Outcome {
    const Part& Clicked;
    const Board& Before;
    const Board& After;
    bool GoWentOver; // "YOUR GO" was off the screen meanwhile
};

bool EndsGoOrBeginsGame(const Outcome& outcome);

// Whether the focus goes where play goes on; and whether it goes to the first gap of the guess.
bool CallsForPlay(const Outcome& outcome);
bool CallsForGuess(const Outcome& outcome);
