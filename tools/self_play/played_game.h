// A whole game with no window, a simple player against the computer: the same everywhere for the
// same seed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

// Always the same, so that only the computer's level makes the difference. Knows every eighth word
// of the word list, from the best known to the least.
class SimplePlayer {
public:
    // Throws LexiconError when the word list cannot be read.
    explicit SimplePlayer(const std::filesystem::path& lexicon);

    const std::vector<std::string>& Vocabulary() const { return vocabulary_; }

private:
    std::vector<std::string> vocabulary_;
};

struct PlayedGame {
    int candidates = 0;    // as the title of the window tells it
    int goes = 0;          // of the computer, one after each of the player's
    int words = 0;         // played by the computer
    double points = 0;     // earned by them
    int wordsOfPlayer = 0; // accepted
    bool claimed = false;  // the computer's claim ended the game
};

// Takes the story of a game line by line: clicks, messages, and the board after every go.
using Story = std::function<void(const std::string& line)>;

// Level 1 to 6, seed 0 to 2^24 - 1. The game ends with the computer's claim or after `mostGoes`.
// Throws std::runtime_error with the game's own message when no game can be made of the word list.
PlayedGame PlayGame(const std::filesystem::path& lexicon, const SimplePlayer& player,
    std::int16_t level, std::uint32_t seed, int mostGoes, const Story& story);
