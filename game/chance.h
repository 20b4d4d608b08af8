// Draws as the rules use them. The arithmetic is done in double: in float, a draw just below 1
// would round up and leave the range.
#pragma once

#include "game/platform.h"

#include <string>

// A whole number from 1 to n, by one draw.
inline int DrawNumber(Platform& platform, int n)
{
    return static_cast<int>(static_cast<double>(platform.DrawRandom()) * n + 1);
}

// Takes one letter out of a pool that is not empty, by one draw; those behind it close up.
inline char TakeLetter(Platform& platform, std::string& pool)
{
    const auto place
        = static_cast<std::size_t>(DrawNumber(platform, static_cast<int>(pool.size())) - 1);
    const char letter = pool[place];
    pool.erase(place, 1);
    return letter;
}
