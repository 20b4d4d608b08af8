// Where the focus goes: along the rows, along the Tab order, and on when play goes on elsewhere.
#pragma once

#include "ui/controls.h"

#include <functional>

struct Board;

// Makes the boxes of a row, and the guess rows together, neighbours for the arrow keys.
void JoinRows(const Controls& controls);

void SetTabOrder(const Controls& controls);

// When what had the focus has gone from play, the focus goes where the player goes on.
void KeepFocusInPlay(const Controls& controls, const Board& board, const QWidget* focused);

// Takes a step of the Tab key, and more of them past what the level panel covers wholly. False when
// the last step found nothing to go to.
bool StepToSight(const QWidget& window, const std::function<bool()>& step);
