// A widget with a text that is drawn as a box of the board.
#pragma once

#include "ui/qt/box_look.h"

#include <utility>

class TakesLook {
public:
    virtual ~TakesLook() = default;
    virtual void SetLook(const BoxLook& look) = 0;
    virtual const BoxLook& LookNow() const = 0;
};

template <typename Widget> class DrawnBox : public Widget, public TakesLook {
public:
    using Widget::Widget;

    // The same text again leaves cursor and selection as they are.
    void SetLook(const BoxLook& look) override
    {
        if (const QString text = look.hollow ? QString() : look.text; text != this->text())
            Write(text);
        if (std::exchange(look_, look) != look)
            this->update();
    }
    const BoxLook& LookNow() const override { return look_; }

protected:
    virtual void Write(const QString& text) { this->setText(text); }

    BoxLook look_;
};
