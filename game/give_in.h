// The player resigns.
#pragma once

struct Game;

void Command10_Click(Game& game); // "Give In"
