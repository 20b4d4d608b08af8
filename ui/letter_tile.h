// The boxes of the board that the player cannot type in: one kind takes clicks, the other only
// shows.
#pragma once

#include <QLabel>
#include <QPushButton>

// A box with one letter that is clicked with the mouse, with Space or with Enter. The arrow keys
// walk its row, and the Tab key stops once in a row: at the box that had the focus last.
class LetterTile : public QPushButton {
public:
    explicit LetterTile(QWidget* parent);

    // The neighbour in the row, to the left.
    void JoinTo(LetterTile* previous);

    // The letter in the box; and where the box is empty, a letter that is shown faintly in it.
    void SetLetter(const QString& letter, const QString& faint);

    // From a box that something covers wholly, gives the focus to the first in sight to the right.
    void StepIntoSight();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void StepTo(LetterTile* tile);

    LetterTile* previous_ = nullptr;
    LetterTile* next_ = nullptr;
    QString faint_;
};

class ShownBox : public QLabel {
public:
    explicit ShownBox(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
