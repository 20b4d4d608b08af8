// The boxes of the board that the player cannot type in: one kind takes clicks, the other only
// shows.
#pragma once

#include "ui/look.h"

#include <QLabel>
#include <QPushButton>

// A box with one letter that is clicked.
class LetterTile : public QPushButton {
public:
    explicit LetterTile(QWidget* parent);

    // The letter in the box; and where the box is empty, a letter that is shown faintly in it.
    void SetLetter(const QString& letter, const QString& faint);

    // What a click does now, and whether the colours are those of a box out of play.
    void SetEdge(Edge edge, bool faded);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
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
