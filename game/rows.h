// Rows of boxes, buttons and frames that the rules take together.
#pragma once

#include "game/board.h"

#include <array>
#include <string>
#include <vector>

// The texts of boxes 1 to 6, joined.
std::string Spell(const LetterRow& row);

// The letters of the game: those of the hidden words.
std::string HiddenLetters(const Board& board);

bool HasEmptyBox(const LetterRow& row);
bool HoldsLetters(const LetterRow& row);

void Empty(LetterRow& row);
void Enable(LetterRow& row);
void Disable(LetterRow& row);

// The buttons that arrange the player's letters: "Lay Out Word", "+", "<", ">" and "Mix Letters".
// A laying out takes them away; its end, "Pass" and "Jumble" give them back, and the boxes of Text1
// with them.
std::vector<Button*> ArrangingButtons(Board& board);
void EnableArranging(Board& board);

// The frames of the board, which a game shows and a right guess hides together.
std::array<Frame*, 6> GameFrames(Board& board);
