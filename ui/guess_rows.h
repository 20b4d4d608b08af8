// The boxes of the guess: a typed letter moves on to the next box, and known letters are passed.
#pragma once

#include "ui/keys.h"

#include <string>

struct Board;
struct Part;

// How a box came to hold its text.
enum class Edit { Typed, Erased };

class GuessRows {
public:
    // The board outlives this.
    explicit GuessRows(Board& board);

    // The box holds this text now, by the player's hand. A letter moves on once it stands in the
    // box. More of them at once, as a pasted word brings, go on over the row, and what is left then
    // stays in its last box. A letter that runs on into a known box goes past it, unless it is the
    // known one. The text is composed: a letter is a code point. Returns the box to go on at, or
    // nullptr.
    const Part* Write(const Part& box, const std::string& text, Edit edit);

    // The box holds this text as it is, whatever it is.
    void Set(const Part& box, const std::string& text) { TextOf(box) = text; }

    // The key moves the focus to the box that is returned. Handled is false where it is for others.
    struct Move {
        bool Handled = false;
        const Part* To = nullptr;
    };
    Move Press(const Part& box, const KeyPress& key);

    // Typing has run on into the box, where Backspace is for the letter before and known letters
    // are passed; until the focus comes to another.
    void SteppedOn(const Part* into) { steppedInto_ = into; }
    void FocusCame(const Part& part) { steppedInto_ = &part == steppedInto_ ? &part : nullptr; }

    // The first empty box, row by row, of those that come after the box; from nullptr of all.
    // nullptr when none is left.
    const Part* Gap(const Part* after = nullptr) const;

private:
    bool IsKnown(const Part& box) const;
    std::string& TextOf(const Part& box) const;
    const Part* EraseBefore(const Part& box);
    const Part* PastKnown(const Part& box, const std::string& letter) const;

    Board& board_;
    const Part* steppedInto_ = nullptr;
};
