// What the player does with keys, dead keys and input methods, told to the session.
#pragma once

#include "ui/qt/controls.h"

#include <QObject>

class QHelpEvent;
class QKeyEvent;
class Session;

// For the whole application. A held Enter would click on and on, and answer the messages unread;
// here it counts once. A held Space does of itself.
class PlayerEvents : public QObject {
public:
    // All outlive this.
    PlayerEvents(const QWidget& window, const Controls& controls, Session& session);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsHeldEnter(const QKeyEvent& key, bool press);
    bool ShowTip(QObject* watched, const QHelpEvent& event);
    bool Press(const QWidget& widget, const QKeyEvent& key);
    void Type(const QString& text);

    const QWidget& window_;
    const Controls& controls_;
    Session& session_;
    quint64 enterReleased_ = 0; // the time of the event; 0 for none
};
