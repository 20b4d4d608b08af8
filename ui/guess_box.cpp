#include "ui/guess_box.h"

#include "ui/box_look.h"

#include <QKeyEvent>
#include <QPainter>

#include <limits>
#include <string>
#include <utility>

GuessBox::GuessBox(QWidget* parent)
    : QLineEdit(parent)
{
    setAlignment(Qt::AlignCenter);
    setFrame(false); // the style's is as dark as the ground of a dark desktop
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textEdited, this, &GuessBox::Spread);
}

void GuessBox::JoinTo(GuessBox& previous, bool inOneRow)
{
    previous_ = &previous;
    previous.next_ = this;
    previous.lastInRow_ = !inOneRow;
    if (inOneRow)
        inRow_.JoinTo(previous.inRow_);
}

void GuessBox::StandBelow(GuessBox& above)
{
    above_ = &above;
    above.below_ = this;
}

void GuessBox::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    DrawEdge(painter, *this, palette().color(QPalette::Base));
    if (hasFocus())
        DrawFocusRing(painter, rect(), contentsMargins().left());
}

// For the reason of a Tab key the box selects its text, so that typing replaces it.
bool GuessBox::StepTo(GuessBox* box)
{
    if (box == nullptr || box->visibleRegion().isEmpty())
        return false;
    box->setFocus(Qt::TabFocusReason);
    return true;
}

void GuessBox::Write(const QString& letters)
{
    if (text() != letters)
        setText(letters);
}

// A letter moves on once it stands in the box. More of them at once, as a pasted word brings, go on
// over the row, and what is left then stays in its last box.
void GuessBox::Spread(const QString& typed)
{
    const std::u32string letters = typed.normalized(QString::NormalizationForm_C).toStdU32String();
    GuessBox* box = this;
    std::size_t written = 0;
    for (; written + 1 < letters.size() && !box->lastInRow_; ++written, box = box->next_)
        box->Write(QString::fromStdU32String(letters.substr(written, 1)));
    box->Write(QString::fromStdU32String(letters.substr(written)));
    if (erasing_ || letters.empty())
        return;
    if (StepTo(box->next_))
        box->next_->steppedInto_ = true;
    else if (box != this)
        StepTo(box);
}

// Goes back to the letter typed last and takes it away.
void GuessBox::EraseBefore()
{
    GuessBox* box = previous_;
    while (box != nullptr && box->IsKnown())
        box = box->previous_;
    if (StepTo(box))
        box->Write("");
}

// Left and Right leave a box at the ends of what is in it, and run on from row to row.
bool GuessBox::Walk(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return (cursorPosition() == 0 || hasSelectedText()) && StepTo(previous_);
    case Qt::Key_Right:
        return (cursorPosition() == text().size() || hasSelectedText()) && StepTo(next_);
    case Qt::Key_Up:
        return StepTo(above_) || focusNextPrevChild(false);
    case Qt::Key_Down:
        return StepTo(below_) || focusNextPrevChild(true);
    default:
        return inRow_.Walk(key);
    }
}

void GuessBox::keyPressEvent(QKeyEvent* event)
{
    const bool stepped = std::exchange(steppedInto_, false);
    if (event->key() == Qt::Key_Backspace && (stepped || text().isEmpty())) {
        EraseBefore();
        return;
    }
    if (event->modifiers() == Qt::NoModifier && Walk(event->key()))
        return;
    erasing_ = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    QLineEdit::keyPressEvent(event);
    erasing_ = false;
}

void GuessBox::focusInEvent(QFocusEvent* event)
{
    inRow_.StopHere();
    steppedInto_ = false;
    QLineEdit::focusInEvent(event);
}

// A click selects what is in the box, as a step into it does. One that pastes has gone on by now.
void GuessBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    steppedInto_ = false;
    if (hasFocus() && !hasSelectedText())
        selectAll();
}
