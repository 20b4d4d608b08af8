// What can be done with a row of boxes, or with the controls that arrange it, as a whole.
#pragma once

#include "game/board.h"

#include <string>

// The texts of boxes 1 to 6, joined.
std::string Spell(const LetterRow& row);

bool HasEmptyBox(const LetterRow& row);
bool HoldsLetters(const LetterRow& row);

void Empty(LetterRow& row);
void Enable(LetterRow& row);
void Disable(LetterRow& row);

// The buttons that arrange the player's letters: "Lay Out Word", "+", "<", ">" and "Mix Letters".
// A laying out takes them away together, and its end gives them back with the boxes of Text1.
std::array<Button*, 5> ArrangingButtons(Board& board);
void EnableArranging(Board& board);
