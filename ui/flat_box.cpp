#include "ui/flat_box.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace {

// The first colour at this share, the rest of the second.
QColor Blend(const QColor& colour, const QColor& rest, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return QColor(mix(colour.red(), rest.red()), mix(colour.green(), rest.green()),
        mix(colour.blue(), rest.blue()));
}

// Filled bars stay crisp at every scale of the screen, where a pen would blur. They are measured in
// whole dots of it: at a scale of 1.5 a bar of one pixel would be one dot here and two there.
void DrawOutline(QPainter& painter, const QRect& box, int thick, const QColor& colour)
{
    const QTransform toDots = painter.deviceTransform();
    const QRectF dots = toDots.mapRect(QRectF(box));
    const QPoint first(qRound(dots.left()), qRound(dots.top()));
    const QPoint end(qRound(dots.right()), qRound(dots.bottom()));
    const QTransform fromDots = toDots.inverted();
    const int bar = std::max(1, static_cast<int>(thick * toDots.m11()));
    const auto fill = [&](int left, int top, int right, int bottom) {
        const QRectF dotted(QPointF(left, top), QPointF(right, bottom));
        painter.fillRect(fromDots.mapRect(dotted), colour);
    };
    fill(first.x(), first.y(), end.x(), first.y() + bar);
    fill(first.x(), end.y() - bar, end.x(), end.y());
    fill(first.x(), first.y(), first.x() + bar, end.y());
    fill(end.x() - bar, first.y(), end.x(), end.y());
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
