// What a control shows for a board.
#pragma once

#include <string>
#include <vector>

struct Board;
struct Part;

enum class Edge {
    Flat,      // never for a click
    Raised,    // for a click
    OutOfPlay, // for a click at another time
    Sunken,    // a number or a letter is written there
};

// What the edge tells beside that.
enum class Mark {
    None,
    Known,   // a letter of the guess that the hidden word shows
    Foreign, // a letter of the guess that is none of the game's 18
    Next,    // the box that the next letter of a laying out goes to
    Refused, // a letter was typed for this box that the row does not have
    Changed, // by the computer's go
};

struct Look {
    std::string Text;  // letter, number or caption; of "Used Words" a line each
    std::string Faint; // a letter that is in the hand, shown in the box that it came from
    std::string Above; // of a guess: the letter that the hidden word shows at this place
    bool Enabled = true;
    bool OnView = true;  // and so are the frames around it
    bool Chosen = false; // the option, or ticked
    Edge Border = Edge::Flat;
    Mark Marked = Mark::None;
    bool Faded = false; // the colours are those of a control out of play
    bool Clear = false; // but not that of its letter
    std::string Name;   // what a screen reader says: see spoken.h
    std::string Help;   // and then

    bool operator==(const Look&) const = default;
};

// What is marked for a while, beside what the board itself says.
struct Marks {
    std::vector<const Part*> Changed;
    const Part* Refused = nullptr;
};

Look LookOf(const Part& part, const Board& board, const Marks& marks = {});
