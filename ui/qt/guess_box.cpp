#include "ui/qt/guess_box.h"

#include <QKeyEvent>
#include <QPainter>

#include <limits>

GuessBox::GuessBox(QWidget* parent)
    : DrawnBox(parent)
{
    setAlignment(Qt::AlignCenter);
    setFrame(false); // the style's is as dark as the ground of a dark desktop
    setMaxLength(std::numeric_limits<int>::max());
}

void GuessBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    DrawEdge(painter, *this, palette().color(QPalette::Base), look_);
}

void GuessBox::keyPressEvent(QKeyEvent* event)
{
    const bool erases = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    edit_ = erases ? Edit::Erased : Edit::Typed;
    QLineEdit::keyPressEvent(event);
    edit_ = Edit::Typed;
}

// A click selects what is in the box, as a step into it does. One that pastes has gone on by now.
void GuessBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (hasFocus() && !hasSelectedText())
        selectAll();
}
