// A frame with its caption in the top line, drawn so that the caption never meets what it holds.
#pragma once

#include <QGroupBox>

#include <vector>

class TitledFrame : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    // The width of its line, in pixels.
    void SetLine(int line) { line_ = line; }

    // The rows of letters in it lie in these.
    void SetTrays(const std::vector<QRect>& trays) { trays_ = trays; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<QRect> trays_;
    int line_ = 1;
};
