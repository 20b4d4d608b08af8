// The computer's claim to know all three hidden words.
#pragma once

struct Game;

// The points that the computer gives for its claim: it needs more than these to make one.
inline constexpr double claimPrice = 1200;

// Weighs the claim against the player's score, for a MyScore above 1200. When it goes ahead, the
// game is over: returns when the player wants another, ends the program when not. Returns with
// nothing changed when the player's score forbids it.
void ClaimThreeWords(Game& game);
