#include "ui/web/roster_facts.h"

#include "game/board.h"
#include "ui/column.h"
#include "ui/part.h"
#include "ui/places.h"
#include "ui/roster.h"
#include "ui/session.h"
#include "ui/web/script.h"
#include "ui/window_size.h"

#include <variant>

namespace {

void TellColour(int place, const char* field, const std::optional<Colour>& colour)
{
    if (colour)
        TellNumber(place, field, colour->Red << 16 | colour->Green << 8 | colour->Blue);
}

void TellFont(int place, const Lettering& font)
{
    TellNumber(place, "face", static_cast<double>(font.Name));
    TellNumber(place, "points", font.Points);
    TellNumber(place, "bold", font.Bold ? 1 : 0);
}

void TellFacts(const Part& part)
{
    const int place = static_cast<int>(IndexOf(part));
    const Control& row = *part.Row;
    TellNumber(place, "kind", static_cast<double>(row.Is));
    TellText(place, "row", row.Name);
    TellNumber(place, "number", part.Number);
    TellNumber(
        place, "frame", part.Frame == nullptr ? -1 : static_cast<double>(IndexOf(*part.Frame)));
    TellText(place, "caption", row.Caption);
    TellText(place, "toolTip", row.ToolTip);
    TellNumber(place, "drags", Session::IsForDragging(part) ? 1 : 0);
    TellNumber(place, "heavy", row.Heavy ? 1 : 0);
    TellFont(place, row.Font);
    TellColour(place, "ground", row.Background);
    TellColour(place, "ink", row.Text);
    if (!PlaceIsTheBoards(part))
        TellPlace(part, PlaceInFrame(part));
    if (part.Frame == nullptr) {
        const TwipRect column = PlaceInColumn(part);
        TellNumber(place, "columnLeft", column.Left);
        TellNumber(place, "columnTop", column.Top);
    }
}

} // namespace

bool PlaceIsTheBoards(const Part& part)
{
    return part.Shows != nullptr && std::holds_alternative<Panel Board::*>(*part.Shows);
}

void TellPlace(const Part& part, const TwipRect& at)
{
    const int place = static_cast<int>(IndexOf(part));
    TellNumber(place, "left", at.Left);
    TellNumber(place, "top", at.Top);
    TellNumber(place, "width", at.Width);
    TellNumber(place, "height", at.Height);
}

void TellRoster()
{
    for (const Part& part : Parts())
        TellFacts(part);
    constexpr int board = -1;
    TellNumber(board, "width", BoardSize().Width);
    TellNumber(board, "height", BoardSize().Height);
    TellNumber(board, "columnWidth", WidthOfColumn());
    TellNumber(board, "columnHeight", HeightOfColumn());
}
