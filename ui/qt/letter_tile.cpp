#include "ui/qt/letter_tile.h"

#include "ui/qt/box_look.h"
#include "ui/qt/silence.h"

#include <utility>

LetterTile::LetterTile(QWidget* parent)
    : QPushButton(parent)
{
    setCursor(Qt::ArrowCursor);
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
