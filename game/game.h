// The context that every handler takes. It owns nothing but the place of the word list.
#pragma once

#include <filesystem>

struct Board;
class GameView;
class Platform;

struct Game {
    Board& board;                  // all that is true of the game
    GameView& view;                // messages, questions, repaint, end
    Platform& platform;            // chance and the clock
    std::filesystem::path lexicon; // where the word list is
};
