// The frames one below the other, for a screen that is narrow and high: in the order of a go, then
// what it is told by. All in twips.
#pragma once

#include "ui/places.h"

struct Part;

// Of a frame that stands in the window itself. The level panel has no place in the column: it
// stands over the middle of what is seen.
TwipRect PlaceInColumn(const Part& frame);

// With the margins around the frames.
double WidthOfColumn();
double HeightOfColumn();
