// A box of the guess rows: it takes any text.
#pragma once

#include "ui/guess_rows.h"
#include "ui/qt/box_look.h"

#include <QLineEdit>

class GuessBox : public QLineEdit {
public:
    explicit GuessBox(QWidget* parent);

    // The same text again leaves cursor and selection as they are.
    void SetLook(const BoxLook& look);
    const BoxLook& LookNow() const { return look_; }

    // What the edit under way does.
    Edit Kind() const { return edit_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    BoxLook look_;
    Edit edit_ = Edit::Typed;
};
