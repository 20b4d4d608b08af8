#include "ui/places.h"

#include "game/board.h"
#include "ui/roster.h"

#include <QWidget>

namespace {

QRect PlaceOf(const BuiltControl& control, double pixelsPerTwip)
{
    const Control& row = *control.Row;
    const int steps = control.Number - row.Boxes.value_or(BoxNumbers()).First;
    const Place at = {row.At.Left + steps * row.Next.Right, row.At.Top + steps * row.Next.Down,
        row.At.Width, row.At.Height};
    const auto pixels = [=](int twips) { return qRound(twips * pixelsPerTwip); };
    // First and last pixels are rounded and not sizes: boxes that share a line, 15 twips wide,
    // share its pixel at every scale.
    return QRect(QPoint(pixels(at.Left), pixels(at.Top)),
        QPoint(pixels(at.Left + at.Width - 15), pixels(at.Top + at.Height - 15)));
}

} // namespace

void PlaceControls(Controls& controls, const Board& board, double pixelsPerTwip)
{
    for (BuiltControl& control : controls) {
        if (control.Shows != nullptr && std::holds_alternative<Panel Board::*>(*control.Shows))
            PlacePanel(
                *control.Widget, board.*std::get<Panel Board::*>(*control.Shows), pixelsPerTwip);
        else
            control.Widget->setGeometry(PlaceOf(control, pixelsPerTwip));
        control.HasFont = false;
    }
}

void PlacePanel(QWidget& widget, const Panel& panel, double pixelsPerTwip)
{
    const auto pixels = [=](double twips) { return qRound(twips * pixelsPerTwip); };
    widget.setGeometry(
        pixels(panel.Left), pixels(panel.Top), pixels(panel.Width), pixels(panel.Height));
}
