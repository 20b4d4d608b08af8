#include "ui/qt/box_look.h"

#include <QPainter>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace {

constexpr const char* ringsShow = "ringsShow";
constexpr const char* hoverShows = "hoverShows";

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

    // The corners of the line alone.
    void Corners(const QColor& colour)
    {
        const int length = std::min(end_.x() - first_.x(), end_.y() - first_.y()) / 3;
        for (const int left : {first_.x(), end_.x() - length}) {
            Fill(left, first_.y(), left + length, first_.y() + line_, colour);
            Fill(left, end_.y() - line_, left + length, end_.y(), colour);
        }
        for (const int top : {first_.y(), end_.y() - length}) {
            Fill(first_.x(), top, first_.x() + line_, top + length, colour);
            Fill(end_.x() - line_, top, end_.x(), top + length, colour);
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

QColor LineOn(const QColor& ground)
{
    return Blend(IsPale(ground) ? Qt::black : Qt::white, ground, 0.65);
}

// Of what stands up: a tone between its line and its ground.
QColor LipOn(const QColor& ground)
{
    return Blend(IsPale(ground) ? Qt::black : Qt::white, ground, IsPale(ground) ? 0.42 : 0.3);
}

// Of the rim around what lies lower, at its upper left.
QColor ShadowOn(const QColor& ground)
{
    return Blend(Qt::black, ground, IsPale(ground) ? 0.42 : 0.8);
}

QRect Inside(const QRect& box, int by)
{
    return box.adjusted(by, by, -by, -by);
}

bool IsHovered(const QWidget& widget, const BoxLook& look)
{
    return look.edge == Edge::Raised && widget.underMouse() && widget.isEnabled()
        && widget.window()->property(hoverShows).toBool();
}

// What lies between the line around the box and its ground.
void DrawRelief(QPainter& painter, const QWidget& widget, const QColor& ground, const BoxLook& look)
{
    const int line = LineOf(widget);
    const QRect inner = Inside(widget.rect(), line);
    if (look.hollow || look.pressed)
        Bars(painter, inner, LipOf(widget)).TopAndLeft(ShadowOn(ground));
    else if (look.edge == Edge::Raised)
        Bars(painter, inner, LipOf(widget)).BottomAndRight(LipOn(ground));
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
    const bool pale = IsPale(ground);
    const QColor blue = pale ? QColor(0, 72, 186) : QColor(120, 180, 255);
    const QColor red = pale ? QColor(200, 0, 0) : QColor(255, 110, 110);
    const QColor orange = pale ? QColor(176, 80, 0) : QColor(255, 160, 64);
    switch (mark) {
    case Mark::None:
        break;
    case Mark::Known:
        DrawOutline(painter, box, 2 * line, orange);
        break;
    case Mark::Foreign:
        DrawOutline(painter, box, 2 * line, red);
        Bars(painter, box, 2 * line).Perforate(ground);
        break;
    case Mark::Next:
        DrawOutline(painter, box, 3 * line, blue);
        break;
    case Mark::Refused:
        DrawOutline(painter, box, 4 * line, red);
        break;
    case Mark::Changed:
        Bars(painter, box, 3 * line).Corners(blue);
        break;
    }
}

void DrawTrays(QPainter& painter, const std::vector<QRect>& rows, int line, const QColor& ground)
{
    const int rim = 4 * line;
    std::vector<QRect> trays;
    for (const QRect& row : rows) {
        const QRect tray = row.adjusted(-rim, -rim, rim, rim);
        if (trays.empty() || !trays.back().intersects(tray))
            trays.push_back(tray);
        trays.back() |= tray;
    }
    const bool pale = IsPale(ground);
    for (const QRect& tray : trays) {
        painter.fillRect(tray, Blend(Qt::black, ground, pale ? 0.16 : 0.4));
        Bars bars(painter, tray, line);
        bars.BottomAndRight(Blend(Qt::white, ground, pale ? 0.8 : 0.2));
        bars.TopAndLeft(Blend(Qt::black, ground, pale ? 0.4 : 0.8));
    }
}

void DrawFocusRing(QPainter& painter, const QRect& box, int line)
{
    DrawOutline(painter, box, 2 * line, Qt::black);
    DrawOutline(painter, Inside(box, 2 * line), line, Qt::white);
}

bool HasRing(const QWidget& widget)
{
    return widget.hasFocus() && widget.window()->property(ringsShow).toBool();
}

void LetRingsShow(QWidget& window, bool show)
{
    if (window.property(ringsShow).toBool() == show)
        return;
    window.setProperty(ringsShow, show);
    if (QWidget* focused = window.focusWidget())
        focused->update();
}

void LetHoverShow(QWidget& window, bool show)
{
    if (window.property(hoverShows).toBool() == show)
        return;
    window.setProperty(hoverShows, show);
    window.update();
}

void DrawOutline(QPainter& painter, const QRect& box, int line, const QColor& colour)
{
    Bars bars(painter, box, line);
    bars.TopAndLeft(colour);
    bars.BottomAndRight(colour);
}
