#include "ui/qt/titled_frame.h"

#include "ui/qt/box_look.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

bool TitledFrame::event(QEvent* event)
{
    // A group box takes the keys that would press its check mark; this one has none, and the keys
    // are for the window.
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        event->ignore();
        return false;
    }
    return QGroupBox::event(event);
}

// A frame with a ground of its own is filled to its line and has its caption inside. One with no
// caption stands on what is below it, and has no line there.
void TitledFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QFontMetrics metrics(font());
    const QColor ground = palette().color(QPalette::Window);
    const QColor ink = palette().color(foregroundRole());
    const bool named = foregroundRole() != QPalette::WindowText;
    const bool filled = autoFillBackground();
    // Of smaller captions too, so that frames side by side begin at one height.
    const int middle = std::max(8 * line_, metrics.height() / 2);
    const int top = title().isEmpty() || filled ? 0 : middle;

    if (title().isEmpty())
        painter.setClipRect(rect().adjusted(0, 0, 0, -5 * line_)); // a tray begins there
    const QRect box = rect().adjusted(0, top, 0, title().isEmpty() ? 2 * line_ : 0);
    DrawOutline(painter, box, line_, Blend(ink, ground, named ? 0.75 : 0.35));
    for (const QRect& tray : trays_)
        DrawTray(painter, tray, line_, ground);
    if (title().isEmpty())
        return;
    const QRect caption(8 * line_, filled ? 3 * line_ : top - metrics.height() / 2,
        metrics.horizontalAdvance(title()), metrics.height());
    painter.fillRect(caption.adjusted(-3 * line_, 0, 3 * line_, 0), ground);
    painter.setPen(ink);
    painter.drawText(caption, Qt::AlignLeft | Qt::TextDontClip, title());
}
