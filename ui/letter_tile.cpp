#include "ui/letter_tile.h"

#include "ui/flat_box.h"

#include <QKeyEvent>

LetterTile::LetterTile(QWidget* parent)
    : QPushButton(parent)
{
    setCursor(Qt::ArrowCursor);
    setAutoDefault(true); // Enter clicks too
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void LetterTile::JoinTo(LetterTile* previous)
{
    previous_ = previous;
    previous->next_ = this;
    setFocusPolicy(Qt::ClickFocus);
}

void LetterTile::SetLetter(const QString& letter, const QString& faint)
{
    if (text() != letter)
        setText(letter);
    if (faint_ != faint) {
        faint_ = faint;
        update();
    }
}

void LetterTile::paintEvent(QPaintEvent* /*event*/)
{
    const bool faint = text().isEmpty();
    DrawFlatBox(*this, {.text = faint ? faint_ : text(), .faint = faint, .pressed = isDown()});
}

void LetterTile::StepTo(LetterTile* tile)
{
    if (tile != nullptr && tile->isEnabled() && !tile->visibleRegion().isEmpty())
        tile->setFocus(Qt::OtherFocusReason);
}

void LetterTile::StepIntoSight()
{
    LetterTile* tile = this;
    while (tile != nullptr && tile->visibleRegion().isEmpty())
        tile = tile->next_;
    StepTo(tile);
}

void LetterTile::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Left)
        StepTo(previous_);
    else if (event->key() == Qt::Key_Right)
        StepTo(next_);
    else
        QPushButton::keyPressEvent(event);
}

void LetterTile::focusInEvent(QFocusEvent* event)
{
    for (LetterTile* tile = previous_; tile != nullptr; tile = tile->previous_)
        tile->setFocusPolicy(Qt::ClickFocus);
    for (LetterTile* tile = next_; tile != nullptr; tile = tile->next_)
        tile->setFocusPolicy(Qt::ClickFocus);
    setFocusPolicy(Qt::StrongFocus);
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
    DrawFlatBox(*this, {.text = text()});
}
