// The keys that click a button from wherever the focus is, and those that tell again.
#pragma once

#include "ui/keys.h"

#include <span>
#include <string>

struct Board;

struct Shortcut {
    Key Is;
    const char* Control; // the button
};

std::span<const Shortcut> Shortcuts();

struct Telling {
    Key Is; // together with Shift
    std::string (*Tell)(const Board& board);
};

std::span<const Telling> Tellings();
