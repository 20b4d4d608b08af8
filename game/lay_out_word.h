// Spelling a word by clicking its letters in order.
#pragma once

#include <cstdint>

struct Board;
struct Game;

void Command9_Click(Game& game);                  // "Lay Out Word"
void Text2_Click(Game& game, std::int16_t Index); // a box above "Lay Out Word"

// Whether a click on a box above "Lay Out Word" does something now. "Lay Out Word" itself needs
// what the other moves of the whole row need: see RowIsFull.
bool LetterWaits(const Board& board, std::int16_t Index);
