// The keys that have a meaning of the game's own. Space, and the keys that edit a text within its
// box, are the toolkit's.
#pragma once

enum class Key {
    Left,
    Right,
    Up,
    Down,
    Home,
    End,
    Tab,
    BackTab,
    Backspace,
    Escape,
    Enter,
    F1,
    F2,
    F4,
    F8,
    F9,
    F10,
};

struct KeyPress {
    Key Is;
    bool Held = false;  // the key repeats by itself
    bool Shift = false; // of a function key

    // Where the cursor stands in what has the focus and has a cursor. With text selected it stands
    // at both ends.
    bool AtStart = true;
    bool AtEnd = true;
};
