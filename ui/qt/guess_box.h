// A box of the guess rows: it takes any text.
#pragma once

#include "ui/guess_rows.h"
#include "ui/qt/drawn_box.h"

#include <QLineEdit>

class GuessBox : public DrawnBox<QLineEdit> {
public:
    explicit GuessBox(QWidget* parent);

    // What the edit under way does.
    Edit Kind() const { return edit_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Edit edit_ = Edit::Typed;
};
