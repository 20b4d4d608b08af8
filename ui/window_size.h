// The size of the window: it has the one, and one scale for all that stands in it.
#pragma once

struct Board;
class QWidget;

class WindowSize {
public:
    // Gives the window the size that it is built at. Both outlive this.
    WindowSize(QWidget& window, Board& board);

    // 1/15 at 96 dots to the inch; less on a screen that the window would not fit on.
    double PixelsPerTwip() const { return pixelsPerTwip_; }

    // Holds the window at its one outer size, in whole pixels, and never smaller than its contents;
    // then tells the board the size that it has. True when the screen that the window is on has led
    // to another scale, and everything in the window needs its place anew.
    bool Form_Resize();

private:
    bool FitScreen();
    void ReadSize();

    QWidget& window_;
    Board& board_;
    double pixelsPerTwip_;
};
