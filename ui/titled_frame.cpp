#include "ui/titled_frame.h"

#include <QEvent>
#include <QPainter>

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

void TitledFrame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QFontMetrics metrics(font());
    const QColor ground = palette().color(QPalette::Window);
    const QColor ink = palette().color(foregroundRole());
    const int top = title().isEmpty() ? 0 : metrics.height() / 2;

    QColor line = ink;
    line.setAlpha(90);
    painter.setPen(line);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawRoundedRect(QRectF(0.5, top + 0.5, width() - 1, height() - top - 1), 3, 3);
    if (title().isEmpty())
        return;

    const QRect caption(8, 0, metrics.horizontalAdvance(title()), metrics.height());
    painter.fillRect(caption.adjusted(-3, 0, 3, 0), ground);
    painter.setPen(ink);
    painter.drawText(caption, Qt::AlignLeft | Qt::TextDontClip, title());
}
