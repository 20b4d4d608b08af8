// How a game comes up: the level panel, the start of a game and the deal.
#pragma once

#include <cstdint>

struct Board;
struct Game;

void Form_Load(Game& game);                         // the window is made
void Option1_Click(Game& game, std::int16_t Index); // "Level 1" to "Level 6"

// "OK" on the level panel. A word list that cannot be read, or that no game can be made of, ends
// the program after its message.
void Command1_Click(Game& game);

// Jumbles the letters of the hidden words and deals six each to the computer, the player and the
// swap row. A letter in the hand is dropped: it is dealt with the others.
void DealLetters(Game& game);

// Puts the level panel in the middle of the window.
void CentreLevelPanel(Board& board);

// After a game: "Play Again". Yes brings the level panel back, centred, and the scores are 0; No
// ends the program.
void OfferAnotherGame(Game& game);

// Tells the player that the word list cannot be read.
void ShowLexiconMessage(Game& game);
