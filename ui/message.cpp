#include "ui/message.h"

#include "game/questions.h"
#include "ui/part.h"

#include <algorithm>

Message Statement(const std::string& text, const std::string& title)
{
    return {.Text = text, .Title = title};
}

Message AskedQuestion(const std::string& text, const std::string& title)
{
    Message message{.Text = text, .Title = title, .Asks = true};
    for (const Question& question : Questions()) {
        if (text == question.Text && title == question.Title)
            message.NoIsHarmless = question.NoChangesNothing;
    }
    return message;
}

PixelRect RoomForMessages(const Board& board, const Scale& scale)
{
    const PixelRect words = PlaceInWindow(FindPart("Frame2"), board, scale);
    const PixelRect guess = PlaceInWindow(FindPart("Command7"), board, scale); // below the words
    const PixelRect used = PlaceInWindow(FindPart("Frame7"), board, scale);
    return {words.Left, guess.Top, used.Left + used.Width - words.Left,
        used.Top + used.Height - guess.Top};
}

PixelRect PlaceOfMessage(const PixelRect& room, int width, int height, const PixelRect& screen)
{
    const auto inReach = [](int at, int first, int last) { return std::max(first, std::min(at, last)); };
    return {inReach(room.Left + room.Width - messageMargin - width, screen.Left,
                screen.Left + screen.Width - width),
        inReach(room.Top + room.Height - messageMargin - height, screen.Top,
            screen.Top + screen.Height - height),
        width, height};
}
