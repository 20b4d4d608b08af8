#include "ui/places.h"

#include "game/board.h"
#include "ui/roster.h"
#include "ui/titled_frame.h"
#include "ui/used_words_list.h"

#include <QWidget>

#include <algorithm>

namespace {

using PanelField = Panel Board::*;

constexpr int sharedLine = 15; // twips by which the boxes of a row overlap

// Of an edge, in whole pixels.
int LineWidth(const Scale& scale)
{
    return std::max(1, static_cast<int>(sharedLine * scale.PixelsPerTwip + 0.01));
}

QRect PlaceOf(const BuiltControl& control, const Scale& scale)
{
    const Control& row = *control.Row;
    const int steps = control.Number - row.Boxes.value_or(BoxNumbers()).First;
    const Place at = {row.At.Left + steps * row.Next.Right, row.At.Top + steps * row.Next.Down,
        row.At.Width, row.At.Height};
    const auto pixels = [&](int twips) { return qRound(twips * scale.PixelsPerTwip); };
    const int line = LineWidth(scale);
    // First and last lines are rounded and not sizes: boxes that share a line share its pixels at
    // every scale.
    const QPoint first(pixels(at.Left), pixels(at.Top));
    const QPoint last(
        pixels(at.Left + at.Width - sharedLine), pixels(at.Top + at.Height - sharedLine));
    const QRect place(first, last + QPoint(line - 1, line - 1));
    return *row.In == '\0' ? place.translated(scale.Origin) : place;
}

// Its field, where the board says the place of the control.
const PanelField* PanelOf(const BuiltControl& control)
{
    return control.Shows != nullptr ? std::get_if<PanelField>(control.Shows) : nullptr;
}

} // namespace

void PlaceControls(Controls& controls, const Scale& scale)
{
    const int line = LineWidth(scale);
    for (BuiltControl& control : controls) {
        if (PanelOf(control) == nullptr)
            control.Widget->setGeometry(PlaceOf(control, scale));
        if (control.Row->Is == Kind::Frame)
            As<TitledFrame>(control).SetLine(line);
        else if (control.Row->Is == Kind::List)
            As<UsedWordsList>(control).setLineWidth(line);
        else if (HasDrawnEdge(control.Row->Is))
            control.Widget->setContentsMargins(line, line, line, line);
        control.HasFont = false;
    }
}

void PlacePanels(const Controls& controls, const Board& board, const Scale& scale)
{
    const auto pixels = [&](double twips) { return qRound(twips * scale.PixelsPerTwip); };
    for (const BuiltControl& control : controls) {
        const PanelField* field = PanelOf(control);
        if (field == nullptr)
            continue;
        const Panel& panel = board.**field;
        const QRect place(
            pixels(panel.Left), pixels(panel.Top), pixels(panel.Width), pixels(panel.Height));
        control.Widget->setGeometry(place.translated(scale.Origin));
    }
}
