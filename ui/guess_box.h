// A box of the guess rows: it takes any text, and a typed letter moves on to the next box.
#pragma once

#include "ui/row_place.h"

#include <QLineEdit>

class GuessBox : public QLineEdit {
public:
    explicit GuessBox(QWidget* parent);

    // The box before this one in the order of typing: its neighbour to the left, or the last one of
    // the row above.
    void JoinTo(GuessBox& previous, bool inOneRow);

    // The box above this one, in the row above.
    void StandBelow(GuessBox& above);

    // Sets the text. The same one again leaves cursor and selection as they are.
    void Write(const QString& letters);

    // The letter that the hidden word shows at this place, or "". Where it stands in the box it is
    // known to be right: it is passed on the way back, and not erased.
    void SetShown(const QString& letter) { shown_ = letter; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    static bool StepTo(GuessBox* box);
    bool IsKnown() const { return !shown_.isEmpty() && text() == shown_; }
    bool Walk(int key);
    void EraseBefore();
    void Spread(const QString& typed);

    RowPlace inRow_{*this};
    GuessBox* previous_ = nullptr;
    GuessBox* next_ = nullptr;
    GuessBox* above_ = nullptr;
    GuessBox* below_ = nullptr;
    QString shown_;
    bool lastInRow_ = true;
    bool steppedInto_ = false; // on from a letter that was typed: Backspace is for that letter
    bool erasing_ = false;
};
