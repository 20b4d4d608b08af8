// What is new on the board, in words: a player who does not see it is told what has changed, once.
#pragma once

#include "game/board.h"

#include <QStringList>

// What the player has been told of the board. It is for the ear alone: no rule and no drawing reads
// it.
struct Heard {
    LetterRow MyLetters, Text1, SwapLetters, Text2;
    Numbered<LetterRow, 1, 3> Words; // what is shown of the hidden words
    std::string HeldLetter;
    std::int16_t HeldIndex = 0;
    std::int16_t LayOutNext = 0;
    std::int16_t Level = 0;
    std::string YourScore, MyScore, Bonus;
    std::string Caption;
    std::size_t Played = 0;      // words on "Used Words"
    bool CanSwap = false;        // the swap row is in play
    bool RedLetterTurns = false; // with the player's row
    bool YourGo = false;
    bool LevelPanel = false; // is on view
    bool GameFrames = false; // are on view
};

Heard Hear(const Board& board);

// The words that have been played since, with their points.
QStringList PlayedSince(const Heard& before, const Board& board);

// Everything else that has changed. After a go a row is told as a whole; a move of the player's is
// told as the move that it was.
QStringList NewsSince(const Heard& told, const Heard& now, bool afterGo);

// Both scores.
QString ScoresOf(const Heard& heard);
