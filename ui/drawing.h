// Brings the widgets up to the board. It writes nothing on the board.
#pragma once

#include "ui/controls.h"

struct Board;

// Shows in every control what the board has, and brings into play what comes into play; what has
// not changed is left alone.
void ShowControls(const Controls& controls, const Board& board);

// Disables and hides what the board has taken out of play. It comes second, so that the focus can
// go on before it is taken away.
void TakeOutOfPlay(const Controls& controls, const Board& board);
