// Makes the widgets show the board.
#pragma once

#include "ui/qt/controls.h"

struct Board;
struct Scale;
class Session;

// Brings every control up to the board, places it and gives it its font. What is on view comes on
// view; what is out of play stays until TakeOutOfPlay. Rescaled tells whether the scale is new.
void ShowControls(Controls& controls, const Session& session, const Board& board,
    const Scale& scale, bool rescaled);

void TakeOutOfPlay(const Controls& controls, const Board& board);
