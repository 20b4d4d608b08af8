#include "ui/window_size.h"

#include "game/board.h"
#include "ui/roster.h"

#include <algorithm>
#include <cmath>

namespace {

// In twips: the size that the window is built at, and the outer size that it has on the screen.
constexpr PixelSize designSize{10875, 7920};
constexpr PixelSize outerSize{9960, 7484};
constexpr double fullScale = 1.0 / 15; // pixels to the twip, at 96 dots to the inch

// A desktop that does not give the one size may be in the middle of a drag, or may be one that lays
// its windows out itself. It is asked four times, after so many milliseconds, twice as many and so
// on; then it has its way.
constexpr int firstPause = 100;
constexpr int mostRefusals = 4;

// The board with as much room to the right and below as it has to the left, in twips.
PixelSize BoardSize()
{
    const Reach reach = ReachOfFrames();
    return {reach.Right + 120, reach.Down + 120};
}

int Rounded(double pixels)
{
    return static_cast<int>(std::lround(pixels));
}

PixelSize Scaled(PixelSize twips, double scale)
{
    return {Rounded(twips.Width * scale), Rounded(twips.Height * scale)};
}

} // namespace

PixelSize DesignSize()
{
    return Scaled(designSize, fullScale);
}

WindowSize::WindowSize(Board& board)
    : board_(board)
    , scale_{fullScale, 0, 0}
{
    board_.WindowWidth = designSize.Width;
    board_.WindowHeight = designSize.Height;
}

Wish WindowSize::Form_Resize(const Desktop& desktop)
{
    Wish wish;
    if (HasRoomOfItsOwn(desktop))
        FillRoom(desktop);
    else if (!desktop.Minimised)
        wish = HoldOneSize(desktop);
    ReadSize(desktop);
    return wish;
}

Wish WindowSize::AskAgain(const Desktop& desktop)
{
    asked_ = false;
    return Form_Resize(desktop);
}

bool WindowSize::HasRoomOfItsOwn(const Desktop& desktop) const
{
    return desktop.GivesRoom || (refusals_ == mostRefusals && desktop.Window == insisted_);
}

void WindowSize::FillRoom(const Desktop& desktop)
{
    const PixelSize board = BoardSize();
    const double scale = std::min(
        1.0 * desktop.Window.Width / board.Width, 1.0 * desktop.Window.Height / board.Height);
    scale_ = {scale, Rounded((desktop.Window.Width - board.Width * scale) / 2),
        Rounded((desktop.Window.Height - board.Height * scale) / 2)};
}

// On a screen that the window does not fit on, everything in it becomes smaller by one factor.
Wish WindowSize::HoldOneSize(const Desktop& desktop)
{
    const double scale = std::min({fullScale, 1.0 * desktop.Screen.Width / outerSize.Width,
        1.0 * desktop.Screen.Height / outerSize.Height});
    scale_ = {scale, 0, 0};
    const PixelSize outer = Scaled(outerSize, scale);
    const Reach reach = ReachOfFrames();
    const PixelSize contents = Scaled({reach.Right, reach.Down}, scale);
    const PixelSize wanted{std::max(outer.Width - desktop.Borders.Width, contents.Width),
        std::max(outer.Height - desktop.Borders.Height, contents.Height)};
    if (desktop.Window == wanted) {
        if (!asked_)
            insisted_ = PixelSize();
        return {};
    }
    if (desktop.Window != insisted_) {
        insisted_ = desktop.Window;
        refusals_ = 0;
        asked_ = false;
    }
    if (asked_)
        return {};
    asked_ = true;
    return {wanted, firstPause << refusals_++};
}

void WindowSize::ReadSize(const Desktop& desktop)
{
    if (HasRoomOfItsOwn(desktop)) { // the board is that of the one size, seen larger
        board_.WindowWidth = outerSize.Width;
        board_.WindowHeight = outerSize.Height;
        return;
    }
    board_.WindowWidth = (desktop.Window.Width + desktop.Borders.Width) / scale_.PixelsPerTwip;
    board_.WindowHeight = (desktop.Window.Height + desktop.Borders.Height) / scale_.PixelsPerTwip;
}
