// The limits of a word and of a word list.
#pragma once

#include <cstdint>

inline constexpr int lettersPerWord = 6;

// Records of the list are counted in 16 bits, and so are the words played.
inline constexpr std::int16_t largestCount = 32767;
