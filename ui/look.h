// What a control shows for a board.
#pragma once

#include <string>

struct Board;
struct Part;

enum class Edge {
    Flat,      // never for a click
    Raised,    // for a click
    OutOfPlay, // for a click at another time
};

struct Look {
    std::string Text;  // letter, number or caption; of "Used Words" a line each
    std::string Faint; // a letter that is in the hand, shown in the box that it came from
    std::string Above; // of a guess: the letter that the hidden word shows at this place
    bool Enabled = true;
    bool OnView = true; // and so are the frames around it
    bool Chosen = false; // the option, or ticked
    Edge Border = Edge::Flat;
    bool Faded = false; // the colours are those of a control out of play
    std::string Name;   // what a screen reader says: see spoken.h

    bool operator==(const Look&) const = default;
};

Look LookOf(const Part& part, const Board& board);
