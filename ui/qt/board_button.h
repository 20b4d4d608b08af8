// The buttons and the check box of the board, with edges and a ring of the focus as its tiles have.
#pragma once

#include "ui/qt/box_look.h"

#include <QCheckBox>
#include <QPushButton>

class BoardButton : public QPushButton {
public:
    using QPushButton::QPushButton;

    void SetLook(const BoxLook& look);
    const BoxLook& LookNow() const { return look_; }

    // The one button that is pressed in every good go has a heavier edge.
    void MakeHeavy() { heavy_ = true; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BoxLook look_;
    bool heavy_ = false;
};

class BoardCheck : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};
