// Where the controls stand, in twips and in pixels at the scale of the board.
#pragma once

struct Board;
struct Part;

struct TwipRect { // from the client area of the window
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    bool operator==(const TwipRect&) const = default;
};

bool Contains(const TwipRect& outer, const TwipRect& inner);

// Of the roster, in the frame that holds the part; without the level panel and its backing.
TwipRect PlaceInFrame(const Part& part);

// From the client area of the window. The level panel and its backing stand where the board says.
TwipRect PlaceInTwips(const Part& part, const Board& board);

struct PixelSize {
    int Width = 0;
    int Height = 0;

    bool operator==(const PixelSize&) const = default;
};

struct PixelPoint {
    int Left = 0;
    int Top = 0;
};

struct PixelRect {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;

    bool operator==(const PixelRect&) const = default;
};

// How large the board is, and where in the window it begins, in pixels.
struct Scale {
    double PixelsPerTwip = 0;
    int Left = 0;
    int Top = 0;

    bool operator==(const Scale&) const = default;
};

// The width of an edge.
int LineWidth(const Scale& scale);

// In the frame that holds the part. Boxes that share a line share its pixels at every scale.
PixelRect PlaceOf(const Part& part, const Board& board, const Scale& scale);

// The same from the client area of the window.
PixelRect PlaceInWindow(const Part& part, const Board& board, const Scale& scale);
