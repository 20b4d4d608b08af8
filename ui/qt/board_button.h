// The buttons and the check box of the board, with edges and a ring of the focus as its tiles have.
#pragma once

#include "ui/qt/drawn_box.h"

#include <QCheckBox>
#include <QPushButton>

class BoardButton : public DrawnBox<QPushButton> {
public:
    using DrawnBox::DrawnBox;

    // The one button that is pressed in every good go has a heavier edge.
    void MakeHeavy() { heavy_ = true; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool heavy_ = false;
};

class BoardCheck : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};
