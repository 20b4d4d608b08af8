#include "ui/qt/pointer.h"

#include "ui/qt/box_look.h"
#include "ui/qt/letter_tile.h"
#include "ui/session.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QWindow>

#include <algorithm>
#include <utility>

Pointer::Pointer(QWidget& window, const Controls& controls, Session& session)
    : window_(window)
    , controls_(controls)
    , session_(session)
{
}

bool Pointer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &window_ && event->type() == QEvent::WindowDeactivate)
        LetGo(nullptr);
    return watched->isWindowType() && watched == window_.windowHandle() && OnWindow(*event);
}

bool Pointer::OnWindow(QEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return Press(static_cast<QMouseEvent&>(event));
    case QEvent::MouseMove:
        return Move(static_cast<QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
        return Release(static_cast<QMouseEvent&>(event));
    case QEvent::TouchCancel:
        LetGo(nullptr);
        return false;
    case QEvent::Leave:
        isInside_ = false;
        ShowHand();
        return false;
    default:
        return false;
    }
}

bool Pointer::Press(const QMouseEvent& mouse)
{
    Move(mouse);
    // A release can have gone to a message.
    const bool alone
        = mouse.type() == QEvent::MouseButtonPress && mouse.buttons() == mouse.button();
    if (!std::exchange(isDown_, true) || alone) {
        swallows_ = !session_.PointerDown();
        pressedAt_ = at_;
        const bool left = mouse.button() == Qt::LeftButton;
        pressed_ = left ? PartOf(controls_, window_.childAt(pressedAt_)) : nullptr;
    }
    return swallows_;
}

bool Pointer::Move(const QMouseEvent& mouse)
{
    at_ = mouse.position().toPoint();
    isInside_ = true;
    isFinger_ = mouse.device()->type() == QInputDevice::DeviceType::TouchScreen;
    LetShow(window_, hover, !isFinger_ && !drags_);
    if (drags_ && !mouse.buttons().testFlag(Qt::LeftButton) && mouse.type() == QEvent::MouseMove)
        LetGo(nullptr); // the release has gone elsewhere
    if (pressed_ != nullptr && !swallows_ && HasLeft(*pressed_)) {
        const Part& from = *std::exchange(pressed_, nullptr);
        drags_ = session_.BeginDrag(from);
        if (drags_) // it is not clicked as well
            As<QAbstractButton>(controls_[IndexOf(from)]).setDown(false);
    }
    ShowHand();
    return swallows_ || drags_;
}

// A drag starts past the system's distance and off the part, so that a shaky click stays one.
bool Pointer::HasLeft(const Part& part) const
{
    const QWidget& widget = *controls_[IndexOf(part)].Widget;
    return (at_ - pressedAt_).manhattanLength() >= QApplication::startDragDistance()
        && !widget.rect().contains(widget.mapFrom(&window_, at_));
}

bool Pointer::Release(const QMouseEvent& mouse)
{
    if (mouse.buttons() != Qt::NoButton)
        return swallows_;
    LetGo(PartOf(controls_, window_.childAt(mouse.position().toPoint())));
    return std::exchange(swallows_, false); // else the control that was pressed has to be let go
}

// Over the part, or over none as another window or the desktop takes the pointer away.
void Pointer::LetGo(const Part* to)
{
    pressed_ = nullptr;
    isDown_ = false;
    if (std::exchange(drags_, false))
        session_.EndDrag(to);
    ShowHand();
}

void Pointer::ShowHand()
{
    const QString letter = QString::fromStdString(session_.LetterInHand());
    const bool shows = isInside_ && !letter.isEmpty() && !session_.MessageIsOpen()
        && !session_.ShowsFocus() && (drags_ || !isFinger_);
    if (!shows) {
        if (hand_ != nullptr)
            hand_->hide();
        return;
    }
    if (hand_ == nullptr) {
        hand_ = new LetterTile(&window_);
        hand_->setAttribute(Qt::WA_TransparentForMouseEvents);
        hand_->setFocusPolicy(Qt::NoFocus);
    }
    const QWidget& from = *controls_[IndexOf(session_.PlaceOfLetterInHand())].Widget;
    hand_->setPalette(from.palette());
    hand_->setFont(from.font());
    hand_->setContentsMargins(from.contentsMargins());
    hand_->resize(from.size());
    hand_->SetLook({.text = letter, .edge = Edge::Raised});
    hand_->move(PlaceOfHand());
    hand_->show();
    hand_->raise();
}

// Below the arrow at its right, or above a finger.
QPoint Pointer::PlaceOfHand() const
{
    const QSize size = hand_->size();
    if (isFinger_)
        return at_ - QPoint(size.width() / 2, 2 * size.height());
    return {std::min(at_.x() + 12, window_.width() - size.width()),
        std::min(at_.y() + 12, window_.height() - size.height())};
}
