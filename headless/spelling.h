// How a player spells a word.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Board;

// A click on a control, and the number of its box: 0 for a single control.
struct Move {
    std::string_view control;
    std::int16_t index = 0;
};

// The clicks that exchange a letter if the word needs one, lay the word out and submit it, for a
// player who has six letters in the row. None when the word is out of reach.
std::vector<Move> MovesFor(const Board& board, const std::string& word);
