// The three hidden words: the row that shows what is known of each, and the row that the player's
// guess of it is typed into.
#pragma once

#include "game/board.h"

#include <algorithm>
#include <iterator>
#include <string_view>

struct HiddenWord {
    int Number; // in Board::HiddenWords
    LetterRow Board::* Shown;
    LetterRow Board::* Guess;
    std::string_view ShownControl; // "The Words (Buy Letters)"
    std::string_view GuessControl; // the boxes below "Make A Guess"
};

inline constexpr HiddenWord hiddenWords[3] = {
    {1, &Board::Word1, &Board::Text6, "Word1", "Text6"},
    {2, &Board::Word2, &Board::Text7, "Word2", "Text7"},
    {3, &Board::Word3, &Board::Text8, "Word3", "Text8"},
};

// The word whose guess is typed into that row, or nullptr.
constexpr const HiddenWord* FindGuessed(std::string_view guessControl)
{
    for (const HiddenWord& word : hiddenWords) {
        if (word.GuessControl == guessControl)
            return &word;
    }
    return nullptr;
}
