// What the computer's go has changed: its score, its word, and the two boxes of its swap. After a
// deal the letter rows are left out, as everything is new there; and all of it when a game begins
// or ends.
#pragma once

#include <vector>

struct Board;
struct Part;

std::vector<const Part*> ChangedByComputer(const Board& before, const Board& now);
