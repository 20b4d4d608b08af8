// The rules of the word list and of the computer's search once more, step by step and with no
// thought of speed: the yardstick for the timings, and a second opinion on the answers.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

struct Board;
struct Game;

namespace plain {

// One word a line; the other forms of a record are left to the game's own reader.
std::int16_t CountWords(const std::filesystem::path& list, std::string& currentWord);
void PickRandomWord(const std::filesystem::path& list, std::int16_t wordCount, float draw,
    std::string& currentWord);
void CollectCandidates(const std::filesystem::path& list, std::int16_t wordCount,
    const std::string& pool, std::vector<std::string>& candidates);
bool FindWord(const std::filesystem::path& list, const std::string& word);

// From the count of the words to the list of candidates, for a list that makes a game.
void StartGame(Game& game, std::vector<std::string>& candidates);

// The word that the computer finds on its go, "" when there is none. The rows come back as they
// were.
std::string SearchAllExchanges(Board& board);

} // namespace plain
