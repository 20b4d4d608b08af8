// Where the controls stand, in pixels at the scale of the window.
#pragma once

#include "ui/controls.h"

#include <QPoint>

struct Board;

// How large the board is, and where in the window it begins.
struct Scale {
    double PixelsPerTwip;
    QPoint Origin; // in pixels

    bool operator==(const Scale&) const = default;
};

// Gives every control its place, and its edge as contents margins; its font has to be given anew.
// The level panel and its backing are left out: where they stand the board says.
void PlaceControls(Controls& controls, const Scale& scale);
void PlacePanels(const Controls& controls, const Board& board, const Scale& scale);
