// The one place that speaks to a screen reader of itself. What the player would see happen is said
// once, in the order in which it happens, when the event that it happens in has ended.
#pragma once

#include "ui/news.h"

#include <QDeadlineTimer>
#include <QTimer>

class QWidget;

class Announcer {
public:
    // Both outlive this. To come before anything else stands in the window.
    Announcer(QWidget& window, const Board& board);

    // Looks at the board, which is shown at this moment.
    void Look();

    // Says the text as well.
    void Say(const QString& text);

    // Nothing is said between a handler's start and its end. Handlers can run inside each other.
    void BeginHandler();
    void EndHandler();

    // A message has been answered.
    void AfterMessage();

private:
    void Wake();
    void Tell();
    void Speak(const QString& text);

    QWidget* notice_; // bears what was said last as its name
    const Board& board_;
    Heard told_; // when something was said last
    Heard seen_; // when the board was shown last
    QStringList waiting_;
    bool goHasPassed_ = false;
    int handlers_ = 0; // under way
    QDeadlineTimer quiet_;
    QTimer timer_;
};
