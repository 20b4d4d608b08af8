#include "ui/message.h"

#include "game/board.h"
#include "game/questions.h"
#include "ui/part.h"

#include <array>

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

namespace {

// From the client area of the window, in twips.
TwipRect PlaceNamed(const char* name, int number, const Board& board)
{
    return PlaceInTwips(FindPart(name, number), board);
}

// The rooms that messages may stand in, the first that fits before the others.
std::array<TwipRect, 2> Rooms(const Board& board)
{
    // Down from the buttons that end a go to the computer's letters.
    const TwipRect buttons = PlaceNamed("Frame10", 0, board);
    const TwipRect column = PlaceNamed("Frame4", 0, board);
    const TwipRect letters = PlaceNamed("MyLetters", 1, board);
    // Right of the guess, down from the bonus.
    const TwipRect guess = PlaceNamed("Text8", lettersPerWord, board);
    const TwipRect bonus = PlaceNamed("Text9", 0, board);
    const TwipRect used = PlaceNamed("Frame7", 0, board);
    const double left = guess.Left + guess.Width;
    const double top = bonus.Top + bonus.Height;
    return {TwipRect{column.Left, buttons.Top, column.Width, letters.Top - buttons.Top},
        TwipRect{left, top, used.Left + used.Width - left, used.Top + used.Height - top}};
}

PixelRect InPixels(const TwipRect& twips, const Scale& scale)
{
    const auto pixels = [&scale](double of) { return static_cast<int>(of * scale.PixelsPerTwip); };
    return {scale.Left + pixels(twips.Left), scale.Top + pixels(twips.Top), pixels(twips.Width),
        pixels(twips.Height)};
}

bool Holds(const PixelRect& rect, PixelPoint point)
{
    return point.Left >= rect.Left && point.Left < rect.Left + rect.Width && point.Top >= rect.Top
        && point.Top < rect.Top + rect.Height;
}

} // namespace

PixelRect PlaceOfMessage(const Message& message, const Board& board, const Scale& scale,
    const std::function<PixelSize(int widest)>& measure, std::optional<PixelPoint> pointer)
{
    PixelRect place;
    for (const TwipRect& twips : Rooms(board)) {
        const PixelRect room = InPixels(twips, scale);
        const PixelSize size = measure(room.Width);
        place = {room.Left + (room.Width - size.Width) / 2, room.Top, size.Width, size.Height};
        const bool ends = message.Asks && !message.NoIsHarmless;
        const bool fits = size.Width <= room.Width && size.Height <= room.Height;
        if (fits && !(ends && pointer && Holds(place, *pointer)))
            break;
    }
    return place;
}
