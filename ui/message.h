// A message as a front end shows it: what it says, and which answers the keys give.
#pragma once

#include "ui/places.h"

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

// The part of the board that messages may cover: no letters, scores or hidden words, and not "YOUR
// GO". In pixels of the window.
PixelRect RoomForMessages(const Board& board, const Scale& scale);

// Where a box of that size, in pixels, stands: its lower right corner is that of the room, and with
// it the place of its last button; moved so far that the whole box is on the screen, since the
// window may lie half off it. All in pixels of the screen.
PixelRect PlaceOfMessage(const PixelRect& room, int width, int height, const PixelRect& screen);

// The pixels between a message and the edges of its room.
inline constexpr int messageMargin = 8;
