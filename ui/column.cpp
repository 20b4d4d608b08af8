#include "ui/column.h"

#include "ui/part.h"
#include "ui/roster.h"

#include <algorithm>

namespace {

constexpr int margin = 30;
constexpr int gap = 45;

struct Cell {
    const char* Frame;
    bool Beside = false; // the frame before it
};

constexpr Cell column[]
    = {{"Frame3"}, {"Frame4"}, {"Frame5"}, {"Frame2"}, {"Frame9"}, {"Frame7", true}};

// How wide the line of frames is that begins with this cell.
int WidthOfLine(const Cell* cell)
{
    int width = FindPart(cell->Frame).Row->At.Width;
    for (++cell; cell != std::end(column) && cell->Beside; ++cell)
        width += 2 * margin + FindPart(cell->Frame).Row->At.Width;
    return width;
}

} // namespace

double WidthOfColumn()
{
    int widest = 0;
    for (const Cell& cell : column)
        widest = cell.Beside ? widest : std::max(widest, WidthOfLine(&cell));
    return widest + 2 * margin;
}

TwipRect PlaceInColumn(const Part& frame)
{
    TwipRect place;
    double nextTop = 0;
    for (const Cell& cell : column) {
        const Place& at = FindPart(cell.Frame).Row->At;
        if (cell.Beside) {
            place.Left += place.Width + 2 * margin;
        } else {
            place.Left = (WidthOfColumn() - WidthOfLine(&cell)) / 2;
            place.Top = nextTop;
        }
        place.Width = at.Width;
        place.Height = at.Height;
        nextTop = std::max(nextTop, place.Top + place.Height + gap);
        if (&FindPart(cell.Frame) == &frame)
            return place;
    }
    return {};
}

double HeightOfColumn()
{
    double height = 0;
    for (const Cell& cell : column) {
        const TwipRect place = PlaceInColumn(FindPart(cell.Frame));
        height = std::max(height, place.Top + place.Height);
    }
    return height + margin;
}
