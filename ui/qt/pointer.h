// What the player does with a mouse or a finger, told to the session; and the letter that is in the
// hand, drawn beside the arrow of a mouse or above a finger.
#pragma once

#include "ui/qt/controls.h"

#include <QObject>
#include <QPoint>

class LetterTile;
class QMouseEvent;
class Session;

// For the whole application. It sees what comes to the window before any control does.
class Pointer : public QObject {
public:
    // All outlive this.
    Pointer(QWidget& window, const Controls& controls, Session& session);

    bool eventFilter(QObject* watched, QEvent* event) override;

    // Brings the letter in the hand up to the session.
    void ShowHand();

private:
    bool OnWindow(QEvent& event);
    bool Press(const QMouseEvent& mouse);
    bool Move(const QMouseEvent& mouse);
    bool Release(const QMouseEvent& mouse);
    void LetGo(const Part* to);
    bool HasLeft(const Part& part) const;
    QPoint PlaceOfHand() const;

    QWidget& window_;
    const Controls& controls_;
    Session& session_;
    LetterTile* hand_ = nullptr; // made when it is first seen
    QPoint at_;                  // where the pointer was last seen in the window
    QPoint pressedAt_;
    const Part* pressed_ = nullptr; // where a drag can begin
    bool isInside_ = false;
    bool isDown_ = false;
    bool swallows_ = false; // what is pressed does not count
    bool drags_ = false;
    bool isFinger_ = false;
};
