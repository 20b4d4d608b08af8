// The keys that the window itself has a meaning for.
#pragma once

#include "ui/controls.h"

#include <QObject>

class QKeyEvent;

bool IsEnter(const QKeyEvent& key);

// Enter on the level panel chooses the level that has the focus; on the chosen one it is "OK".
// False when the key means nothing here.
bool PressOnLevelPanel(const Controls& controls, const QKeyEvent& key);

// For the whole application: a held Enter would click on and on, and answer the messages unread;
// with this filter it counts once. A held Space does of itself.
class HeldEnterFilter : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    quint64 enterReleased_ = 0; // the time of the event; 0 for none
};
