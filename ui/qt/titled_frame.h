// A frame with its caption in the top line, drawn so that the caption never meets what it holds.
#pragma once

#include <QGroupBox>

class TitledFrame : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    // The width of its line, in pixels.
    void SetLine(int line) { line_ = line; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int line_ = 1;
};
