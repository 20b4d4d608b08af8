// A whole game with no window, the simple player against the computer: the same everywhere for the
// same seed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

class SimplePlayer;

struct PlayedGame {
    int candidates = 0;    // as the title of the window tells it
    int goes = 0;          // of the computer, one behind each of the player's
    int words = 0;         // played by the computer
    double points = 0;     // earned by them
    int wordsOfPlayer = 0; // accepted
    bool claimed = false;  // the computer's claim ended the game
};

// Takes the story of a game line by line: clicks, messages, and the board behind every go.
using Story = std::function<void(const std::string& line)>;

// Level 1 to 6, seed 0 to 2^24 - 1. The game ends with the computer's claim or after `mostGoes`.
// Throws std::runtime_error with the game's own message when no game can be made of the word list.
PlayedGame PlayGame(const std::filesystem::path& lexicon, const SimplePlayer& player,
    std::int16_t level, std::uint32_t seed, int mostGoes, const Story& story);

// Sums stories up in one number (FNV-1a, 64 bits): a change of play anywhere changes it.
class Fingerprint {
public:
    void Add(std::string_view line);
    std::string Text() const; // 16 hexadecimal digits

private:
    std::uint64_t value_ = 0xCBF29CE484222325;
};
