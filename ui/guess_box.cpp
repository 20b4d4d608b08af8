#include "ui/guess_box.h"

#include "ui/flat_box.h"

#include <QKeyEvent>
#include <QPainter>

#include <limits>
#include <utility>

GuessBox::GuessBox(QWidget* parent)
    : QLineEdit(parent)
{
    setAlignment(Qt::AlignCenter);
    setFrame(false); // the style's is as dark as the ground of a dark desktop
    setMaxLength(std::numeric_limits<int>::max());
}

void GuessBox::JoinTo(GuessBox* previous)
{
    previous_ = previous;
    previous->next_ = this;
}

void GuessBox::StepTo(GuessBox* box)
{
    // For the reason of a Tab key the box selects its text, so that typing replaces it.
    if (box != nullptr)
        box->setFocus(Qt::TabFocusReason);
}

void GuessBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    DrawEdge(painter, *this, palette().color(QPalette::Base));
}

// What was typed moves on once it stands in the box.
void GuessBox::StepAfter(const QString& typed)
{
    if (!typed.isEmpty() && typed.back().isPrint() && text().left(cursorPosition()).endsWith(typed))
        StepTo(next_);
}

void GuessBox::keyPressEvent(QKeyEvent* event)
{
    const bool atStart = cursorPosition() == 0 || hasSelectedText();
    const bool atEnd = cursorPosition() == text().size() || hasSelectedText();
    if ((event->key() == Qt::Key_Left && atStart)
        || (event->key() == Qt::Key_Backspace && text().isEmpty())) {
        StepTo(previous_);
        return;
    }
    if (event->key() == Qt::Key_Right && atEnd) {
        StepTo(next_);
        return;
    }
    QLineEdit::keyPressEvent(event);
    StepAfter(event->text());
}

void GuessBox::inputMethodEvent(QInputMethodEvent* event)
{
    QLineEdit::inputMethodEvent(event);
    StepAfter(event->commitString());
}

void GuessBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    entered_ = event->reason() == Qt::MouseFocusReason;
}

// The click that enters the box selects its text, as a step into it does; the next one places the
// cursor.
void GuessBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(entered_, false) && !hasSelectedText())
        selectAll();
}
