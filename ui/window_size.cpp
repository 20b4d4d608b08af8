#include "ui/window_size.h"

#include "game/board.h"
#include "ui/roster.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

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

// Of a desktop that gives sizes unasked, a drag is known by its beginning: a small step away from
// the one size and, within so many milliseconds, another. It has ended when none has come for as
// long.
constexpr int smallStep = 64;
constexpr int stillness = 300;

int Rounded(double pixels)
{
    return static_cast<int>(std::lround(pixels));
}

PixelSize Scaled(PixelSize twips, double scale)
{
    return {Rounded(twips.Width * scale), Rounded(twips.Height * scale)};
}

bool Near(PixelSize one, PixelSize other)
{
    return std::abs(one.Width - other.Width) <= smallStep
        && std::abs(one.Height - other.Height) <= smallStep;
}

double ScaleOfOneSize(const Desktop& desktop)
{
    return std::min({fullScale, 1.0 * desktop.Screen.Width / outerSize.Width,
        1.0 * desktop.Screen.Height / outerSize.Height});
}

// Borders that nobody tells of take what the board leaves of the outer size, so that no strip of
// the window stays empty below it.
PixelSize Borders(const Desktop& desktop, double scale)
{
    const PixelSize told = desktop.Borders;
    if (!desktop.SaysSizeAlone || told != PixelSize())
        return told;
    const PixelSize outer = Scaled(outerSize, scale);
    const PixelSize board = Scaled(BoardSize(), scale);
    return {outer.Width - board.Width, outer.Height - board.Height};
}

// Without its borders.
PixelSize OneSize(const Desktop& desktop)
{
    const double scale = ScaleOfOneSize(desktop);
    const PixelSize outer = Scaled(outerSize, scale);
    const PixelSize borders = Borders(desktop, scale);
    const Reach reach = ReachOfFrames();
    const PixelSize contents = Scaled({reach.Right, reach.Down}, scale);
    return {std::max(outer.Width - borders.Width, contents.Width),
        std::max(outer.Height - borders.Height, contents.Height)};
}

// From edge to edge of the screen: maximised in that direction alone, or half of the screen.
bool Spans(const Desktop& desktop)
{
    if (desktop.SaysSizeAlone || desktop.Window == OneSize(desktop))
        return false;
    const PixelSize outer{desktop.Window.Width + desktop.Borders.Width,
        desktop.Window.Height + desktop.Borders.Height};
    return (desktop.Place.Left == 0 && outer.Width == desktop.Screen.Width)
        || (desktop.Place.Top == 0 && outer.Height == desktop.Screen.Height);
}

} // namespace

PixelSize BoardSize()
{
    const Reach reach = ReachOfFrames();
    return {reach.Right + 120, reach.Down + 120};
}

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
    if (desktop.SaysSizeAlone && !desktop.Minimised)
        wish = TakeUnasked(desktop);
    if (HasRoomOfItsOwn(desktop))
        FillRoom(desktop);
    else if (!desktop.Minimised)
        wish = HoldOneSize(desktop);
    ReadSize(desktop);
    return wish;
}

Wish WindowSize::AskAgain(const Desktop& desktop)
{
    waits_ = false;
    if (given_ == Given::PerhapsADrag)
        given_ = Given::ForGood;
    if (given_ != Given::ADrag)
        return Form_Resize(desktop);
    dragged_ = std::exchange(unasked_, PixelSize());
    given_ = Given::Nothing;
    const Wish wish = HoldOneSize(desktop);
    ReadSize(desktop);
    return wish;
}

bool WindowSize::HasRoomOfItsOwn(const Desktop& desktop) const
{
    return desktop.Fills || given_ != Given::Nothing || Spans(desktop)
        || (refusals_ == mostRefusals && desktop.Window == insisted_);
}

void WindowSize::FillRoom(const Desktop& desktop)
{
    const PixelSize board = BoardSize();
    const double scale = std::min(
        1.0 * desktop.Window.Width / board.Width, 1.0 * desktop.Window.Height / board.Height);
    scale_ = {scale, Rounded((desktop.Window.Width - board.Width * scale) / 2),
        Rounded((desktop.Window.Height - board.Height * scale) / 2)};
}

Wish WindowSize::TakeUnasked(const Desktop& desktop)
{
    const PixelSize one = OneSize(desktop);
    if (desktop.Fills || desktop.Window == asked_ || desktop.Window == one) {
        given_ = Given::Nothing;
        unasked_ = PixelSize();
        return {};
    }
    if (desktop.Window == unasked_)
        return {};
    unasked_ = desktop.Window;
    if (given_ == Given::PerhapsADrag || unasked_ == dragged_)
        given_ = Given::ADrag;
    else if (given_ == Given::Nothing)
        given_ = Near(unasked_, one) || Near(unasked_, dragged_) ? Given::PerhapsADrag
                                                                 : Given::ForGood;
    return {{}, given_ == Given::ForGood ? 0 : stillness};
}

// On a screen that the window does not fit on, everything in it becomes smaller by one factor.
Wish WindowSize::HoldOneSize(const Desktop& desktop)
{
    scale_ = {ScaleOfOneSize(desktop), 0, 0};
    const PixelSize wanted = OneSize(desktop);
    if (desktop.Window == wanted) {
        if (!waits_)
            insisted_ = PixelSize();
        return {};
    }
    if (desktop.Window != insisted_) {
        insisted_ = desktop.Window;
        refusals_ = 0;
        waits_ = false;
    }
    if (waits_)
        return {};
    waits_ = true;
    asked_ = wanted;
    return {wanted, firstPause << refusals_++};
}

void WindowSize::ReadSize(const Desktop& desktop)
{
    if (HasRoomOfItsOwn(desktop)) { // the board is that of the one size, seen larger
        board_.WindowWidth = outerSize.Width;
        board_.WindowHeight = outerSize.Height;
        return;
    }
    const PixelSize borders = Borders(desktop, scale_.PixelsPerTwip);
    board_.WindowWidth = (desktop.Window.Width + borders.Width) / scale_.PixelsPerTwip;
    board_.WindowHeight = (desktop.Window.Height + borders.Height) / scale_.PixelsPerTwip;
}
