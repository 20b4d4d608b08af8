#include "ui/qt/box_look.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace {

// Filled bars stay crisp at every scale of the screen, where a pen would blur. They are measured in
// whole dots of it: at a scale of 1.5 a bar of one pixel would be one dot here and two there.
class Bars {
public:
    Bars(QPainter& painter, const QRect& box, int line)
        : painter_(painter)
        , fromDots_(painter.deviceTransform().inverted())
        , line_(std::max(1, static_cast<int>(line * painter.deviceTransform().m11())))
    {
        const QRectF dots = painter.deviceTransform().mapRect(QRectF(box));
        first_ = {qRound(dots.left()), qRound(dots.top())};
        end_ = {qRound(dots.right()), qRound(dots.bottom())};
    }

    void TopAndLeft(const QColor& colour)
    {
        Fill(first_.x(), first_.y(), end_.x(), first_.y() + line_, colour);
        Fill(first_.x(), first_.y(), first_.x() + line_, end_.y(), colour);
    }
    void BottomAndRight(const QColor& colour)
    {
        Fill(first_.x(), end_.y() - line_, end_.x(), end_.y(), colour);
        Fill(end_.x() - line_, first_.y(), end_.x(), end_.y(), colour);
    }

    // Gaps in the line, on all sides alike.
    void Perforate(const QColor& colour)
    {
        const int step = 3 * line_;
        for (int x = first_.x() + step; x < end_.x() - line_; x += 2 * step) {
            Fill(x, first_.y(), std::min(x + step, end_.x() - line_), first_.y() + line_, colour);
            Fill(x, end_.y() - line_, std::min(x + step, end_.x() - line_), end_.y(), colour);
        }
        for (int y = first_.y() + step; y < end_.y() - line_; y += 2 * step) {
            Fill(first_.x(), y, first_.x() + line_, std::min(y + step, end_.y() - line_), colour);
            Fill(end_.x() - line_, y, end_.x(), std::min(y + step, end_.y() - line_), colour);
        }
    }

private:
    void Fill(int left, int top, int right, int bottom, const QColor& colour)
    {
        painter_.fillRect(
            fromDots_.mapRect(QRectF(QPointF(left, top), QPointF(right, bottom))), colour);
    }

    QPainter& painter_;
    QTransform fromDots_;
    int line_;
    QPoint first_;
    QPoint end_;
};

int LineOf(const QWidget& widget)
{
    return std::max(1, widget.contentsMargins().left());
}

QColor LineOn(const QColor& ground)
{
    return Blend(ground.value() > 127 ? Qt::black : Qt::white, ground, 0.65);
}

} // namespace

QColor Blend(const QColor& colour, const QColor& rest, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return QColor(mix(colour.red(), rest.red()), mix(colour.green(), rest.green()),
        mix(colour.blue(), rest.blue()));
}

void DrawBox(QWidget& widget, const BoxLook& look)
{
    const QPalette& palette = widget.palette();
    const QColor own = palette.color(QPalette::Active, look.ground);
    QColor ink = palette.color(QPalette::Active, look.ink);
    QColor ground = own;
    if (look.faded) {
        // Still to be read: a pale ground stays one on a dark desktop.
        const QColor window = palette.color(QPalette::Active, QPalette::Window);
        ground = Blend(ground, ground.value() > 127 ? QColor(225, 225, 225) : window, 0.45);
        ink = Blend(ink, ground, 0.6);
    } else if (look.pressed) {
        ground = ground.darker(115);
    }

    QPainter painter(&widget);
    painter.fillRect(widget.rect(), ground);
    DrawEdge(painter, widget, look.faded ? ground : own, look.edge);
    if (look.heavy && look.edge == Edge::Raised)
        DrawOutline(painter, widget.rect(), 2 * LineOf(widget), LineOn(ground));
    painter.setPen(look.faint ? Blend(ink, ground, 0.35) : ink);
    painter.drawText(widget.rect(), Qt::AlignCenter | Qt::TextDontClip, look.text);
    if (widget.hasFocus())
        DrawFocusRing(painter, widget.rect(), LineOf(widget));
}

void DrawEdge(QPainter& painter, const QWidget& widget, const QColor& ground, Edge edge)
{
    const int line = LineOf(widget);
    const QRect box = widget.rect();
    DrawOutline(painter, box, line, LineOn(ground));
    if (edge == Edge::OutOfPlay)
        Bars(painter, box, line).Perforate(ground);
    if (edge == Edge::Raised) {
        Bars inner(painter, box.adjusted(line, line, -line, -line), line);
        inner.BottomAndRight(Blend(Qt::black, ground, 0.3));
        inner.TopAndLeft(Blend(Qt::white, ground, ground.value() > 127 ? 0.75 : 0.2));
    }
}

void DrawFocusRing(QPainter& painter, const QRect& box, int line)
{
    DrawOutline(painter, box, 2 * line, Qt::black);
    DrawOutline(painter, box.adjusted(2 * line, 2 * line, -2 * line, -2 * line), line, Qt::white);
}

void DrawOutline(QPainter& painter, const QRect& box, int line, const QColor& colour)
{
    Bars bars(painter, box, line);
    bars.TopAndLeft(colour);
    bars.BottomAndRight(colour);
}
