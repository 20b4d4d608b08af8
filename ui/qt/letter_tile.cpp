#include "ui/qt/letter_tile.h"

#include "ui/qt/silence.h"

#include <utility>

LetterTile::LetterTile(QWidget* parent)
    : QPushButton(parent)
{
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void LetterTile::SetLook(const BoxLook& look)
{
    const QString letter = look.hollow ? QString() : look.text;
    if (text() != letter) {
        const Silence silence; // the toolkit takes it for a new name
        setText(letter);
    }
    if (std::exchange(look_, look) != look)
        update();
}

void LetterTile::paintEvent(QPaintEvent* /*event*/)
{
    BoxLook look = look_;
    look.pressed = isDown();
    DrawBox(*this, look);
}

ShownBox::ShownBox(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ShownBox::SetLook(const BoxLook& look)
{
    setText(look.text);
    if (std::exchange(look_, look) != look)
        update();
}

void ShownBox::paintEvent(QPaintEvent* /*event*/)
{
    DrawBox(*this, look_);
}
