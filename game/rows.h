// Rows of boxes taken whole, and the controls that arrange the player's row.
#pragma once

#include "game/board.h"

#include <array>
#include <string>

// The texts of boxes 1 to 6, joined.
std::string Spell(const LetterRow& row);

bool HasEmptyBox(const LetterRow& row);
bool HoldsLetters(const LetterRow& row);

void Empty(LetterRow& row);
void Enable(LetterRow& row);
void Disable(LetterRow& row);

// The buttons that arrange the player's letters: "Lay Out Word", "+", "<", ">" and "Mix Letters".
// A laying out takes them away; its end, "Pass" and "Jumble" give them back, and the boxes of Text1
// with them.
std::array<Button*, 5> ArrangingButtons(Board& board);
void EnableArranging(Board& board);
