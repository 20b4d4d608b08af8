// A message as a front end shows it: what it says, and which answers the keys give.
#pragma once

#include "ui/places.h"

#include <functional>
#include <optional>
#include <string>

struct Message {
    std::string Text;
    std::string Title;
    bool Asks = false; // Yes and No, else OK

    // Enter and Space answer No, and Escape and closing the box do: of a question whose No changes
    // nothing. Escape and closing answer OK too; to other questions they are no answer.
    bool NoIsHarmless = false;
    bool EscapeAnswers() const { return !Asks || NoIsHarmless; }
};

Message Statement(const std::string& text, const std::string& title);
Message AskedQuestion(const std::string& text, const std::string& title);

// Where a message stands, with its frame, in pixels of the window. Measure gives the size that it
// needs when it is no wider than so many pixels. It lies over the buttons that end a go, which do
// nothing meanwhile, so that the hand stays where it is; where it does not fit there, over the used
// words. No letter row, hidden word, guess or score is covered. The pointer, where there is one,
// never is over a question whose No ends the program.
PixelRect PlaceOfMessage(const Message& message, const Board& board, const Scale& scale,
    const std::function<PixelSize(int widest)>& measure, std::optional<PixelPoint> pointer);
