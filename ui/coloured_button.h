// A button in exactly its colours; the style would shade them into others.
#pragma once

#include <QPushButton>

class ColouredButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};
