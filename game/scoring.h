// What a word earns, for either side, and the ledger of used words.
#pragma once

#include <string>

struct Board;
struct NumberBox;

// The whole score rule: points for the side, the word on "Used Words" and in the ledger, the new
// bonus.
void ScoreWord(Board& board, NumberBox& side, const std::string& word);

// The rule's steps, for the side that has something to do between them.
void AddPoints(const Board& board, NumberBox& side);     // 50 and the bonus on show
void AddUsedWord(Board& board, const std::string& word); // into the ledger, until it is full
void RaiseBonus(Board& board);                           // to ten times the count of "Used Words"

// Sets ProbeUsed to whether ProbeWord stands in the ledger.
void CheckWordUsed(Board& board);
