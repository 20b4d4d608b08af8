// The size of the window: it has the one, unless the desktop gives it a room of its own; and the
// scale and place of the board in it.
#pragma once

#include "ui/places.h"

#include <optional>

// What a desktop says of the window, in pixels.
struct Desktop {
    PixelSize Window;   // without its borders
    PixelSize Borders;  // of both sides together
    PixelSize Screen;   // the room on it
    PixelPoint Place;   // of the outer corner, in that room
    bool Fills = false; // maximised, or in full screen
    bool Minimised = false;
    // It says neither where the window stands nor what borders it draws itself. It takes any size
    // that it is asked for, so that one that it gives unasked is meant.
    bool SaysSizeAlone = false;
};

// What is asked of the desktop.
struct Wish {
    std::optional<PixelSize> Size; // for the window, without its borders
    int AskAgainAfter = 0;         // milliseconds: then WindowSize::AskAgain; 0 for never
};

// The board with as much room to the right and below as it has to the left, in twips.
PixelSize BoardSize();

// The size that the window is built at.
PixelSize DesignSize();

class WindowSize {
public:
    // Tells the board the size that the window is built at. The board outlives this.
    explicit WindowSize(Board& board);

    const Scale& Present() const { return scale_; }

    // At every change: in a room that the desktop gives, the board is as large as the room.
    // Otherwise the window has its one outer size, in whole pixels, never smaller than its contents
    // and never larger than the screen, and springs back to it after a drag.
    Wish Form_Resize(const Desktop& desktop);
    Wish AskAgain(const Desktop& desktop);

    // Tells the board the size without asking for another.
    void ReadSize(const Desktop& desktop);

private:
    enum class Given { Nothing, PerhapsADrag, ADrag, ForGood };

    bool HasRoomOfItsOwn(const Desktop& desktop) const;
    void FillRoom(const Desktop& desktop);
    Wish HoldOneSize(const Desktop& desktop);
    Wish TakeUnasked(const Desktop& desktop);

    Board& board_;
    Scale scale_;
    PixelSize asked_ = DesignSize(); // last
    bool waits_ = false;             // and may still get that size
    int refusals_ = 0;               // of the one size, one after another, by a desktop that
    PixelSize insisted_{};           // gives this one
    Given given_ = Given::Nothing;   // by a desktop that gives sizes unasked:
    PixelSize unasked_{};            // the last of them
    PixelSize dragged_{};            // where the last drag ended
};
