#include "ui/places.h"

#include "game/board.h"
#include "ui/part.h"
#include "ui/roster.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int sharedLine = 15; // twips by which the boxes of a row overlap

// Its field, where the board says the place of the part.
const Panel* PanelOf(const Part& part, const Board& board)
{
    const auto* field = part.Shows == nullptr ? nullptr : std::get_if<Panel Board::*>(part.Shows);
    return field == nullptr ? nullptr : &(board.**field);
}

int Pixels(double twips, const Scale& scale)
{
    return static_cast<int>(std::lround(twips * scale.PixelsPerTwip));
}

} // namespace

bool Contains(const TwipRect& outer, const TwipRect& inner)
{
    return inner.Left >= outer.Left && inner.Top >= outer.Top
        && inner.Left + inner.Width <= outer.Left + outer.Width
        && inner.Top + inner.Height <= outer.Top + outer.Height;
}

TwipRect PlaceInFrame(const Part& part)
{
    const Control& row = *part.Row;
    const int steps = part.Number - row.Boxes.value_or(BoxNumbers()).First;
    return {1.0 * (row.At.Left + steps * row.Next.Right),
        1.0 * (row.At.Top + steps * row.Next.Down), 1.0 * row.At.Width, 1.0 * row.At.Height};
}

TwipRect PlaceInTwips(const Part& part, const Board& board)
{
    if (const Panel* panel = PanelOf(part, board))
        return {panel->Left, panel->Top, panel->Width, panel->Height};
    const TwipRect at = PlaceInFrame(part);
    const TwipRect frame = part.Frame == nullptr ? TwipRect() : PlaceInTwips(*part.Frame, board);
    return {frame.Left + at.Left, frame.Top + at.Top, at.Width, at.Height};
}

int LineWidth(const Scale& scale)
{
    return std::max(1, static_cast<int>(sharedLine * scale.PixelsPerTwip + 0.01));
}

PixelRect PlaceOf(const Part& part, const Board& board, const Scale& scale)
{
    const int left = part.Frame == nullptr ? scale.Left : 0;
    const int top = part.Frame == nullptr ? scale.Top : 0;
    if (const Panel* panel = PanelOf(part, board))
        return {left + Pixels(panel->Left, scale), top + Pixels(panel->Top, scale),
            Pixels(panel->Width, scale), Pixels(panel->Height, scale)};
    const TwipRect at = PlaceInFrame(part);
    const int line = LineWidth(scale);
    // First and last lines are rounded, and not sizes.
    const int first = Pixels(at.Left, scale);
    const int firstDown = Pixels(at.Top, scale);
    return {left + first, top + firstDown,
        Pixels(at.Left + at.Width - sharedLine, scale) + line - first,
        Pixels(at.Top + at.Height - sharedLine, scale) + line - firstDown};
}

PixelRect PlaceInWindow(const Part& part, const Board& board, const Scale& scale)
{
    PixelRect place = PlaceOf(part, board, scale);
    for (const Part* frame = part.Frame; frame != nullptr; frame = frame->Frame) {
        const PixelRect around = PlaceOf(*frame, board, scale);
        place.Left += around.Left;
        place.Top += around.Top;
    }
    return place;
}
