// The boxes of the board that the player cannot type in: one kind takes clicks, the other only
// shows.
#pragma once

#include "ui/box_look.h"
#include "ui/row_place.h"

#include <QLabel>
#include <QPushButton>

// A box with one letter that is clicked with the mouse, with Space or with Enter.
class LetterTile : public QPushButton {
public:
    explicit LetterTile(QWidget* parent);

    RowPlace& InRow() { return inRow_; }

    // The letter in the box; and where the box is empty, a letter that is shown faintly in it.
    void SetLetter(const QString& letter, const QString& faint);

    // What a click does now, and whether the colours are those of a box out of play.
    void SetEdge(Edge edge, bool faded);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    RowPlace inRow_{*this};
    QString faint_;
    bool faded_ = false;
    Edge edge_ = Edge::Flat;
};

class ShownBox : public QLabel {
public:
    explicit ShownBox(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
