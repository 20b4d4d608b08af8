// Draws as the rules use them. The arithmetic is done in double: in float, a draw just below 1
// would round up and leave the range.
#pragma once

#include "game/platform.h"

// A whole number from 1 to n, by one draw.
inline int DrawNumber(Platform& platform, int n)
{
    return static_cast<int>(static_cast<double>(platform.DrawRandom()) * n + 1);
}
