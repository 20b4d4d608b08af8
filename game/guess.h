// The player names all three hidden words.
#pragma once

struct Game;

void Command7_Click(Game& game); // "Make A Guess"
