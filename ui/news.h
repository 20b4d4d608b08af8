// What is new on the board, in words: the difference of two boards, for a player who does not see
// them.
#pragma once

#include <string>
#include <vector>

struct Board;

using News = std::vector<std::string>;

// True when a game has begun: from the level panel, or right after the last one.
bool BeginsGame(const Board& before, const Board& now);

// The word that has been played since, with its points; without the word where the messages have
// said it just now.
News PlayedSince(const Board& before, const Board& now, const std::string& messages);

// Everything else that has changed: what has happened, then whose go it is, the scores and the
// bonus, then the rows. A move of the player's is told as the move that it was.
News NewsSince(const Board& told, const Board& now, bool afterGo);

// Both scores; and with the bonus; the letters of all three rows; the hidden words as far as they
// are known.
std::string ScoresOf(const Board& board);
std::string ScoresAndBonusOf(const Board& board);
std::string AllRowsOf(const Board& board);
std::string HiddenWordsOf(const Board& board);
