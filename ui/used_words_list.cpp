#include "ui/used_words_list.h"

#include "ui/box_look.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

UsedWordsList::UsedWordsList(QWidget* parent)
    : QListWidget(parent)
{
    setFrameStyle(Box | Plain);
    // At a scale of 1.5 the words would reach a dot too far, over the edge.
    setViewportMargins(1, 1, 1, 1);
}

// Words come one at a time to a list that can be long, so what is there already stays.
void UsedWordsList::SetWords(const std::vector<std::string>& words)
{
    const auto shown = static_cast<std::size_t>(count());
    std::size_t same = 0;
    while (same < std::min(shown, words.size())
        && item(static_cast<int>(same))->text() == QString::fromUtf8(words[same]))
        ++same;
    if (same == shown && same == words.size())
        return;
    if (same < shown) {
        clear();
        same = 0;
    }
    for (; same < words.size(); ++same)
        addItem(QString::fromUtf8(words[same]));
    scrollToBottom();
}

// Up and Down walk the words and, at their ends, leave the list; so do Left and Right. Letters are
// for the word that the player types.
void UsedWordsList::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool atTop = currentRow() <= 0;
    const bool atBottom = currentRow() == count() - 1;
    if (key == Qt::Key_Left || (key == Qt::Key_Up && atTop))
        focusNextPrevChild(false);
    else if (key == Qt::Key_Right || (key == Qt::Key_Down && atBottom))
        focusNextPrevChild(true);
    else if (event->text().isEmpty())
        QListWidget::keyPressEvent(event);
    else
        event->ignore();
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
    if (hasFocus())
        DrawFocusRing(painter, viewport()->rect(), lineWidth());
}
