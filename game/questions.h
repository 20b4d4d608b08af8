// The questions that the game puts to the player. Their texts and titles are the only thing that a
// window hears of them.
#pragma once

#include "game/game_view.h"

#include <span>

struct Game;

struct Question {
    const char* Text;
    const char* Title;
    bool NoChangesNothing; // the player who says No plays on as before
};

inline constexpr Question resignation{"Do You Resign? and Make Me The Winner!!", "Do I win?", true};
inline constexpr Question nextGame{"Play Again?", "New Game", false};   // after a resignation
inline constexpr Question anotherGame{"Play Again", "New Game", false}; // after a claim or a guess

std::span<const Question> Questions();

Answer Ask(Game& game, const Question& question);
