#include "ui/qt/letter_tile.h"

#include "ui/qt/silence.h"

LetterTile::LetterTile(QWidget* parent)
    : DrawnBox(parent)
{
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

// The toolkit takes the letter for a new name.
void LetterTile::Write(const QString& text)
{
    const Silence silence;
    setText(text);
}

void LetterTile::paintEvent(QPaintEvent* /*event*/)
{
    BoxLook look = look_;
    look.pressed = isDown();
    DrawBox(*this, look);
}

ShownBox::ShownBox(QWidget* parent)
    : DrawnBox(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ShownBox::paintEvent(QPaintEvent* /*event*/)
{
    DrawBox(*this, look_);
}
