// Where the controls stand, in pixels at the scale of the window.
#pragma once

#include "ui/controls.h"

struct Board;
struct Panel;

// Gives every control its place, at so many pixels to the twip; its font has to be given anew.
// Where the level panel stands the board says.
void PlaceControls(Controls& controls, const Board& board, double pixelsPerTwip);

void PlacePanel(QWidget& widget, const Panel& panel, double pixelsPerTwip);
