// What is new on the board, in words: the difference of two boards, for a player who does not see
// them.
#pragma once

#include <string>
#include <vector>

struct Board;

using News = std::vector<std::string>;

// True when a game has begun: from the level panel, or right after the last one.
bool BeginsGame(const Board& before, const Board& now);

// The word that has been played since, with its points.
News PlayedSince(const Board& before, const Board& now);

// Everything else that has changed. After a go a row is told as a whole; a move of the player's is
// told as the move that it was.
News NewsSince(const Board& told, const Board& now, bool afterGo);

// Both scores.
std::string ScoresOf(const Board& board);
