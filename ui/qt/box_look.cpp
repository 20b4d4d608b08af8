#include "ui/qt/box_look.h"

#include <QPainter>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <tuple>

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

    // Each goes dot by dot up to the other, so that they meet in a mitre.
    void TopAndLeft(const QColor& colour)
    {
        for (int dot = 0; dot < line_; ++dot) {
            Fill(first_.x() + dot, first_.y() + dot, end_.x() - dot, first_.y() + dot + 1, colour);
            Fill(first_.x() + dot, first_.y() + dot, first_.x() + dot + 1, end_.y() - dot, colour);
        }
    }
    void BottomAndRight(const QColor& colour)
    {
        for (int dot = 0; dot < line_; ++dot) {
            Fill(first_.x() + dot, end_.y() - dot - 1, end_.x() - dot, end_.y() - dot, colour);
            Fill(end_.x() - dot - 1, first_.y() + dot, end_.x() - dot, end_.y() - dot, colour);
        }
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

// What stands up from the board has a lip that many lines wide.
int LipOf(const QWidget& widget)
{
    const int line = LineOf(widget);
    return (widget.height() >= 28 * line ? 3 : 2) * line;
}

bool IsPale(const QColor& ground)
{
    return ground.value() > 127;
}

// Towards black on a pale ground, towards white on a dark one.
QColor Tone(const QColor& ground, double onPale, double onDark)
{
    return IsPale(ground) ? Blend(Qt::black, ground, onPale) : Blend(Qt::white, ground, onDark);
}

QColor LineOn(const QColor& ground)
{
    return Tone(ground, 0.65, 0.65);
}

// Of the rim around what lies lower, at its upper left.
QColor ShadowOn(const QColor& ground)
{
    return Blend(Qt::black, ground, IsPale(ground) ? 0.46 : 0.8);
}

QRect Inside(const QRect& box, int by)
{
    return box.adjusted(by, by, -by, -by);
}

bool IsHovered(const QWidget& widget, const BoxLook& look)
{
    return look.edge == Edge::Raised && widget.underMouse() && widget.isEnabled()
        && widget.window()->property(hover).toBool();
}

// What lies between the line around the box and its ground.
void DrawRelief(QPainter& painter, const QWidget& widget, const QColor& ground, const BoxLook& look)
{
    const int line = LineOf(widget);
    const QRect inner = Inside(widget.rect(), line);
    if (look.hollow || look.pressed)
        Bars(painter, inner, LipOf(widget)).TopAndLeft(ShadowOn(ground));
    else if (look.edge == Edge::Raised)
        Bars(painter, inner, LipOf(widget)).BottomAndRight(Tone(ground, 0.46, 0.36));
    else if (look.edge == Edge::Sunken)
        Bars(painter, inner, 2 * line).TopAndLeft(Blend(ShadowOn(ground), ground, 0.6));
}

// A raised letter stands in the middle of what the lip leaves, and goes down with its tile.
QRect RoomForText(const QWidget& widget, const BoxLook& look)
{
    const int lip = look.edge == Edge::Raised ? LipOf(widget) : 0;
    return look.hollow || look.pressed ? widget.rect().adjusted(lip, lip, 0, 0)
                                       : widget.rect().adjusted(0, 0, -lip, -lip);
}

// In the middle, but not below the lip: low boxes have letters that are as high.
void DrawLetters(QPainter& painter, const QWidget& widget, const BoxLook& look)
{
    const QRect room = RoomForText(widget, look);
    const QFontMetrics metrics = painter.fontMetrics();
    const int baseline = (room.height() + metrics.ascent() - metrics.descent()) / 2;
    const int lowest = baseline + metrics.tightBoundingRect(look.text).bottom();
    const int up = std::max(0, lowest - (room.height() - 1 - LineOf(widget)));
    painter.drawText(room.translated(0, -up), Qt::AlignCenter | Qt::TextDontClip, look.text);
}

} // namespace

BoxLook BoxLookOf(const Look& look)
{
    const bool hollow = look.Text.empty() && !look.Faint.empty();
    return {.text = QString::fromStdString(hollow ? look.Faint : look.Text),
        .edge = look.Border,
        .mark = look.Marked,
        .faded = look.Faded,
        .clear = look.Clear,
        .hollow = hollow};
}

QColor Blend(const QColor& colour, const QColor& rest, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a * share + b * (1 - share)); };
    return QColor(mix(colour.red(), rest.red()), mix(colour.green(), rest.green()),
        mix(colour.blue(), rest.blue()));
}

void DrawBox(QWidget& widget, const BoxLook& look, QPalette::ColorRole groundRole,
    QPalette::ColorRole inkRole)
{
    const QPalette& palette = widget.palette();
    QColor ground = palette.color(QPalette::Active, groundRole);
    QColor ink = palette.color(QPalette::Active, inkRole);
    if (look.faded) {
        // Still to be read: a pale ground stays one on a dark desktop.
        const QColor window = palette.color(QPalette::Active, QPalette::Window);
        ground = Blend(ground, IsPale(ground) ? QColor(225, 225, 225) : window, 0.45);
        if (!look.clear)
            ink = Blend(ink, ground, 0.6);
    }
    if (look.hollow)
        ink = Blend(ink, ground, 0.5);

    QPainter painter(&widget);
    painter.fillRect(widget.rect(), ground);
    painter.setPen(ink);
    DrawLetters(painter, widget, look);
    DrawEdge(painter, widget, ground, look);
}

void DrawEdge(QPainter& painter, const QWidget& widget, const QColor& ground, const BoxLook& look)
{
    const int line = LineOf(widget);
    const QRect box = widget.rect();
    DrawRelief(painter, widget, ground, look);
    // What is sunken has a quieter line where lines are light.
    const bool quiet = look.edge == Edge::Sunken && !IsPale(ground);
    DrawOutline(painter, box, line, quiet ? Blend(Qt::white, ground, 0.4) : LineOn(ground));
    if (look.edge == Edge::OutOfPlay)
        Bars(painter, box, line).Perforate(ground);
    if (look.heavy && look.edge == Edge::Raised)
        DrawOutline(painter, box, 2 * line, LineOn(ground));
    if (IsHovered(widget, look))
        DrawOutline(painter, box, 2 * line, IsPale(ground) ? Qt::black : Qt::white);
    const bool ring = HasRing(widget);
    DrawMark(painter, ring ? Inside(box, 3 * line) : box, line, ground, look.mark);
    if (ring)
        DrawFocusRing(painter, box, line);
}

void DrawMark(QPainter& painter, const QRect& box, int line, const QColor& ground, Mark mark)
{
    using Row = std::tuple<Mark, int, QColor, QColor>; // how many lines, and which on a dark ground
    static const Row rows[] = {
        {Mark::Known, 2, {176, 80, 0}, {255, 160, 64}},
        {Mark::Foreign, 2, {200, 0, 0}, {255, 110, 110}},
        {Mark::Next, 3, {0, 72, 186}, {120, 180, 255}},
        {Mark::Refused, 4, {200, 0, 0}, {255, 110, 110}},
        {Mark::Changed, 3, {0, 72, 186}, {120, 180, 255}},
    };
    for (const auto& [is, lines, onPale, onDark] : rows) {
        if (is == mark)
            DrawOutline(painter, box, lines * line, IsPale(ground) ? onPale : onDark);
    }
    if (mark == Mark::Foreign) // told from a known letter by more than its colour
        Bars(painter, box, 2 * line).Perforate(ground);
}

void DrawTray(QPainter& painter, const QRect& tray, int line, const QColor& ground)
{
    painter.fillRect(tray, Blend(Qt::black, ground, IsPale(ground) ? 0.16 : 0.4));
    Bars bars(painter, tray, line);
    bars.BottomAndRight(Blend(Qt::white, ground, IsPale(ground) ? 0.8 : 0.2));
    bars.TopAndLeft(ShadowOn(ground));
}

void DrawFocusRing(QPainter& painter, const QRect& box, int line)
{
    DrawOutline(painter, box, 2 * line, Qt::black);
    DrawOutline(painter, Inside(box, 2 * line), line, Qt::white);
}

bool HasRing(const QWidget& widget)
{
    return widget.hasFocus() && widget.window()->property(rings).toBool();
}

void LetShow(QWidget& window, const char* what, bool shows)
{
    if (window.property(what).toBool() == shows)
        return;
    window.setProperty(what, shows);
    window.update();
}

void DrawOutline(QPainter& painter, const QRect& box, int line, const QColor& colour)
{
    Bars bars(painter, box, line);
    bars.TopAndLeft(colour);
    bars.BottomAndRight(colour);
}
