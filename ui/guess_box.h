// A box of the guess rows: it takes any text, and a typed letter moves on to the next box.
#pragma once

#include <QLineEdit>

class GuessBox : public QLineEdit {
public:
    explicit GuessBox(QWidget* parent);

    // The box before this one, in this row or at the end of the row above.
    void JoinTo(GuessBox* previous);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void StepTo(GuessBox* box);
    void StepAfter(const QString& typed);

    GuessBox* previous_ = nullptr;
    GuessBox* next_ = nullptr;
    bool entered_ = false; // by the click that is being made
};
