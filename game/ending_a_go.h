// The buttons in the frame "These buttons end your go".
#pragma once

struct Game;

void Command3_Click(Game& game);  // "Submit Word"
void Command13_Click(Game& game); // "Pass"
void Command14_Click(Game& game); // "Jumble"
