// The computer's whole go.
#pragma once

struct Game;

void Command8_Click(Game& game); // no button: the handlers that end the player's go call it
