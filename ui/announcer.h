// When a screen reader is told what is new: once, in the order in which it happens, when the event
// that it happens in has ended.
#pragma once

#include "ui/news.h"

#include <cstdint>
#include <memory>
#include <string>

class FrontEnd;

class Announcer {
public:
    // Both outlive this.
    Announcer(const Board& board, FrontEnd& front);
    ~Announcer();

    // The board is shown as it is at this moment.
    void Look();

    // Tells the text as well.
    void Say(const std::string& text);

    // Nothing is told between a handler's start and its end. Handlers can run inside each other.
    void BeginHandler();
    void EndHandler();

    // A message has been answered.
    void AfterMessage();

    // The front end wakes it, as it has asked for.
    void Tell();

private:
    void Wake();

    const Board& board_;
    FrontEnd& front_;
    std::unique_ptr<Board> told_; // as it was when something was told last
    std::unique_ptr<Board> seen_; // as it was shown last
    News waiting_;
    bool goHasPassed_ = false;
    int handlers_ = 0; // under way
    std::int64_t quietUntil_ = 0; // by the front end's clock
};
