// The boxes of the board that the player cannot type in: one kind takes clicks, the other only
// shows.
#pragma once

#include "ui/qt/box_look.h"

#include <QLabel>
#include <QPushButton>

// A box with one letter that is clicked.
class LetterTile : public QPushButton {
public:
    explicit LetterTile(QWidget* parent);

    void SetLook(const BoxLook& look);
    const BoxLook& LookNow() const { return look_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BoxLook look_;
};

class ShownBox : public QLabel {
public:
    explicit ShownBox(QWidget* parent);

    void SetLook(const BoxLook& look);
    const BoxLook& LookNow() const { return look_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BoxLook look_;
};
