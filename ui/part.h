// One control of the window, or one box of a row of them, with its rows in the tables.
#pragma once

#include "ui/binding.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

struct Click;
struct Control;

struct Part {
    const Control* Row;             // in the roster
    int Number;                     // of the box; 0 for a single control
    const Part* Frame = nullptr;    // that it stands in; nullptr for the window itself
    const Field* Shows = nullptr;   // of the board; nullptr when what it shows never changes
    const Click* Clicked = nullptr; // nullptr when a click on it does nothing
};

// All of them, each standing above those before it. A frame comes before what it holds.
std::span<const Part> Parts();

// A name that is not in the roster is a mistake of ours and stops the program with that name.
const Part& FindPart(std::string_view name, int number = 0);

// Its place in Parts().
std::size_t IndexOf(const Part& part);

// "Command3", "Text1(2)".
std::string NameOf(const Part& part);

// The box of a letter row that the part shows, or nullptr.
const LetterBox* BoxOf(const Part& part, const Board& board);

// The flag of its own; false while the board has the part disabled.
bool IsEnabled(const Part& part, const Board& board);

// Whether it hides by itself, and not only with its frame.
bool HasFlagOfView(const Part& part);

// Its own flag of view, true where it has none; and with those of the frames around it.
bool IsShown(const Part& part, const Board& board);
bool IsOnView(const Part& part, const Board& board);

// On view, and not wholly below the level panel.
bool IsInSight(const Part& part, const Board& board);

// Enabled and in sight.
bool IsInReach(const Part& part, const Board& board);
