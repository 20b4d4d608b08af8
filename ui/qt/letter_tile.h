// The boxes of the board that the player cannot type in: one kind takes clicks, the other only
// shows.
#pragma once

#include "ui/qt/drawn_box.h"

#include <QLabel>
#include <QPushButton>

// A box with one letter that is clicked.
class LetterTile : public DrawnBox<QPushButton> {
public:
    explicit LetterTile(QWidget* parent);

protected:
    void Write(const QString& text) override;
    void paintEvent(QPaintEvent* event) override;
};

class ShownBox : public DrawnBox<QLabel> {
public:
    explicit ShownBox(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
