// A player for measured games: always the same, so that only the computer's level makes the
// difference.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

struct Board;

// A click on a control, and the number of its box: 0 for a single control.
struct Move {
    std::string_view control;
    std::int16_t index = 0;
};

// Knows every eighth word of the word list, from the best known to the least. Lays out the first of
// them that its letters make, with one letter exchanged if need be, and passes when there is none.
class SimplePlayer {
public:
    // Throws LexiconError when the word list cannot be read.
    explicit SimplePlayer(const std::filesystem::path& lexicon);

    // The clicks of one whole go. The last one ends it.
    std::vector<Move> PlanGo(const Board& board) const;

private:
    std::vector<std::string> vocabulary_;
};
