#include "ui/letter_tile.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

// What is left of a colour when it stands at this share before another.
QColor Blend(const QColor& colour, const QColor& other, double share)
{
    const auto mix
        = [share](int a, int b) { return static_cast<int>(a * share + b * (1 - share)); };
    return QColor(mix(colour.red(), other.red()), mix(colour.green(), other.green()),
        mix(colour.blue(), other.blue()));
}

void DrawOutline(QPainter& painter, const QRect& box, int thick, const QColor& colour)
{
    // Filled bars stay crisp at every scale, where a pen would blur.
    painter.fillRect(box.left(), box.top(), box.width(), thick, colour);
    painter.fillRect(box.left(), box.bottom() + 1 - thick, box.width(), thick, colour);
    painter.fillRect(box.left(), box.top(), thick, box.height(), colour);
    painter.fillRect(box.right() + 1 - thick, box.top(), thick, box.height(), colour);
}

struct BoxLook {
    QString letter;
    bool faint = false;
    bool pressed = false;
};

void DrawBox(const QWidget& widget, const BoxLook& look)
{
    const QPalette& palette = widget.palette();
    QColor ground = palette.color(QPalette::Active, QPalette::Base);
    QColor ink = palette.color(QPalette::Active, QPalette::Text);
    const QColor line = Blend(ground.lightness() > 127 ? Qt::black : Qt::white, ground, 0.65);
    if (!widget.isEnabled()) {
        // Out of play: the colour goes, the letter can still be read.
        ground = Blend(ground, palette.color(QPalette::Window), 0.25);
        ink = Blend(ink, ground, 0.5);
    } else if (look.pressed) {
        ground = ground.darker(115);
    }

    QPainter painter(const_cast<QWidget*>(&widget));
    painter.fillRect(widget.rect(), ground);
    DrawOutline(painter, widget.rect(), 1, line);
    if (widget.hasFocus()) {
        // Two rings, one of which shows on any colour.
        DrawOutline(painter, widget.rect(), 2, Qt::black);
        DrawOutline(painter, widget.rect().adjusted(2, 2, -2, -2), 1, Qt::white);
    }
    painter.setPen(look.faint ? Blend(ink, ground, 0.35) : ink);
    painter.drawText(widget.rect(), Qt::AlignCenter | Qt::TextDontClip, look.letter);
}

} // namespace

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
    DrawBox(*this, {.letter = faint ? faint_ : text(), .faint = faint, .pressed = isDown()});
}

void LetterTile::StepTo(LetterTile* tile)
{
    if (tile != nullptr && tile->isEnabled())
        tile->setFocus(Qt::OtherFocusReason);
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
    DrawBox(*this, {.letter = text()});
}
