#include "ui/letter_tile.h"

#include "ui/spoken.h"

#include <QKeyEvent>

#include <utility>

LetterTile::LetterTile(QWidget* parent)
    : QPushButton(parent)
{
    setCursor(Qt::ArrowCursor);
    setAutoDefault(true); // Enter clicks too
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void LetterTile::SetLetter(const QString& letter, const QString& faint)
{
    if (text() != letter) {
        const Silence silence; // the toolkit takes it for a new name
        setText(letter);
    }
    if (std::exchange(faint_, faint) != faint)
        update();
}

void LetterTile::SetEdge(Edge edge, bool faded)
{
    const bool faintness = std::exchange(faded_, faded) != faded;
    if (std::exchange(edge_, edge) != edge || faintness)
        update();
}

void LetterTile::paintEvent(QPaintEvent* /*event*/)
{
    const bool faint = text().isEmpty();
    DrawBox(*this,
        {.text = faint ? faint_ : text(),
            .edge = edge_,
            .faded = faded_,
            .faint = faint,
            .pressed = isDown()});
}

// Left and Right stay in the row; Up and Down leave it, as the toolkit has it for any button.
void LetterTile::keyPressEvent(QKeyEvent* event)
{
    const bool inRow = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    if (!inRow_.Walk(event->key()) && !inRow)
        QPushButton::keyPressEvent(event);
}

void LetterTile::focusInEvent(QFocusEvent* event)
{
    inRow_.StopHere();
    QPushButton::focusInEvent(event);
}

ShownBox::ShownBox(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ShownBox::paintEvent(QPaintEvent* /*event*/)
{
    DrawBox(*this, {.text = text()});
}
