#include "ui/flat_box.h"

#include <QPainter>
#include <QWidget>

namespace {

// The first colour at this share, the rest of the second.
QColor Blend(const QColor& colour, const QColor& rest, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return QColor(mix(colour.red(), rest.red()), mix(colour.green(), rest.green()),
        mix(colour.blue(), rest.blue()));
}

// Filled bars stay crisp at every scale of the screen, where a pen would blur.
void DrawOutline(QPainter& painter, const QRect& box, int thick, const QColor& colour)
{
    painter.fillRect(box.left(), box.top(), box.width(), thick, colour);
    painter.fillRect(box.left(), box.bottom() + 1 - thick, box.width(), thick, colour);
    painter.fillRect(box.left(), box.top(), thick, box.height(), colour);
    painter.fillRect(box.right() + 1 - thick, box.top(), thick, box.height(), colour);
}

} // namespace

void DrawFlatBox(QWidget& widget, const FlatBox& box)
{
    const QPalette& palette = widget.palette();
    const QColor own = palette.color(QPalette::Active, box.ground);
    QColor ink = palette.color(QPalette::Active, box.ink);
    QColor ground = own;
    if (!widget.isEnabled()) {
        // Out of play, and still to be read, on a dark desktop too.
        ground = Blend(ground, QColor(200, 200, 200), 0.3);
        ink = Blend(ink, ground, 0.5);
    } else if (box.pressed) {
        ground = ground.darker(115);
    }

    QPainter painter(&widget);
    painter.fillRect(widget.rect(), ground);
    DrawEdge(painter, widget, own);
    painter.setPen(box.faint ? Blend(ink, ground, 0.35) : ink);
    painter.drawText(widget.rect(), Qt::AlignCenter | Qt::TextDontClip, box.text);
}

void DrawEdge(QPainter& painter, const QWidget& widget, const QColor& ground)
{
    const QColor line = Blend(ground.value() > 127 ? Qt::black : Qt::white, ground, 0.65);
    DrawOutline(painter, widget.rect(), 1, line);
    if (widget.hasFocus())
        DrawFocusRing(painter, widget.rect());
}

void DrawFocusRing(QPainter& painter, const QRect& box)
{
    DrawOutline(painter, box, 2, Qt::black);
    DrawOutline(painter, box.adjusted(2, 2, -2, -2), 1, Qt::white);
}
