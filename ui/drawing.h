// Brings the widgets up to the board. It writes nothing on the board.
#pragma once

#include "ui/controls.h"

struct Board;

// Shows every control as the board has it; what has not changed is left alone.
void ShowControls(const Controls& controls, const Board& board, double pixelsPerTwip);
