// A letter that is laid out is taken back by the clicks of a player: the rest placed, all letters
// lifted again, and all but the last laid out.
#pragma once

#include "ui/typing.h"

struct Board;

// How many letters a laying out has placed: of one that has just ended, all six.
int PlacedSoFar(const Board& board);

// There has to be one.
void TakeBackLast(const Board& board, const Clicker& click);
