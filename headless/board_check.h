// What always holds of a board.
#pragma once

#include <string>

struct Board;

enum class Moment { BetweenEvents, InsideAnEvent };

// What is wrong with the board, "" when nothing is. Inside an event the go may be in the middle of
// changing hands, and a game in the middle of its start.
std::string FindFault(const Board& board, Moment moment = Moment::BetweenEvents);
