// Where the controls stand, in pixels at the scale of the window.
#pragma once

#include "ui/controls.h"

#include <QPoint>

struct Board;
struct Panel;

// How large the board is, and where in the window it begins.
struct Scale {
    double PixelsPerTwip;
    QPoint Origin; // in pixels

    bool operator==(const Scale&) const = default;
};

// Gives every control its place, and its edge as contents margins; its font has to be given anew.
// Where the level panel stands the board says.
void PlaceControls(Controls& controls, const Board& board, const Scale& scale);

void PlacePanel(QWidget& widget, const Panel& panel, const Scale& scale);
