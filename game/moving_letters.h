// The moves that change letters and cost nothing. A move that cannot be made does nothing.
#pragma once

#include <cstdint>

struct Board;
struct Game;

void Text1_Click(Game& game, std::int16_t Index);       // a box of "Your Letters"
void SwapLetters_Click(Game& game, std::int16_t Index); // a box of "Swap Letters"
void Command4_Click(Game& game);                        // "<"
void Command5_Click(Game& game);                        // ">"
void Command16_Click(Game& game);                       // "+"
void Command6_Click(Game& game);                        // "Mix Letters"
void Command15_Click(Game& game);                       // "Rotate Swap Letters"

// Whether clicks do something now.
bool NothingWaitsAbove(const Board& board);  // a box of "Your Letters"
bool LetterIsHeld(const Board& board);       // a box of "Swap Letters"
bool RowIsFull(const Board& board);          // "<", ">", "Mix Letters" and "Lay Out Word"
bool SwapRowTakesClicks(const Board& board); // "Rotate Swap Letters"

// True when "<" and ">" run through the red letter: after "+", until "Lay Out Word" takes it back.
bool RedLetterTurnsToo(const Board& board);
