// Draws as the rules use them. The arithmetic is done in double: in float, a draw just below 1
// would round up and leave the range.
#pragma once

#include "game/platform.h"
#include "lexicon/letters.h"

#include <string>

// A whole number from 1 to n, by one draw.
inline int DrawNumber(Platform& platform, int n)
{
    return static_cast<int>(static_cast<double>(platform.DrawRandom()) * n + 1);
}

// Takes one letter out of a pool that is not empty, by one draw; those after it close up.
inline std::string TakeLetter(Platform& platform, std::string& pool)
{
    const int place = DrawNumber(platform, static_cast<int>(CountLetters(pool)));
    const std::string_view inPool = LetterOf(pool, place);
    const std::string letter(inPool);
    pool.erase(static_cast<std::size_t>(inPool.data() - pool.data()), letter.size());
    return letter;
}
