// When a screen reader is told what is new: once, in the order in which it happens, when the event
// that it happens in has ended.
#pragma once

#include "ui/news.h"

#include <cstdint>
#include <memory>
#include <string>

class Alarms;
class FrontEnd;

class Announcer {
public:
    // All outlive this.
    Announcer(const Board& board, FrontEnd& front, Alarms& alarms);
    ~Announcer();

    // The board is shown as it is at this moment.
    void Look();

    // Tells the text as well.
    void Say(const std::string& text);

    // Nothing is told between a handler's start and its end. Handlers can run inside each other.
    void BeginHandler();
    void EndHandler();

    // A message with this text has been answered.
    void AfterMessage(const std::string& text);

    // Its alarm is due.
    void Tell();

private:
    void Gather();
    void Wake();

    const Board& board_;
    FrontEnd& front_;
    Alarms& alarms_;
    std::unique_ptr<Board> told_; // as it was when its news were gathered last
    std::unique_ptr<Board> seen_; // as it was shown last
    News waiting_;
    std::string messages_; // that have been read since something was told last
    bool goHasPassed_ = false;
    int handlers_ = 0;            // under way
    std::int64_t quietUntil_ = 0; // by the front end's clock
};
