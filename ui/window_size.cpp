#include "ui/window_size.h"

#include "game/board.h"
#include "ui/roster.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

// In twips: the size that the window is built at, and the outer size that it has on the screen.
constexpr QSize designSize(10875, 7920);
constexpr QSize outerSize(9960, 7484);
constexpr QSize reach(ReachRight, ReachDown);
constexpr double fullScale = 1.0 / 15; // pixels to the twip, at 96 dots to the inch

} // namespace

WindowSize::WindowSize(QWidget& window, Board& board)
    : window_(window)
    , board_(board)
    , pixelsPerTwip_(fullScale)
{
    window_.resize(designSize * fullScale);
    ReadSize();
}

// On a screen that the window does not fit on, everything in it becomes smaller by one factor.
bool WindowSize::FitScreen()
{
    const QSizeF room = window_.screen()->availableGeometry().size();
    const double scale = std::min(
        {fullScale, room.width() / outerSize.width(), room.height() / outerSize.height()});
    return scale != std::exchange(pixelsPerTwip_, scale);
}

bool WindowSize::Form_Resize()
{
    bool rescaled = false;
    if (window_.windowState() == Qt::WindowNoState) {
        rescaled = FitScreen();
        const QSize borders = window_.frameGeometry().size() - window_.size();
        const QSize wanted
            = (outerSize * pixelsPerTwip_ - borders).expandedTo(reach * pixelsPerTwip_);
        // Compared with what was last asked for: a window manager that gives another size all the
        // same is not asked again and again.
        if (wanted != window_.minimumSize())
            window_.setFixedSize(wanted);
    }
    ReadSize();
    return rescaled;
}

void WindowSize::ReadSize()
{
    board_.WindowWidth = window_.frameGeometry().width() / pixelsPerTwip_;
    board_.WindowHeight = window_.frameGeometry().height() / pixelsPerTwip_;
}
