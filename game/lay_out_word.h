// Spelling a word by clicking its letters in order.
#pragma once

#include <cstdint>

struct Game;

void Command9_Click(Game& game);                  // "Lay Out Word"
void Text2_Click(Game& game, std::int16_t Index); // a box above "Lay Out Word"
