// The computer's search for a word in the six letters of its row.
#pragma once

struct Board;
struct Game;

// Looks for the first unused candidate that the six letters spell, in the part of the list that the
// level allows, and plays it to the end: message, score, claim, ledger, bonus and deal.
// ComputerScored tells whether a word was played.
void SearchForWord(Game& game);

// Puts the letters of SortBuffer in ascending order, by code point.
void SortLetters(Board& board);
