// Buying a letter of a hidden word.
#pragma once

#include <cstdint>

struct Board;
struct Game;
struct HiddenWord;

inline constexpr double letterPrice = 100; // in points

void Word1_Click(Game& game, std::int16_t Index); // a box of "The Words (Buy Letters)", first word
void Word2_Click(Game& game, std::int16_t Index); // a box of "The Words (Buy Letters)", second word
void Word3_Click(Game& game, std::int16_t Index); // a box of "The Words (Buy Letters)", third word

// Whether these clicks do something: true while that letter of the word is not on view.
bool LetterIsHidden(const Board& board, const HiddenWord& word, std::int16_t Index);
