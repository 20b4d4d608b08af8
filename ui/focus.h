// Where the focus goes: along the rows, along the Tab order, and on when play goes on elsewhere.
#pragma once

#include "ui/controls.h"

#include <functional>

struct Board;

// Makes the boxes of a row, and the guess rows together, neighbours for the arrow keys.
void JoinRows(const Controls& controls);

void SetTabOrder(const Controls& controls);

// Gives the focus to the control where the player goes on: the chosen level while the level panel
// is up, else the first of the player's letters, of those laid out, or "Pass".
void FocusOnPlay(const Controls& controls, const Board& board);

// True when the board leaves what has the focus in play; false too when nothing has it.
bool FocusStaysInPlay(const Controls& controls, const Board& board);

// Gives the focus to the first empty box of the guess, down the columns; leaves it when all are
// filled.
void FocusOnGap(const Controls& controls, const Board& board);

// Takes a step of the Tab key, and more of them past what the level panel covers wholly. False when
// the last step found nothing to go to.
bool StepToSight(const QWidget& window, const std::function<bool()>& step);
