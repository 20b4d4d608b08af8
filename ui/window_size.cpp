#include "ui/window_size.h"

#include "game/board.h"
#include "ui/roster.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

// In twips: the size that the window is built at, the outer size that it has on the screen, and the
// board with as much room to the right and below as it has to the left.
constexpr QSize designSize(10875, 7920);
constexpr QSize outerSize(9960, 7484);
constexpr QSize boardSize(ReachRight + 120, ReachDown + 120);
constexpr double fullScale = 1.0 / 15; // pixels to the twip, at 96 dots to the inch

// A desktop that does not give the one size may be in the middle of a drag, or may be one that lays
// its windows out itself. It is asked four times, after so many milliseconds, twice as many and so
// on; then it has its way.
constexpr int firstPause = 100;
constexpr int mostRefusals = 4;

} // namespace

WindowSize::WindowSize(QWidget& window, Board& board, std::function<void()> rescaled)
    : window_(window)
    , board_(board)
    , rescaled_(std::move(rescaled))
    , scale_{fullScale, {}}
{
    window_.resize(designSize * fullScale);
    later_.setSingleShot(true);
    QObject::connect(&later_, &QTimer::timeout, &window, [this] { Form_Resize(); });
    ReadSize();
}

void WindowSize::Form_Resize()
{
    const Scale before = scale_;
    if (HasRoomOfItsOwn())
        FillRoom();
    else if (!window_.isMinimized())
        HoldOneSize();
    ReadSize();
    if (scale_ != before)
        rescaled_();
}

bool WindowSize::HasRoomOfItsOwn() const
{
    return window_.isMaximized() || window_.isFullScreen()
        || (refusals_ == mostRefusals && window_.size() == insisted_);
}

void WindowSize::FillRoom()
{
    const QSizeF room = window_.size();
    scale_.PixelsPerTwip
        = std::min(room.width() / boardSize.width(), room.height() / boardSize.height());
    const QSizeF spare = room - QSizeF(boardSize) * scale_.PixelsPerTwip;
    scale_.Origin = QPoint(qRound(spare.width() / 2), qRound(spare.height() / 2));
}

// A screen can become another size with the window on it, and not all desktops move the window.
QSizeF WindowSize::RoomOnScreen()
{
    const QScreen& screen = *window_.screen();
    QObject::disconnect(ofScreen_);
    ofScreen_ = QObject::connect(
        &screen, &QScreen::availableGeometryChanged, &window_, [this] { Form_Resize(); });
    return screen.availableGeometry().size();
}

// On a screen that the window does not fit on, everything in it becomes smaller by one factor.
void WindowSize::HoldOneSize()
{
    const QSizeF screen = RoomOnScreen();
    const double scale = std::min(
        {fullScale, screen.width() / outerSize.width(), screen.height() / outerSize.height()});
    scale_ = {scale, {}};
    const QSize borders = window_.frameGeometry().size() - window_.size();
    const QSize wanted
        = (outerSize * scale - borders).expandedTo(QSize(ReachRight, ReachDown) * scale);
    if (window_.size() == wanted) {
        if (!later_.isActive())
            insisted_ = QSize();
        return;
    }
    if (window_.size() != insisted_) {
        insisted_ = window_.size();
        refusals_ = 0;
        later_.stop();
    }
    if (later_.isActive())
        return; // the desktop has been asked, and may still give way
    later_.start(firstPause << refusals_);
    ++refusals_;
    window_.resize(wanted);
}

void WindowSize::ReadSize()
{
    const QSizeF outer = HasRoomOfItsOwn()
        ? QSizeF(outerSize) // the board is that of the one size, seen larger
        : QSizeF(window_.frameGeometry().size()) / scale_.PixelsPerTwip;
    board_.WindowWidth = outer.width();
    board_.WindowHeight = outer.height();
}
