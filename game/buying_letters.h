// Buying a letter of a hidden word, for 100 points.
#pragma once

#include <cstdint>

struct Game;

void Word1_Click(Game& game, std::int16_t Index); // a box of "The Words (Buy Letters)", first word
void Word2_Click(Game& game, std::int16_t Index); // a box of "The Words (Buy Letters)", second word
void Word3_Click(Game& game, std::int16_t Index); // a box of "The Words (Buy Letters)", third word
