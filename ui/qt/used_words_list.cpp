#include "ui/qt/used_words_list.h"

#include "ui/qt/box_look.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

UsedWordsList::UsedWordsList(QWidget* parent)
    : QListWidget(parent)
{
    setFrameStyle(Box | Plain);
    // At a scale of 1.5 the words would reach a dot too far, over the edge.
    setViewportMargins(1, 1, 1, 1);
}

// The mark is at the last word.
void UsedWordsList::SetLook(const Look& look)
{
    const QString words = QString::fromStdString(look.Text);
    SetWords(words.isEmpty() ? QStringList() : words.split(u'\n'));
    if (std::exchange(mark_, look.Marked) != look.Marked)
        viewport()->update();
}

// Words come one at a time to a list that can be long, so what is there already stays.
void UsedWordsList::SetWords(const QStringList& words)
{
    int same = 0;
    while (same < std::min(count(), static_cast<int>(words.size()))
        && item(same)->text() == words[same])
        ++same;
    if (same == count() && same == words.size())
        return;
    if (same < count())
        clear();
    addItems(words.sliced(count()));
    scrollToBottom();
}

bool UsedWordsList::event(QEvent* event)
{
    if (event->type() != QEvent::Paint)
        return QListWidget::event(event);
    QPainter painter(this);
    const QColor ground = palette().color(QPalette::Base);
    painter.fillRect(rect(), ground);
    DrawOutline(painter, rect(), lineWidth(), Blend(palette().color(QPalette::Text), ground, 0.65));
    return true;
}

// The style marks the focus on a word of the list, and an empty list has none.
void UsedWordsList::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    QPainter painter(viewport());
    const QRect last = count() == 0 ? viewport()->rect() : visualItemRect(item(count() - 1));
    DrawMark(painter, last, lineWidth(), palette().color(QPalette::Base), mark_);
    if (HasRing(*this))
        DrawFocusRing(painter, viewport()->rect(), lineWidth());
}
